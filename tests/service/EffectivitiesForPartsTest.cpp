#include "model/InstanceAccess.h"
#include "model/ZOLDMWVTA.h"
#include "service/ServiceFixture.h"
#include "service/ZOLQRDCfgDbManager.h"
#include "store/Workspace.h"

#include <algorithm>

namespace trellis::test {

namespace {

// BIKE holds FRAME and two WHEEL; FRAME holds nothing yet.
class EffectivitiesForParts : public ServiceFixture {
protected:
    EffectivitiesForParts() {
        Manager().SetConfigurable(Part("BIKE"), error);
        item = Object("BIKE").GetConfigItem();
    }

    ZOLListValZOLDMInstance LinksBelow(const char* part) {
        ZOLListValZOLDMInstance links;
        ZOLDMInstance::GetChildrenOfLevel({Part(part)}, links);
        return links;
    }
    RecordOf<EffectivityRow> Stored(const ZOLQRDCfgEffectivity& term) {
        item->AddEffectivity(term, error);
        const auto all = Workspace::Current()->Find(StoreQuery<EffectivityRow>(), error);
        return all.back();
    }
    static void Put(const RecordOf<EffectivityRow>& effectivity, const ZOLDMInstance& link) {
        LinkEffectivityRow hold;
        hold.link = link.GetCoid();
        hold.effectivity = effectivity->Id();
        Workspace::Current()->Create(hold);
    }
    // Type and name or options of each, sorted.
    std::string Found(const ZOLListValZOLDMInstance& parts, int kinds = 520) {
        ZOLListPtr<ZOLQRDCfgDbEffectivity> effectivities;
        ZOLQRDCfgDbManager::GetEffectivitiesForParts(parts, effectivities, error, kinds);
        std::vector<std::string> lines;
        for (const ZOLQRDCfgDbEffectivity* each : effectivities) {
            const ZOLQRDCfgEffectivity& term = *each;
            ZOLListValZOLUnicodeString options;
            term.GetOptList(options);
            std::string line = each->GetType().Bytes() + ":" + term.GetName().Bytes();
            for (const ZOLUnicodeString& option : options)
                line += option.Bytes() + "+";
            lines.push_back(line);
        }
        ZOLDeleteElements(effectivities);
        std::sort(lines.begin(), lines.end());
        std::string text;
        for (const std::string& line : lines)
            text += line + " ";
        return text;
    }
    // How many statements a level takes in a process that knows nothing of it yet.
    int StatementsFor(const char* part) {
        Reopen();
        const ZOLListValZOLDMInstance parts = {Part(part)};
        parts[1].GetCoid();
        for (int n = 1;; ++n) {
            Workspace::Current()->Session().FailStatement(n);
            const bool isFound = !Found(parts).empty();
            Workspace::Current()->Session().FailStatement(0);
            if (isFound)
                return n;
            EXPECT_EQ(TakeCode(), 20903);
        }
    }

    ZOLIQrdConfigItem_var item;
};

} // namespace

TEST_F(EffectivitiesForParts, OptionsAndPackagesOfTheLinksRightBelowComeOnceEach) {
    const auto red = Stored({"option", "RED", 0, 0, {}, {}});
    const auto blue = Stored({"option_range", "BLUE", 5, 9, {}, {}});
    const auto pack = Stored({"pack_undef", ZOLListValZOLUnicodeString{"C", "A", "B"}, 0, 0, {}, {}});
    const auto range = Stored({"range", "", 1, 0, {}, {}});
    const ZOLListValZOLDMInstance links = LinksBelow("BIKE");
    for (const ZOLDMInstance& link : links)
        Put(red, link);
    Put(blue, links[2]);
    Put(pack, links[3]);
    Put(range, links[1]);

    const char* all = "option:RED option_range:BLUE pack_undef:C+A+B+ ";
    EXPECT_EQ(Found({Part("BIKE")}), all) << "while nothing is saved";
    ASSERT_EQ(Save(), 0);
    Reopen();
    EXPECT_EQ(Found({Part("BIKE"), Part("WHEEL")}), all);
    EXPECT_EQ(Found({Part("BIKE")}, ZOLQRDCfgDbManager::PackKinds), "pack_undef:C+A+B+ ");
    EXPECT_EQ(Found({Part("BIKE")}, ZOLQRDCfgDbManager::OptionKinds), "option:RED option_range:BLUE ");
    EXPECT_EQ(Found({Part("FRAME")}), "");
    EXPECT_EQ(Found({}), "");
    EXPECT_EQ(TakeCode(), 0);
}

TEST_F(EffectivitiesForParts, WhatLayOnALinkThatIsRemovedIsNotFound) {
    const ZOLListValZOLDMInstance links = LinksBelow("BIKE");
    Put(Stored({"option", "RED", 0, 0, {}, {}}), links[1]);
    Put(Stored({"option", "BLUE", 0, 0, {}, {}}), links[2]);
    ASSERT_EQ(Save(), 0);
    ZOLDMInstance first = links[1];
    ASSERT_EQ(first.Delete(1, 1, 1, 1, 1), 0);
    EXPECT_EQ(Found({Part("BIKE")}), "option:BLUE ");
    ZOLDMWVTA::RollBack(1);
    EXPECT_EQ(Found({Part("BIKE")}), "option:BLUE option:RED ");
}

TEST_F(EffectivitiesForParts, TheNumberOfStatementsDoesNotGrowWithLinksAndEffectivities) {
    std::string structure = "parent,child\n";
    for (int i = 0; i < 40; ++i)
        structure += "CART,PART" + std::to_string(i) + "\n";
    ImportReport report;
    ASSERT_TRUE(StructureImport::ReadText(structure, StructureImport::Form::Csv, "cart", report, error));
    Put(Stored({"pack", ZOLListValZOLUnicodeString{"A", "B"}, 0, 0, {}, {}}), LinksBelow("BIKE")[1]);
    for (const ZOLDMInstance& link : LinksBelow("CART"))
        Put(Stored({"pack", ZOLListValZOLUnicodeString{"C", "D"}, 0, 0, {}, {}}), link);
    ASSERT_EQ(Save(), 0);
    EXPECT_EQ(StatementsFor("CART"), StatementsFor("BIKE"));
}

TEST_F(EffectivitiesForParts, WithoutADatabaseTheListIsEmptyAndTheReasonTold) {
    const ZOLListValZOLDMInstance parts = {Part("BIKE")};
    DatabaseSession::Close();
    EXPECT_EQ(Found(parts), "");
    EXPECT_EQ(TakeCode(), 60201);
}

} // namespace trellis::test
