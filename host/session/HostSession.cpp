#include "session/HostSession.h"

#include "model/DatabaseSession.h"
#include "session/MessageOutput.h"
#include "session/ModuleLoader.h"
#include "site/ZOLIQrdSCManager.h"
#include "toolkit/CallbackScope.h"
#include "values/ResourceFolders.h"
#include "values/Settings.h"
#include "values/ZOLMsgCatalog.h"

#include <cstdlib>
#include <filesystem>
#include <tuple>

namespace fs = std::filesystem;

namespace trellis {

namespace {

constexpr int OptionNotUnderstood = 60601;
constexpr int DatabaseOfTheSite = 60602;
constexpr int NoTexts = 60605;
constexpr int NoPersons = 60500;

std::string UsersOwnDatabase() {
    const char* data = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    const fs::path folder = data && *data ? fs::path(data) : fs::path(home ? home : ".") / ".local" / "share";
    return (folder / "trellis" / "trellis.db").string();
}

// Without the catalogue no number has a text, not even this one, so it brings its own.
void CheckTexts(std::vector<ZOLGYRError>& problems) {
    if (ZOLMsgCatalog("messages").HasMsg(ZOLUnicodeString::FromNumber(NoTexts)))
        return;
    ZOLGYRError problem;
    problem.Set(NoTexts, 1);
    problem.SetLongMsg("The texts of the program are not in %1.");
    problem.Add(ResourceFolders::Root());
    problems.push_back(problem);
}

} // namespace

HostSession::~HostSession() {
    _module.reset();
    CallbackScope::FreeGivenUp();
    DatabaseSession::Close();
}

bool HostSession::LoadSettings() {
    std::vector<ZOLGYRError> problems;
    Settings& settings = Settings::Current();
    settings.Load(problems);
    for (const std::string& option : _options.settings) {
        const std::size_t equals = option.find('=');
        if (equals != std::string::npos) {
            settings.Declare(option.substr(0, equals), option.substr(equals + 1), SettingOrigin::Option,
                             "--set", problems);
            continue;
        }
        ZOLGYRError problem;
        problem.Set(OptionNotUnderstood, 0, {option});
        problems.push_back(problem);
    }
    for (const auto& [option, key, value] : {std::tuple("--font-size", "FONT.SIZE", _options.fontSize),
                                             std::tuple("--font", "FONT.FAMILY", _options.fontFamily)})
        if (!value.empty())
            settings.Declare(key, value, SettingOrigin::Option, option, problems);
    CheckTexts(problems);
    MessageOutput::Print(problems);
    return !MessageOutput::AnyError(problems);
}

std::string HostSession::DatabaseFile() {
    const std::string site = Settings::Current().Value("DATABASE").text;
    if (site.empty())
        return _options.database.empty() ? UsersOwnDatabase() : _options.database;
    if (!_options.database.empty() && _options.database != site) {
        ZOLGYRError warning;
        warning.Set(DatabaseOfTheSite, -1, {site, _options.database});
        MessageOutput::Print(warning);
        _options.database.clear();
    }
    return site;
}

bool HostSession::OpenDatabase() {
    ZOLGYRError error;
    if (!DatabaseSession::Open(DatabaseFile(), error)) {
        MessageOutput::Print(error);
        return false;
    }
    // A database that knows nobody yet is normal for one person's work, so that notice is left to "db info".
    if (!GetSecurityManager()->CheckLogin(error) && error.GetCode() != NoPersons)
        MessageOutput::Print(error);
    return true;
}

ZOLIQRDCfgInterfaces* HostSession::Module() {
    if (!_module) {
        ZOLGYRError error;
        _module = ModuleLoader::Load(error);
        MessageOutput::Print(error);
    }
    return _module.get();
}

} // namespace trellis
