#pragma once

#include "model/ZOLDMInstance.h"
#include "service/ZOLIQrdConfigItem.h"

namespace trellis {

// ProductDictionary: the dictionary that a person means by a word, and the part that it belongs to.
struct ProductDictionary {
    ZOLDMInstance part; // stands for nothing with the corporate dictionary
    ZOLIQrdConfigItem_var dictionary;

    // The word is number, id or name of a part, or "corporate". Without dictionary, and with 60603, 60604, 20265, or
    // 60630 (word) where the part has none yet.
    static ProductDictionary OfWord(const ZOLUnicodeString& word, ZOLGYRError& error);
};

} // namespace trellis
