#pragma once

#include "model/ZOLDMInstance.h"

class ZOLGYRError;

namespace trellis {

// The one part that a person means by a word: number, id or name. An empty instance with 60603 (word) when there is
// none and 60604 (word, how many) when there are several.
ZOLDMInstance PartOfWord(const ZOLUnicodeString& word, ZOLGYRError& error);

} // namespace trellis
