#include "values/ZOLUnicodeString.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

// "ä", a wide character outside the basic plane, "e" with a combining accent, plain letters, and bytes that are no
// UTF-8.
const char* const Mixed = "\xC3\xA4-\xF0\x9F\x9A\xB2-e\xCC\x81";

TEST(ZOLUnicodeStringTest, LengthsAndPositionsCountCodePoints) {
    const ZOLUnicodeString text(Mixed);
    EXPECT_EQ(text.GetLengthInChar(), 6);
    EXPECT_EQ(text.GetLengthInByte(), 11);
    EXPECT_EQ(text.SubString(2, 1), "\xF0\x9F\x9A\xB2");
    EXPECT_EQ(text.SubString(4), "e\xCC\x81");
    EXPECT_EQ(text.SearchSubString("-", 0, ZOLUnicodeString::Forward), 1);
    EXPECT_EQ(text.SearchSubString("-", 2, ZOLUnicodeString::Forward), 3);
    EXPECT_EQ(text.SearchSubString("-", -1, ZOLUnicodeString::Backward), 3);
    EXPECT_EQ(text.SearchSubString("-", 2, ZOLUnicodeString::Backward), 1);
    EXPECT_LT(text.SearchSubString("x", 0, ZOLUnicodeString::Forward), 0);
}

TEST(ZOLUnicodeStringTest, PlacesOutsideTheTextAreLeftOut) {
    const ZOLUnicodeString text("abc");
    EXPECT_EQ(text.SubString(-1, 2), "a");
    EXPECT_EQ(text.SubString(2, 9), "c");
    EXPECT_EQ(text.SubString(7, 1), "");
    EXPECT_LT(text.SearchSubString("a", 7), 0);
    EXPECT_LT(text.SearchSubString("", 0), 0);
}

TEST(ZOLUnicodeStringTest, UpperCaseFollowsUnicodeAndKeepsInvalidBytes) {
    ZOLUnicodeString text("stra\xC3\x9F"
                          "e \xFF\xC3 caf\xC3\xA9");
    text.ToUpper();
    EXPECT_EQ(text, "STRASSE \xFF\xC3 CAF\xC3\x89");
}

TEST(ZOLUnicodeStringTest, StripTakesBlanksOnly) {
    ZOLUnicodeString text("  \tname \n ");
    text.Strip();
    EXPECT_EQ(text, "\tname \n");
    ZOLUnicodeString blanks("   ");
    blanks.Strip();
    EXPECT_TRUE(blanks.IsEmpty());
}

TEST(ZOLUnicodeStringTest, ReplaceDoesNotLookAtWhatItWrote) {
    ZOLUnicodeString text("#OPT# and #OPT#");
    text.Replace("#OPT#", "#OPT##OPT#");
    EXPECT_EQ(text, "#OPT##OPT# and #OPT##OPT#");
    text.Replace(text, "");
    EXPECT_TRUE(text.IsEmpty());
}

TEST(ZOLUnicodeStringTest, NumbersAreReadFromTheBeginning) {
    int number = 7;
    EXPECT_NE(ZOLUnicodeString(" -12x").ConvertToNum(&number, "%d"), 0);
    EXPECT_EQ(number, -12);
    for (const char* text : {"", "x", "99999999999", "-"}) {
        EXPECT_EQ(ZOLUnicodeString(text).ConvertToNum(&number, "%d"), 0) << text;
        EXPECT_EQ(number, -12) << text;
    }
    EXPECT_EQ(ZOLUnicodeString::FromNumber(7, "%0.2d"), "07");
    EXPECT_EQ(ZOLUnicodeString::FromNumber(7, "%s%n"), "7");
}

RC_GTEST_PROP(ZOLUnicodeStringTest, AnyBytesSurviveBeingCutAndJoined, (const std::string& bytes)) {
    const ZOLUnicodeString text(bytes);
    const int length = text.GetLengthInChar();
    const int cut = *rc::gen::inRange(0, length + 1);
    RC_ASSERT(text.SubString(0, cut) + text.SubString(cut) == text);
    RC_ASSERT(text.SubString(0, cut).GetLengthInChar() == cut);
    ZOLUnicodeString upper = text;
    upper.ToUpper();
    ZOLUnicodeString twice = upper;
    twice.ToUpper();
    RC_ASSERT(twice == upper);
}

} // namespace
