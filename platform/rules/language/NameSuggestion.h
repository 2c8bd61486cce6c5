#pragma once

#include "values/ZOLUnicodeString.h"

#include <vector>

namespace trellis {

// NameSuggestion: the name that was perhaps meant by one that does not exist.
class NameSuggestion {
public:
    // The name nearest to `written`: the same but for the case of letters, else at most a third of its characters,
    // and three at most, added, left out or exchanged. Empty when there is none; the first among equals.
    static ZOLUnicodeString Nearest(const ZOLUnicodeString& written,
                                    const std::vector<ZOLUnicodeString>& names);
};

} // namespace trellis
