#include "model/ZOLDMTools.h"

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

// Empty where the user has none. A relative path in the environment counts as not set: it would mean another folder
// after each change of the working directory.
fs::path UsersDataFolder() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/')
        return data;
    if (const char* home = std::getenv("HOME"); home && *home == '/')
        return fs::path(home) / ".local" / "share";
    return {};
}

} // namespace

ZOLUnicodeString ZOLDMTools::ZOLDMDefaultDirectory() {
    const fs::path data = UsersDataFolder();
    if (data.empty())
        return {};
    const fs::path folder = data / "trellis";
    std::error_code failure;
    fs::create_directories(folder, failure);
    return fs::is_directory(folder, failure) ? ZOLUnicodeString(folder.string() + "/") : ZOLUnicodeString();
}

int ZOLDMTools::CompareStrings(const ZOLUnicodeString* a, const ZOLUnicodeString* b) {
    return *a < *b ? -1 : *b < *a;
}
