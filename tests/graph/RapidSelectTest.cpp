#include "graph/RapidSelect.h"
#include "service/ServiceFixture.h"

namespace trellis::test {

namespace {

std::string Split(const char* typed) {
    std::string joined;
    for (const ZOLUnicodeString& name : RapidSelect::Split(typed))
        joined += "[" + name.Bytes() + "]";
    return joined;
}

} // namespace

TEST(RapidSelectSplit, SeparatorsAreTriedInTheirOrder) {
    EXPECT_EQ(Split("a & b and c"), "[a][b][c]");
    EXPECT_EQ(Split("a and b & c"), "[a and b][c]") << "& comes first wherever it stands";
    EXPECT_EQ(Split("a and b AND c"), "[a and b][c]");
    EXPECT_EQ(Split("  Sand & Land  "), "[Sand][Land]");
    EXPECT_EQ(Split("Rain cover &"), "[Rain cover]") << "the blank behind the end counts";
    EXPECT_EQ(Split(" & "), "");
    EXPECT_EQ(Split("R&B"), "[R&B]") << "without blanks it belongs to the name";
    EXPECT_EQ(Split(""), "");
}

class RapidSelectTest : public ServiceFixture {
protected:
    RapidSelectTest() {
        for (const char* name : {"ABC", "AB", "LED", "LEDGE", "LAMP"})
            Option(category, name);
        select.ReadNames({dictionary});
    }
    std::string Find(const ZOLListValZOLUnicodeString& typed, RapidSelect::Mode mode) {
        std::string joined;
        for (const ZOLQRDCfgEffectivity& term : select.Find(typed, mode))
            joined += "[" + term.GetOptionName().Bytes() + "]";
        return joined;
    }

    ZOLIQrdConfigItem_var dictionary = Dictionary("BIKE");
    ZOLIQrdCategory_var category = Category(dictionary, "C");
    RapidSelect select;
};

TEST_F(RapidSelectTest, ABeginningThatFitsOneOptionIsEnoughInSmartMode) {
    constexpr auto Smart = RapidSelect::Mode::Smart;
    EXPECT_EQ(Find({"AB"}, Smart), "[AB]") << "in full, though ABC begins so too";
    EXPECT_EQ(Find({"A"}, Smart), "") << "fits two";
    EXPECT_EQ(Find({"LEDG"}, Smart), "[LEDGE]") << "the last of all";
    EXPECT_EQ(Find({"LA"}, Smart), "[LAMP]");
    EXPECT_EQ(Find({"nothing", "LED", "Z"}, Smart), "[LED]") << "what means nothing is passed over";
}

TEST_F(RapidSelectTest, ExactModeEndsAtTheFirstUnknownName) {
    constexpr auto Exact = RapidSelect::Mode::Exact;
    EXPECT_EQ(Find({"AB", "LED"}, Exact), "[AB][LED]");
    EXPECT_EQ(Find({"AB", "LE", "LED"}, Exact), "[AB]");
    EXPECT_EQ(Find({"ZZZ"}, Exact), "");
    EXPECT_FALSE(RapidSelect().HasNames());
    EXPECT_EQ(RapidSelect().Find({"AB"}, Exact).Size(), 0) << "without any names";
}

} // namespace trellis::test
