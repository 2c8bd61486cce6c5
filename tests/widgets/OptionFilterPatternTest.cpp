#include "widgets/OptionFilterPattern.h"

#include <gtest/gtest.h>

namespace trellis {

TEST(OptionFilterPattern, FitsByItsPiecesFromLeftToRight) {
    const struct {
        const char* pattern;
        const char* value;
        bool fits;
        const char* why;
    } cases[] = {
        {"abc", "abc", true, "equal"},
        {"abc", "ABC", false, "case counts"},
        {"abc", "abcd", false, "no star"},
        {"", "", true, "empty is equality, too"},
        {"", "abc", false, "empty shows empty names alone"},
        {"   ", "", true, "blanks at the ends do not count"},
        {"  abc ", "abc", true, "blanks at the ends do not count"},
        {" *", "abc", true, "blanks before a star"},
        {"*", "abc", true, "everything"},
        {"*", "", true, "everything"},
        {"***", "abc", true, "everything"},
        {"abc*", "abcd", true, "begins with it"},
        {"abc*", "abc", true, "nothing behind it"},
        {"abc*", "xabc", false, "must begin with it"},
        {"*abc", "xabc", true, "in it"},
        {"*abc", "xabcd", true, "the end is free"},
        {"*abc", "abc", false, "not at the begin"},
        {"*abc", "abcd", false, "not at the begin"},
        {"*abc", "abcabc", false, "the first place counts"},
        {"*abc*", "xabcx", true, "in it"},
        {"*abc*", "abc", false, "not at the begin"},
        {"a*b", "ab", true, "nothing between"},
        {"a*b", "a1b", true, "something between"},
        {"a*b", "a1b2", true, "the end is free"},
        {"a*b", "a1", false, "a piece is missing"},
        {"ab*b", "ab", false, "pieces do not overlap"},
        {"a**b", "a1b", true, "stars side by side"},
        {"a*b*c", "acb", false, "order counts"},
        {"*ü", "aü", true, "any letters"},
        {"a.c*", "abc", false, "a point is a point"},
    };
    for (const auto& [pattern, value, fits, why] : cases)
        EXPECT_EQ(OptionFilterPattern(pattern).Fits(value), fits)
            << pattern << " on " << value << ": " << why;
}

} // namespace trellis
