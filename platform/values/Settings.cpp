#include "values/Settings.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace trellis {

namespace {

constexpr int FileUnreadable = 60010;
constexpr int LineUnreadable = 60011;
constexpr int NotLogical = 60012;
constexpr int UnknownKey = 60013;
constexpr int KeyOfTheSite = 60014;
constexpr int NoNumber = 60015;

ZOLGYRError Problem(int code, int mode, std::initializer_list<ZOLUnicodeString> parameters) {
    ZOLGYRError error;
    error.Set(code, mode, parameters);
    return error;
}

std::string Stripped(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

bool IsUtf8(const std::string& text) {
    const auto* data = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto size = static_cast<std::int32_t>(text.size());
    for (std::int32_t at = 0; at < size;) {
        UChar32 code = 0;
        U8_NEXT(data, at, size, code);
        if (code < 0)
            return false;
    }
    return true;
}

bool MayDeclare(SettingAuthority authority, SettingOrigin origin) {
    return authority == SettingAuthority::Anybody || origin == SettingOrigin::SiteFile ||
           origin == SettingOrigin::SystemFile;
}

std::string FromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

fs::path UserFolder() {
    if (const std::string named = FromEnvironment("XDG_CONFIG_HOME"); !named.empty())
        return named;
    const std::string home = FromEnvironment("HOME");
    return home.empty() ? fs::path() : fs::path(home) / ".config";
}

} // namespace

Settings& Settings::Current() {
    static Settings settings;
    return settings;
}

std::string Settings::SiteFolder() {
    return FromEnvironment("TRELLIS_SITE_FOLDER");
}

std::string Settings::EnvironmentName(const std::string& key) {
    std::string name = "TRELLIS_" + key;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

void Settings::Load(std::vector<ZOLGYRError>& problems) {
    Forget();
    LoadFile("/etc/trellis/trellis.conf", SettingOrigin::SystemFile, problems);
    if (const std::string site = SiteFolder(); !site.empty())
        LoadFile((fs::path(site) / "trellis.conf").string(), SettingOrigin::SiteFile, problems);
    if (const fs::path user = UserFolder(); !user.empty())
        LoadFile((user / "trellis" / "trellis.conf").string(), SettingOrigin::UserFile, problems);
    for (const SettingKey& key : Keys()) {
        const std::string name = EnvironmentName(key.name);
        if (const char* value = std::getenv(name.c_str()))
            Declare(key.name, value, SettingOrigin::Environment, name, problems);
    }
}

void Settings::LoadFile(const std::string& path, SettingOrigin origin, std::vector<ZOLGYRError>& problems) {
    std::error_code none;
    if (!fs::exists(path, none))
        return;
    std::ifstream file(path);
    if (!file || fs::is_directory(path, none)) {
        problems.push_back(Problem(FileUnreadable, 0, {path}));
        return;
    }
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        const std::string place = path + ", line " + std::to_string(++number);
        const std::string content = Stripped(line);
        if (content.empty() || content.front() == '#')
            continue;
        const std::size_t equals = content.find('=');
        const std::string key = Stripped(content.substr(0, equals));
        if (equals == std::string::npos || key.empty() || !IsUtf8(content))
            problems.push_back(Problem(LineUnreadable, 0, {place}));
        else
            Declare(key, Stripped(content.substr(equals + 1)), origin, place, problems);
    }
}

void Settings::Declare(const std::string& name, const std::string& value, SettingOrigin origin,
                       const std::string& place, std::vector<ZOLGYRError>& problems) {
    const SettingKey* key = FindKey(name);
    if (!key) {
        problems.push_back(Problem(UnknownKey, -1, {place, name}));
        return;
    }
    if (!MayDeclare(key->authority, origin)) {
        problems.push_back(Problem(KeyOfTheSite, -1, {place, name}));
        return;
    }
    if (key->kind == SettingKind::Logical && !LogicalNumber(value)) {
        problems.push_back(Problem(NotLogical, 0, {place, name, value}));
        return;
    }
    if (key->kind == SettingKind::Number && value.empty())
        return;
    if (key->kind == SettingKind::Number && !Number(value)) {
        problems.push_back(Problem(NoNumber, 0, {place, name, value}));
        return;
    }
    _values[name][origin] = SettingValue{value, origin, place};
}

std::optional<SettingValue> Settings::Declared(const std::string& key) const {
    const auto found = _values.find(key);
    if (found == _values.end())
        return std::nullopt;
    return found->second.begin()->second;
}

SettingValue Settings::Value(const std::string& key) const {
    if (auto declared = Declared(key))
        return *declared;
    const SettingKey* known = FindKey(key);
    return SettingValue{known ? known->builtIn : "", SettingOrigin::BuiltIn, ""};
}

bool Settings::IsOn(const std::string& key) const {
    return LogicalNumber(Value(key).text).value_or(0) != 0;
}

std::optional<int> Settings::LogicalNumber(const std::string& text) {
    std::string word = text;
    std::transform(word.begin(), word.end(), word.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    if (word == "on" || word == "true" || word == "yes")
        return 1;
    if (word == "off" || word == "false" || word == "no")
        return 0;
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (word.empty() || error != std::errc() || end != word.data() + word.size())
        return std::nullopt;
    return number;
}

std::optional<double> Settings::Number(const std::string& text) {
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

} // namespace trellis
