#include "widgets/OptionTerms.h"

#include <gtest/gtest.h>

namespace trellis {

namespace {

std::string Text(const ZOLListValZOLQRDCfgEffectivity& terms) {
    std::string text;
    for (const ZOLQRDCfgEffectivity& term : terms)
        text += term.GetName().Bytes() + "." + term.GetCategory().Bytes() + " ";
    return text;
}

} // namespace

TEST(OptionTerms, AppendOnlyWhatDiffersInSomething) {
    ZOLListValZOLQRDCfgEffectivity to{{"RED", "COLOUR"}};
    ZOLQRDCfgEffectivity described("RED", "COLOUR");
    described.SetDescription("Signal red");
    ZOLQRDCfgEffectivity unused("RED", "COLOUR");
    unused.UnsetUsed();
    const ZOLQRDCfgEffectivity limited("option_undef", "RED", 3, 0, {}, {}, "COLOUR", "", 1);
    OptionTerms::AppendMissing(
        {{"RED", "COLOUR"}, described, unused, limited, {"RED", "LAMP"}, {"RED", "LAMP"}}, to);
    EXPECT_EQ(Text(to), "RED.COLOUR RED.COLOUR RED.COLOUR RED.COLOUR RED.LAMP ");
    OptionTerms::AppendMissing(to, to);
    EXPECT_EQ(to.Size(), 5);
}

TEST(OptionTerms, EachEqualTermIsTakenOnceAndTheFirstOneFirst) {
    ZOLListValZOLQRDCfgEffectivity available{{"A", "1"}, {"B", "1"}, {"A", "2"}, {"C", "1"}};
    EXPECT_EQ(Text(OptionTerms::TakeEqual({{"A", ""}, {"X", "9"}, {"A", ""}, {"A", "7"}}, available)),
              "A.1 X.9 A.2 A.7 ");
    EXPECT_EQ(Text(available), "B.1 C.1 ");
}

} // namespace trellis
