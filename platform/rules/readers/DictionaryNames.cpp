#include "rules/readers/DictionaryNames.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr std::size_t Longest = 40; // code points

// The first `count` code points, at most.
std::string_view Beginning(std::string_view name, std::size_t count) {
    const auto isFirstOctet = [](char octet) { return (static_cast<unsigned char>(octet) & 0xC0) != 0x80; };
    for (std::size_t at = 0; at < name.size(); ++at)
        if (isFirstOctet(name[at]) && count-- == 0)
            return name.substr(0, at);
    return name;
}

} // namespace

bool DictionaryNames::IsShort(std::string_view name) {
    return Beginning(name, Longest).size() == name.size();
}

std::string DictionaryNames::Allot(std::string_view name) {
    if (IsShort(name) && _taken.emplace(name).second)
        return std::string(name);
    // Numbers go on where the last name of the same beginning ended, so that thousands of like names stay
    // cheap.
    int& number = _lastNumber[std::string(Beginning(name, Longest))];
    while (true) {
        const std::string suffix = "~" + std::to_string(++number);
        const auto [shortened, isNew] =
            _taken.insert(std::string(Beginning(name, Longest - suffix.size())) + suffix);
        if (isNew)
            return *shortened;
    }
}

} // namespace trellis
