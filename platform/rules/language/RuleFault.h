#pragma once

#include "values/ZOLUnicodeString.h"

#include <vector>

namespace trellis {

// RuleFault: what is wrong with the text of a rule, and where. The numbers are those of messages whose first
// parameter is the place, counted in characters from 1.
struct RuleFault {
    static constexpr int Valid = 60750;
    static constexpr int Unexpected = 60751;      // expected, found
    static constexpr int Unclosed = 60752;        // a name without its closing mark
    static constexpr int BareName = 60753;        // the word
    static constexpr int UnknownCategory = 60754; // category, perhaps the one meant
    static constexpr int UnknownOption = 60755;   // category, option, perhaps the one meant
    static constexpr int UnknownName = 60756;     // option without category, perhaps the one meant
    static constexpr int TooDeep = 60757;         // the limit
    static constexpr int NotInPackage = 60758;    // the word
    static constexpr int Ambiguous = 60759;       // option without category, two of the categories
    static constexpr int EndsEarly = 60760;       // expected
    static constexpr int NoPartner = 60761;       // a closing bracket too many
    static constexpr int EmptyName = 60762;
    static constexpr int LoosePoint = 60763;      // the point between category and option
    static constexpr int RoundMarks = 60764;      // typographic quotation marks
    static constexpr int ForeignWord = 60765;     // what was written, what to write
    static constexpr int NotInRow = 60766;        // the word
    static constexpr int ColumnTwice = 60767;     // the category
    static constexpr int NoElse = 60768;          // the words if and not
    static constexpr int RightBehindName = 60769; // what stands there

    int number = 0;
    std::size_t offset = 0; // of the place, in octets from 0
    std::vector<ZOLUnicodeString> texts;

    // The fault in one line that a newcomer understands.
    ZOLUnicodeString Verdict(const ZOLUnicodeString& rule) const;
    // The text for a rule without fault.
    static ZOLUnicodeString ValidVerdict();
};

} // namespace trellis
