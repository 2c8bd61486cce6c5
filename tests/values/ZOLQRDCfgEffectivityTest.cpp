#include "values/ZOLQRDCfgEffectivity.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <unordered_set>
#include <vector>

namespace {

using Type = ZOLQRDCfgEffectivityType;

const char* const AllTypes[] = {
    "date", "range",     "option",     "option_date", "option_range", "option_undef",
    "pack", "pack_date", "pack_range", "pack_undef",  "modification", "personal",
    "none", "",          "OPTION"};

ZOLQRDTime Day(int number) {
    return number == 0 ? ZOLQRDTime() : ZOLQRDTime(ZOLTime(std::int64_t{number} * 86400));
}

// Terms of few values, so that equal ones are met often.
rc::Gen<ZOLQRDCfgEffectivity> AnyTerm() {
    return rc::gen::exec([] {
        const ZOLUnicodeString type =
            *rc::gen::elementOf(std::vector<const char*>(std::begin(AllTypes), std::end(AllTypes)));
        const ZOLUnicodeString name = *rc::gen::element("A", "B");
        const int first = *rc::gen::inRange(0, 2);
        const int last = *rc::gen::inRange(-1, 2);
        const ZOLQRDTime start = Day(*rc::gen::inRange(0, 2));
        ZOLQRDCfgEffectivity term(type, name, first, last, start, Day(*rc::gen::inRange(0, 2)),
                                  *rc::gen::element("", "CATEGORY"), *rc::gen::element("", "text"),
                                  *rc::gen::inRange(0, 2));
        term.SetRejected(*rc::gen::inRange(0, 2));
        term.SetMilestoneStart(*rc::gen::element("", "PROGRAM"), "ID", 1);
        return term;
    });
}

TEST(ZOLQRDCfgEffectivity, EqualityIsTransitiveAndHashesAgree) {
    EXPECT_TRUE(rc::check([] {
        const ZOLQRDCfgEffectivity a = *AnyTerm(), b = *AnyTerm(), c = *AnyTerm();
        RC_ASSERT(a == ZOLQRDCfgEffectivity(a));
        RC_ASSERT((a == b) == (b == a));
        if (a == b) {
            RC_ASSERT(std::hash<ZOLQRDCfgEffectivity>{}(a) == std::hash<ZOLQRDCfgEffectivity>{}(b));
            RC_ASSERT((b == c) == (a == c));
        }
    }));
}

TEST(ZOLQRDCfgEffectivity, TermsFromDifferentSourcesMeetByWhatTheyMean) {
    const ZOLQRDTime open;
    using Term = ZOLQRDCfgEffectivity;
    const ZOLListValZOLUnicodeString ab{"A", "B"};
    const ZOLListValZOLUnicodeString ba{"B", "A"};
    const struct {
        const char* name;
        Term a, b;
        bool equal;
    } cases[] = {
        {"an option of a link has no category and another suffix", Term("A", "C"),
         Term("option_date", "A", 0, 0, Day(1), Day(9)), true},
        {"options of other names", Term("A", "C"), Term("B", "C"), false},
        {"an option is no modification", Term("A", ""), Term("modification", "A", 0, 0, open, open), false},
        {"a promoted modification", Term("personal", "A", 0, 0, open, open),
         Term("modification", "A", 0, 0, open, open), true},
        {"two words for a package without limit", Term("pack", ab, 0, 0, open, open),
         Term("pack_undef", ab, 0, 0, open, open), true},
        {"the order of a package", Term("pack", ab, 0, 0, open, open), Term("pack", ba, 0, 0, open, open),
         false},
        {"the limits of a package", Term("pack_range", ab, 1, 5, open, open),
         Term("pack_range", ab, 1, 0, open, open), false},
        {"open ends", Term("range", "", 1, -1, open, open), Term("range", "", 1, 0, open, open), true},
        {"ranges", Term("range", "", 1, 5, open, open), Term("range", "", 1, 6, open, open), false},
        {"a date is no range", Term("date", "", 0, 0, open, open), Term("range", "", 0, 0, open, open),
         false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.a == c.b, c.equal) << c.name;
}

TEST(ZOLQRDCfgEffectivityType, GettingAnOptionOrAPackageKeepsTheLimit) {
    EXPECT_EQ(Type::WithOption("range"), "option_range");
    EXPECT_EQ(Type::WithOption("date"), "option_date");
    for (const char* other : {"", "none", "option", "option_date", "pack_range", "Range"})
        EXPECT_EQ(Type::WithOption(other), "option_undef") << other;
    EXPECT_EQ(Type::WithPack("range"), "pack_range");
    EXPECT_EQ(Type::WithPack(""), "pack_undef");
}

TEST(ZOLQRDCfgEffectivityType, KnowsEightOptionAndPackKindsByTheExactWord) {
    int optionKinds = 0;
    int packKinds = 0;
    for (const char* type : AllTypes) {
        optionKinds += Type::IsOptionKind(type);
        packKinds += Type::IsPackKind(type);
    }
    EXPECT_EQ(optionKinds, 4);
    EXPECT_EQ(packKinds, 4);
    EXPECT_TRUE(Type::HasDates("pack_date") && Type::HasDates("date") && !Type::HasDates("option"));
    EXPECT_TRUE(Type::HasNumbers("option_range") && !Type::HasNumbers("date"));
}

TEST(ZOLQRDCfgEffectivity, IsSelectedUntilItIsRejectedUndefinedOrIgnored) {
    ZOLQRDCfgEffectivity term("A", "C");
    EXPECT_TRUE(term.IsSelected() && term.IsUsed());
    term.SetRuleDefined();
    EXPECT_TRUE(term.IsSelected());
    for (const auto set : {&ZOLQRDCfgEffectivity::SetRejected, &ZOLQRDCfgEffectivity::SetUndefined,
                           &ZOLQRDCfgEffectivity::SetIgnored}) {
        (term.*set)(1);
        EXPECT_FALSE(term.IsSelected());
        (term.*set)(0);
    }
    EXPECT_TRUE(term.IsSelected());
}

TEST(ZOLQRDCfgEffectivity, TheFlatRecordKeepsAnOpenBoundApartFromTheFirstDay) {
    ZOLQRDCfgEffectivity term("pack_date", ZOLListValZOLUnicodeString{"A", "B"}, 0, 0, Day(0), ZOLQRDTime());
    term.SetDate(ZOLQRDTime(ZOLTime(0)), ZOLQRDTime());
    term.SetMilestoneStart("PROGRAM", "GATE", 1);
    EffParam flat = term.GetEffParam();
    EXPECT_EQ(flat.version, 1u);
    EXPECT_STREQ(flat.type, "pack_date");
    ASSERT_EQ(flat.optionCount, 2);
    EXPECT_STREQ(flat.options[1], "B");
    EXPECT_EQ(flat.start, 1);
    EXPECT_EQ(flat.end, 0);
    EXPECT_STREQ(flat.startMilestone.id, "GATE");
    EXPECT_EQ(flat.startMilestone.offset, 1);
    EXPECT_STREQ(flat.endMilestone.program, "");
    EffParamFree(&flat);
    EXPECT_EQ(flat.options, nullptr);
    EffParamFree(&flat);
    EffParamFree(nullptr);
}

TEST(ZOLQRDCfgEffectivity, ValuesTellTheNameAloneOrWithItsLimits) {
    const ZOLQRDTime open;
    CORBAAny any;
    ZOLUnicodeString text;
    _SEQUENCE_CORBAAny values;

    ZOLQRDCfgEffectivity("A", "C").GetValues(any);
    ASSERT_TRUE(any >>= text);
    EXPECT_EQ(text, "A");

    ZOLQRDCfgEffectivity term("A", "C");
    term.SetDate(Day(1), open);
    EXPECT_EQ(term.GetType(), "option_undef");
    term.GetValues(any);
    ASSERT_TRUE(any >>= values);
    ASSERT_EQ(values.length(), 3u);
    ZOLTimeValue time;
    ASSERT_TRUE(values[1] >>= time);
    EXPECT_EQ(time.seconds, 86400);

    ZOLQRDCfgEffectivity("range", "", 3, 0, open, open).GetValues(any);
    ASSERT_TRUE(any >>= values);
    int first = 0;
    ASSERT_TRUE(values[0] >>= first);
    EXPECT_EQ(first, 3);

    ZOLQRDCfgEffectivity("pack", ZOLListValZOLUnicodeString{"A", "B"}, 0, 0, open, open).GetValues(any);
    ASSERT_TRUE(any >>= values);
    ASSERT_TRUE(values[1] >>= text);
    EXPECT_EQ(text, "B");
}

} // namespace
