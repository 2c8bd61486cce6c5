#include "toolkit/Mnemonics.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// The letters in a row, '-' for none.
std::string LettersOf(const std::vector<ZOLUnicodeString>& titles) {
    std::string letters;
    for (const char letter : trellis::Mnemonics(titles))
        letters += letter ? letter : '-';
    return letters;
}

} // namespace

TEST(MnemonicsTest, EachTitleGetsALetterOfItsOwn) {
    EXPECT_EQ(LettersOf({"Open", "Copy", "Close"}), "OCl");
    EXPECT_EQ(LettersOf({"Set configurable", "Show options"}), "So") << "beginnings of words first";
    EXPECT_EQ(LettersOf({"open", "Oo", "OO"}), "o--") << "case makes no difference";
    EXPECT_EQ(LettersOf({"aa", "ab", "bb"}), "a-b")
        << "the beginning of a later title before the middle of an earlier";
}

TEST(MnemonicsTest, OnlyAsciiLettersAndDigitsAreTaken) {
    EXPECT_EQ(LettersOf({"", "...", "3D view...", "\u00c4ndern", "\u00e9\u00e8"}), "--3n-");
    EXPECT_EQ(LettersOf({"(new)", "&Part"}), "nP");
}
