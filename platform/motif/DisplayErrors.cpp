#include "motif/DisplayErrors.h"

#include "values/ZOLGYRTrace.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <unistd.h>

namespace trellis {

namespace {
constexpr int environmentFailed = 3;
}

// Never destroyed: the server may go while the process ends.
std::function<int()>& DisplayErrors::LostAction() {
    static auto& action = *new std::function<int()>;
    return action;
}

void DisplayErrors::Watch(Display* display) {
    XtAppSetWarningHandler(XtDisplayToApplicationContext(display), &DisplayErrors::WarningCB);
    XSetErrorHandler(&DisplayErrors::ComplaintCB);
    XSetIOErrorHandler(&DisplayErrors::BrokenCB);
    XSetIOErrorExitHandler(display, &DisplayErrors::LostCB, nullptr);
}

void DisplayErrors::SetLostAction(std::function<int()> action) {
    LostAction() = std::move(action);
}

void DisplayErrors::WarningCB(char* text) {
    ZOLGYRTrace::Note(std::string("the native toolkit warns: ") + text);
}

int DisplayErrors::ComplaintCB(Display* display, XErrorEvent* complaint) {
    std::array<char, 160> text{};
    XGetErrorText(display, complaint->error_code, text.data(), static_cast<int>(text.size()));
    ZOLGYRTrace::Note("the X server refused request " + std::to_string(complaint->request_code) + ": " +
                      text.data());
    return 0;
}

void DisplayErrors::LostCB(Display* display, void*) {
    // Whatever the action touches may find the broken connection again.
    static bool isEnding = false;
    if (std::exchange(isEnding, true))
        _exit(environmentFailed);
    int exitCode = environmentFailed;
    try {
        if (LostAction())
            exitCode = LostAction()();
        else
            std::fprintf(stderr, "The display %s went away.\n", DisplayString(display));
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "The display went away: %s\n", exception.what());
    }
    std::fflush(nullptr);
    _exit(exitCode);
}

} // namespace trellis
