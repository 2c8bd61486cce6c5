#pragma once

#include "model/ZOLDMInstance.h"

class ZOLGYRError;

namespace trellis {

// PartQuery: finds parts of the open database. Each fills its result anew, in the order in which the parts came in.
// Texts are compared octet by octet. On a failure the result is empty and a number set: 20901, or 60201 when no
// database is open.
class TRELLIS_API PartQuery {
public:
    static void ByNumber(const ZOLUnicodeString& number, ZOLListValZOLDMInstance& result, ZOLGYRError& error);
    // Parts whose name contains the text; an empty text finds all parts.
    static void ByNameContaining(const ZOLUnicodeString& text, ZOLListValZOLDMInstance& result,
                                 ZOLGYRError& error);
    // What a person means by a word: the part with this identifier, else all with this number, else all that were
    // imported under this id, else all of exactly this name.
    static void ByWord(const ZOLUnicodeString& word, ZOLListValZOLDMInstance& result, ZOLGYRError& error);
    // Parts that no link holds as child.
    static void Roots(ZOLListValZOLDMInstance& result, ZOLGYRError& error);
};

} // namespace trellis
