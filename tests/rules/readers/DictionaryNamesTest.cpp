#include "rules/readers/DictionaryNames.h"

#include <gtest/gtest.h>

#include <set>

namespace trellis::test {
namespace {

std::string Times(int count, const std::string& text) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

TEST(DictionaryNamesTest, FortyCodePointsFitWhateverTheirOctets) {
    for (const char* letter : {"a", "ß", "車", "🚗"}) {
        DictionaryNames names;
        EXPECT_EQ(names.Allot(Times(40, letter)), Times(40, letter));
        EXPECT_EQ(names.Allot(Times(41, letter)), Times(38, letter) + "~1");
        EXPECT_EQ(names.Allot(Times(50, letter)), Times(38, letter) + "~2");
    }
}

TEST(DictionaryNamesTest, ANameThatIsTakenGetsTheNextFreeNumber) {
    DictionaryNames names;
    EXPECT_EQ(names.Allot("Car"), "Car");
    EXPECT_EQ(names.Allot("Car~1"), "Car~1");
    EXPECT_EQ(names.Allot("Car"), "Car~2");
    EXPECT_EQ(names.Allot("Car"), "Car~3");
}

TEST(DictionaryNamesTest, ThousandsOfNamesWithOneBeginningAreToldApartQuickly) {
    DictionaryNames names;
    std::set<std::string> given;
    for (int i = 0; i < 100'000; ++i) {
        const std::string name = names.Allot(Times(60, "x") + std::to_string(i));
        ASSERT_EQ(name.size(), 40u);
        given.insert(name);
    }
    EXPECT_EQ(given.size(), 100'000u);
}

} // namespace
} // namespace trellis::test
