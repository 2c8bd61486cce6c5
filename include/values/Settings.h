#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLGYRError.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace trellis {

enum class SettingKind { Logical, Text, Number };
// Who may set a key. Keys of the site are read from the files of system and site alone.
enum class SettingAuthority { Anybody, Site };

struct SettingKey {
    const char* name;
    SettingKind kind;
    const char* builtIn; // value when nobody declares the key
    SettingAuthority authority;
    const char* meaning; // one line for people
};

// Where a value comes from, the strongest first.
enum class SettingOrigin { Option, Environment, UserFile, SiteFile, SystemFile, BuiltIn };

struct SettingValue {
    std::string text;
    SettingOrigin origin = SettingOrigin::BuiltIn;
    std::string place; // file and line, name of the variable, or empty
};

// Settings: all declared settings of the process, with their origins. A file holds lines "KEY = value"; # begins a
// comment. The variable of a key in the environment is TRELLIS_ and the key with "_" in place of ".".
// Errors, each with the file and line or variable it was found in:
//   60010  a file that exists cannot be read
//   60011  a line that is neither empty, comment nor KEY = value, or that is no UTF-8
//   60012  the value of a logical key is neither on nor off
//   60015  the value of a key of numbers is no number; empty is as good as not declared
// Warnings (display mode -1):
//   60013  an unknown key; it is kept out
//   60014  a key of the site, set by somebody else; it is ignored
class TRELLIS_API Settings {
public:
    static Settings& Current();

    // Every key, in the order in which it is shown.
    static const std::vector<SettingKey>& Keys();
    static const SettingKey* FindKey(const std::string& name);
    static std::string EnvironmentName(const std::string& key);

    // Forgets everything and reads the files and the environment:
    // /etc/trellis/trellis.conf (system), trellis.conf in the folder that TRELLIS_SITE_FOLDER names (site),
    // trellis/trellis.conf in the user's configuration folder (XDG), TRELLIS_... variables.
    void Load(std::vector<ZOLGYRError>& problems);
    void LoadFile(const std::string& path, SettingOrigin origin, std::vector<ZOLGYRError>& problems);
    // Declares one value, checked as above.
    void Declare(const std::string& key, const std::string& value, SettingOrigin origin,
                 const std::string& place, std::vector<ZOLGYRError>& problems);
    void Forget() { _values.clear(); }

    // What is declared for a key by its strongest origin.
    std::optional<SettingValue> Declared(const std::string& key) const;
    // What holds: declared or built in.
    SettingValue Value(const std::string& key) const;
    bool IsOn(const std::string& key) const;
    // The number that a logical value stands for: on, true, yes are 1; off, false, no are 0; numbers themselves.
    static std::optional<int> LogicalNumber(const std::string& text);
    // The number that a text is as a whole, with a point where it is no whole one, in any locale.
    static std::optional<double> Number(const std::string& text);

    // Folder of the site's files (settings, resources, library); empty when no site is named.
    static std::string SiteFolder();

private:
    std::map<std::string, std::map<SettingOrigin, SettingValue>> _values;
};

} // namespace trellis
