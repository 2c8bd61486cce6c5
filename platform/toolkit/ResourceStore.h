#pragma once

#include "values/TrellisApi.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class ZOLGYRError;

namespace trellis {

// The texts of one resource file as all folders of texts give them together: a key of a stronger folder hides
// that of a weaker one, so that a site may replace one text and leave all others.
struct ResourceTexts {
    std::unordered_map<std::string, std::string> texts;
    // How many folders hold the file, and the paths that could not be read.
    int found = 0;
    std::vector<std::string> unreadable;

    // 60180 with the name of the file when no folder holds it, 60181 with the path of the first one that is
    // there but cannot be read; else the error stays as it was.
    void GetStatus(const std::string& file, ZOLGYRError& error) const;
};

// Reads X resource lines ("Key.Part: text"). A key is taken as it is written; one with a loose binding ("*")
// can never be asked for. The text follows the rules of X: blanks before it are dropped unless written "\ ",
// and "\n" and octal numbers as "\012" are known; what follows the text up to the end of the line belongs to
// it. A line that is no resource is left out. Octets behind a zero octet are not read.
TRELLIS_API std::unordered_map<std::string, std::string> ParseResourceTexts(const std::string& content);

// ResourceStore: resource files that were read already, since every widget asks. Reads anew when the folders
// of texts change (another language, another site). A file that is missing or cannot be read is told to the
// trace once.
class TRELLIS_API ResourceStore {
public:
    static ResourceStore& Current();

    // Never null. What an earlier call gave stays valid as long as it is held.
    std::shared_ptr<const ResourceTexts> Get(const std::string& file);

private:
    ResourceStore() = default;

    std::unordered_map<std::string, std::shared_ptr<const ResourceTexts>> _files;
    std::vector<std::string> _folders;
};

} // namespace trellis
