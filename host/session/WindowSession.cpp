#include "session/WindowSession.h"

#include "model/DatabaseSession.h"
#include "session/MessageOutput.h"
#include "toolkit/MotifToolkit.h"
#include "values/Settings.h"

#include <cstdlib>
#include <iostream>

namespace trellis {

namespace {

constexpr int NoDisplay = 60150;
constexpr int DisplayLost = 60607;
constexpr int NotSaved = 60608;

std::string WantedDisplay(const HostSession& session) {
    if (!session.Options().display.empty())
        return session.Options().display;
    const char* variable = std::getenv("DISPLAY");
    return variable ? variable : "";
}

bool Start(const std::string& display, ZOLGYRError& error) {
    std::vector<std::string> words = {"trellis", "-display", display};
    for (const auto& [key, option] :
         {std::pair("FONT.SIZE", "-fontSize"), std::pair("FONT.FAMILY", "-fontFamily")})
        if (const std::string value = Settings::Current().Value(key).text; !value.empty())
            words.insert(words.end(), {option, value});
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    return MotifToolkit::Start(count, arguments.data(), error);
}

// Runs in the middle of whatever touched the screen, and the process ends behind it.
void TellWhatIsLost(const std::string& display) {
    ZOLGYRError lost;
    lost.Set(DisplayLost, 0, {display});
    MessageOutput::Print(lost);
    for (const UnsavedChange& change : DatabaseSession::UnsavedChanges()) {
        ZOLGYRError notSaved;
        notSaved.Set(NotSaved, 0, {change.what, change.object});
        MessageOutput::Print(notSaved);
    }
    DatabaseSession::Close();
}

} // namespace

bool WindowSession::Open(const HostSession& session) {
    const std::string display = WantedDisplay(session);
    ZOLGYRError error;
    error.Set(NoDisplay, 0);
    // Nothing of the native toolkit is touched where there cannot be a display.
    if (display.empty() || !Start(display, error)) {
        ZOLUnicodeString reason;
        error.GetLongMsg(reason);
        std::cerr << "trellis: " << reason.Bytes()
                  << " Without windows there are tree, script, import, db and config (trellis --help).\n";
        return false;
    }
    MotifToolkit::WhenDisplayIsLost([display] {
        TellWhatIsLost(display);
        return static_cast<int>(ExitCode::EnvironmentFailed);
    });
    return true;
}

void WindowSession::Run() {
    MotifToolkit::Run();
    MotifToolkit::Stop();
}

} // namespace trellis
