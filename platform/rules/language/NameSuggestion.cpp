#include "rules/language/NameSuggestion.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace trellis {

namespace {

std::string Capitals(ZOLUnicodeString text) {
    text.ToUpper();
    return text.Bytes();
}

// Least number of octets to add, leave out or exchange; `most` + 1 when it is more than `most`.
std::size_t Distance(const std::string& a, const std::string& b, std::size_t most) {
    const std::size_t difference = a.size() > b.size() ? a.size() - b.size() : b.size() - a.size();
    if (difference > most)
        return most + 1;
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t exchanged = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({exchanged, row[j] + 1, row[j + 1] + 1});
        }
    }
    return std::min(row.back(), most + 1);
}

} // namespace

ZOLUnicodeString NameSuggestion::Nearest(const ZOLUnicodeString& written,
                                         const std::vector<ZOLUnicodeString>& names) {
    constexpr std::size_t mostChanges = 3;
    const std::string wanted = Capitals(written);
    ZOLUnicodeString nearest;
    std::size_t least = std::min(mostChanges, wanted.size() / 3) + 1;
    for (const ZOLUnicodeString& name : names) {
        const std::size_t distance = Distance(wanted, Capitals(name), least - 1);
        if (distance >= least)
            continue;
        least = distance;
        nearest = name;
        if (least == 0)
            break;
    }
    return nearest;
}

} // namespace trellis
