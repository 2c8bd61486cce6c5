#include "cli/Commands.h"

#include "values/Settings.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

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

ExitCode ShowSettings(HostSession& session) {
    nlohmann::ordered_json all = nlohmann::ordered_json::array();
    for (const SettingKey& key : Settings::Keys()) {
        const SettingValue value = Settings::Current().Value(key.name);
        const char* authority = key.authority == SettingAuthority::Site ? "site" : "anybody";
        if (session.Options().json)
            all.push_back({{"key", key.name},
                           {"value", value.text},
                           {"origin", Origin(value)},
                           {"set by", authority},
                           {"meaning", key.meaning}});
        else
            fmt::print("{} = {}\n    {} ({})\n", key.name, value.text, key.meaning, Origin(value));
    }
    if (session.Options().json)
        std::cout << all.dump(2) << '\n';
    return ExitCode::Fine;
}

} // namespace

void DeclareConfigCommand(CLI::App& program, Job& job) {
    program.add_subcommand("config", "print every setting with its value and where that comes from")
        ->callback([&job] { job = ShowSettings; });
}

} // namespace trellis
