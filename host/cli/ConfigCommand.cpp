#include "cli/Commands.h"

#include "site/AdministratorKeys.h"
#include "site/ZOLIQrdServices.h"
#include "values/Settings.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <iostream>

namespace trellis {

namespace {

std::string Origin(const SettingValue& value) {
    switch (value.origin) {
    case SettingOrigin::Option:
        return "command line";
    case SettingOrigin::BuiltIn:
        return "built in";
    case SettingOrigin::Environment:
        return "environment, " + value.place;
    default:
        return value.place;
    }
}

struct ShownSetting {
    std::string key, value, origin, authority, meaning;
};

std::vector<ShownSetting> DeclaredSettings() {
    std::vector<ShownSetting> shown;
    for (const SettingKey& key : Settings::Keys()) {
        const SettingValue value = Settings::Current().Value(key.name);
        shown.push_back({key.name, value.text, Origin(value),
                         key.authority == SettingAuthority::Site ? "site" : "anybody", key.meaning});
    }
    return shown;
}

// Administrator values lie in the database; without one there is nothing to tell of them but what they mean.
std::vector<ShownSetting> AdministratorValues(HostSession& session) {
    const std::string file = session.DatabaseFile();
    const bool isOpen = std::filesystem::exists(file) && session.OpenDatabase();
    std::vector<ShownSetting> shown;
    for (const AdministratorKey& key : AdministratorKeys()) {
        const std::string value = CreateServices()->GetValue(key.name, ZOLIQrdServices::Group).Bytes();
        const std::string origin = !isOpen         ? "no database"
                                   : value.empty() ? std::string("not set: ") + key.whenUnset
                                                   : file;
        shown.push_back({key.name, value, origin, "administrator", key.meaning});
    }
    return shown;
}

ExitCode ShowSettings(HostSession& session) {
    std::vector<ShownSetting> all = DeclaredSettings();
    for (ShownSetting& value : AdministratorValues(session))
        all.push_back(std::move(value));
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const ShownSetting& shown : all) {
        if (session.Options().json)
            json.push_back({{"key", shown.key},
                            {"value", shown.value},
                            {"origin", shown.origin},
                            {"set by", shown.authority},
                            {"meaning", shown.meaning}});
        else
            fmt::print("{} = {}\n    {} ({})\n", shown.key, shown.value, shown.meaning, shown.origin);
    }
    if (session.Options().json)
        std::cout << json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return ExitCode::Fine;
}

} // namespace

void DeclareConfigCommand(CLI::App& program, Job& job) {
    program.add_subcommand("config", "print every setting and administrator value, and where it comes from")
        ->callback([&job] { job = ShowSettings; });
}

} // namespace trellis
