#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace trellis {

// DictionaryNames: gives out names that a dictionary takes: 1 to 40 code points, each once.
class DictionaryNames {
public:
    static bool IsShort(std::string_view name);

    // The name itself when it is short and free, else its beginning with "~1", "~2", ... behind it. Names
    // that must stay as they are come first. Needs valid UTF-8.
    std::string Allot(std::string_view name);

private:
    std::unordered_set<std::string> _taken;
    std::unordered_map<std::string, int> _lastNumber; // by the beginning of the name
};

} // namespace trellis
