#pragma once

#include "values/ZOLUnicodeString.h"

#include <vector>

namespace trellis {

// OptionFilterPattern: a text with "*" for anything, by which names of options and categories are filtered.
//   no "*", or empty   the value is equal
//   "*" alone          every value
//   else               the pieces between the "*" stand in the value in their order. The first stands at the
//                      begin of the value; behind a leading "*" it stands anywhere but there. The end of the
//                      value is free.
// So "a*b" fits "a1b2", and "*abc" fits "xabc" and "xabcd", but neither "abc" nor "abcd". Letters count with
// their case.
class OptionFilterPattern {
public:
    // Blanks at both ends of the text do not count.
    explicit OptionFilterPattern(ZOLUnicodeString text);

    bool Fits(const ZOLUnicodeString& value) const;

private:
    bool FitsPieces(const std::string& value) const;

    ZOLUnicodeString _text;
    bool _hasStar = false;
    bool _beginsWithStar = false;
    std::vector<std::string> _pieces; // none of them empty
};

} // namespace trellis
