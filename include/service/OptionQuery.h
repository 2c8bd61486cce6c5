#pragma once

#include "service/ZOLIQrdConfigItem.h"
#include "values/ZOLParameter.h"

#include <optional>

namespace trellis {

// OptionQuery: the option of a dictionary that a person means by a word.
class TRELLIS_API OptionQuery {
public:
    // The option as chosen, with the descriptions and the exclusivity of its category. The word is its name,
    // CATEGORY.OPTION, or a reference as rules have it; a name that fits as it stands comes first. Nothing, and 60749
    // with the word and perhaps the name that was meant, when there is none.
    static std::optional<ZOLParameter> ByWord(const ZOLIQrdConfigItem_var& dictionary,
                                              const ZOLUnicodeString& word, ZOLGYRError& error);
};

} // namespace trellis
