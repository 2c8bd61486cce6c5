#include "widgets/AssemblyOptions.h"

#include "widgets/EffectivityOnLinks.h"

namespace trellis::test {

namespace {

class AssemblyOptionsTest : public EffectivityOnLinks {
protected:
    std::string Used(const char* part, int rawCoid) {
        ZOLListValZOLQRDCfgEffectivity used;
        AssemblyOptions::GetOneLevelUsedOption({Part(part)}, used, rawCoid, error);
        std::string text;
        for (const ZOLQRDCfgEffectivity& term : used)
            text +=
                term.GetType().Bytes() + ":" + term.GetName().Bytes() + (term.IsUsed() ? " " : "(unused) ");
        return text;
    }
};

} // namespace

TEST_F(AssemblyOptionsTest, AreThoseOfAllLevelsWithPackagesSplitFromTheEnd) {
    Put({"option_range", "RED", 3, 9, {}, {}}, "BIKE", "FRAME");
    Put({"pack_undef", ZOLListValZOLUnicodeString{"A", "B"}, 0, 0, {}, {}}, "FRAME", "TUBE");
    Put({"option", "DEEP", 0, 0, {}, {}}, "TUBE", "BOLT");
    Put({"date", "", 0, 0, {}, {}}, "TUBE", "BOLT");
    for (const int rawCoid : {0, 1}) {
        EXPECT_EQ(Used("BIKE", rawCoid), "option_range:RED(unused) option:B option:A option:DEEP(unused) ");
        EXPECT_EQ(Used("TUBE", rawCoid), "option:DEEP(unused) ");
        EXPECT_EQ(Used("BOLT", rawCoid), "");
    }
    EXPECT_EQ(TakeCode(), 0);
}

TEST_F(AssemblyOptionsTest, OfAStructureThatContainsItselfEnd) {
    Put({"option", "RED", 0, 0, {}, {}}, "BIKE", "FRAME");
    StoredDatabase(path).Run("UPDATE link SET child_id = (SELECT id FROM part WHERE number = 'BIKE') "
                             "WHERE parent_id = (SELECT id FROM part WHERE number = 'TUBE')");
    Reopen();
    for (const int rawCoid : {0, 1})
        EXPECT_EQ(Used("BIKE", rawCoid), "option:RED(unused) ");
}

TEST_F(AssemblyOptionsTest, TellWhyTheyCannotBeRead) {
    const ZOLListValZOLDMInstance parts{Part("BIKE")};
    DatabaseSession::Close();
    ZOLListValZOLQRDCfgEffectivity used;
    AssemblyOptions::GetOneLevelUsedOption(parts, used, 1, error);
    EXPECT_EQ(TakeCode(), 60201);
    EXPECT_EQ(used.Size(), 0);
}

} // namespace trellis::test
