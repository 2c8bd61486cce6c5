#include "model/ModelFixture.h"
#include "model/ZOLDMClipboard.h"
#include "model/ZOLDMWVTA.h"
#include "site/RightTable.h"
#include "site/SiteAdministration.h"
#include "site/ZOLIQrdSCManager.h"

#include <unordered_set>

namespace trellis::test {
namespace {

constexpr std::string_view bike =
    "record,id,number,revision,name,site,attribute:MASS,parent,child,link_id,link_name,position\n"
    "part,bike,4711,B,Cargo bike,LYON,31,,,,,\n"
    "part,frame,100,,Frame,,,,,,,\n"
    "part,wheel,200,,Wheel,PARIS,,,,,,\n"
    "part,spoke,spoke,,,,,,,,,\n"
    "link,,,,,,,bike,wheel,front,Front wheel,2\n"
    "link,,,,,,,bike,frame,f,,1\n"
    "link,,,,,,,bike,wheel,rear,,3\n"
    "link,,,,,,,wheel,spoke,s,,\n"
    "link,,,,,,,frame,wheel,spare,,\n";

class ZOLDMInstanceTest : public ModelFixture {
protected:
    ZOLDMInstanceTest() { EXPECT_TRUE(Import(bike)) << error.GetCode(); }

    // The same object as the other forms name it.
    static ZOLDMInstance ByOctets(const ZOLDMInstance& instance) {
        return ZOLDMInstance(instance.GetUUId(), 0, 0, 0);
    }
    static ZOLDMInstance ByPlace(const ZOLDMInstance& instance, const char* context) {
        return ZOLDMInstance(instance.GetDbname(), instance.GetLeadingString(), context, instance.GetXCoid(),
                             instance.GetClientIdent());
    }
};

TEST_F(ZOLDMInstanceTest, AnEmptyInstanceIsLegalEverywhere) {
    ZOLDMInstance none;
    ZOLListValZOLDMInstance list{none};
    ZOLListValZOLUnicodeString values;
    ZOLUnicodeString site("x");
    none.GetFather(0, "ZOLASS", {}, list);
    EXPECT_EQ(list.Size(), 0);
    none.GetAttributes({"S_PART_NUMBER"}, values);
    EXPECT_EQ(values[1], "");
    EXPECT_EQ(none.GetCoid(), 0);
    EXPECT_EQ(none.GetUUId().length(), 0u);
    EXPECT_EQ(none.GetObjID().text[0], '\0');
    EXPECT_EQ(Name(none), "");
    EXPECT_EQ(none.GetSiteResponsible(site), 20904);
    EXPECT_EQ(none.Delete(1, 1, 1, 1, 1), 20904);
    EXPECT_EQ(none.GetPart(), none);
    EXPECT_EQ(none, ZOLDMInstance());
    EXPECT_EQ(Children(none), "");
}

TEST_F(ZOLDMInstanceTest, EachWayToNameAnObjectGivesTheSameOne) {
    const ZOLDMInstance part = Part("4711");
    const ZOLDMInstance link = Links(part)[2];
    Reopen();
    std::unordered_set<ZOLDMInstance> different;
    const ZOLDMInstance parts[] = {part, ByOctets(part), ByPlace(part, "PART_LIST"), Part("bike"),
                                   ZOLDMInstance("", part.GetLeadingString(), "PART_LIST", part.GetXCoid())};
    for (const ZOLDMInstance& same : parts) {
        EXPECT_EQ(same, part);
        EXPECT_EQ(Name(same), "4711 B Cargo bike");
        EXPECT_GT(same.GetCoid(), 0);
        different.insert(same);
    }
    for (const ZOLDMInstance& same : {link, ByOctets(link), ByPlace(link, "$EXT")}) {
        EXPECT_EQ(same, link);
        EXPECT_EQ(Name(same), "4711 B Cargo bike / 200 Wheel");
        EXPECT_EQ(same.GetClientIdent(), "front");
        different.insert(same);
    }
    EXPECT_EQ(different.size(), 2u);
}

TEST_F(ZOLDMInstanceTest, AnInstanceThatNamesNothingKnownKeepsWhatItWasMadeOf) {
    const ZOLUnicodeString here = Part("4711").GetLeadingString();
    for (const ZOLDMInstance& unknown :
         {ZOLDMInstance("", "elsewher", "PART_LIST", "1"), ZOLDMInstance("other", here, "PART_LIST", "1"),
          ZOLDMInstance("", here, "PART_LIST", "12x"), ZOLDMInstance("", here, "$EXT", "1", "none")}) {
        EXPECT_EQ(unknown.GetCoid(), 0);
        EXPECT_EQ(Name(unknown), unknown.GetXCoid().Bytes());
        EXPECT_EQ(unknown.GetUUId().length(), 0u);
    }
    EXPECT_EQ(ZOLDMInstance("", "a", "PART_LIST", "1"), ZOLDMInstance("", "a", "PART_LIST", "1"));
    EXPECT_FALSE(ZOLDMInstance("", "a", "PART_LIST", "1") == ZOLDMInstance("", "a", "PART_LIST", "2"));
    const ZOLDMInstance octets(_SEQUENCE_octet("abc"), 0, 0, 0);
    EXPECT_EQ(octets.GetUUId().Text(), "abc");
    EXPECT_EQ(Name(octets), "abc");
}

TEST_F(ZOLDMInstanceTest, AnInstanceFindsItsPartOnceThatComesIn) {
    const ZOLDMInstance part = Part("4711");
    const ZOLDMInstance early = ByOctets(part);
    DatabaseSession::Close();
    EXPECT_EQ(early.GetCoid(), 0);
    ASSERT_TRUE(DatabaseSession::Create("sqlite::memory:", error));
    EXPECT_EQ(early.GetCoid(), 0);
    ASSERT_TRUE(Import(bike));
    EXPECT_GT(early.GetCoid(), 0);
    EXPECT_EQ(early, part);
}

TEST_F(ZOLDMInstanceTest, LinksComeInOrderOfPositionAndPartsOnce) {
    const ZOLDMInstance part = Part("4711");
    const ZOLListValZOLDMInstance links = Links(part);
    ASSERT_EQ(links.Size(), 3);
    EXPECT_EQ(links[1].GetClientIdent(), "f");
    EXPECT_EQ(links[3].GetClientIdent(), "rear");
    EXPECT_EQ(links[3].GetPart(), part);
    EXPECT_EQ(links[3].GetChildPart(1), Part("wheel"));
    EXPECT_EQ(Children(part), "100 Frame, 200 Wheel");

    ZOLListValZOLDMInstance level;
    ZOLDMInstance::GetChildrenOfLevel({Part("wheel"), Part("frame"), part}, level);
    EXPECT_EQ(Names(level), "200 Wheel / spoke, 100 Frame / 200 Wheel, 4711 B Cargo bike / 100 Frame, "
                            "4711 B Cargo bike / 200 Wheel, 4711 B Cargo bike / 200 Wheel");
    ZOLListValZOLDMInstance others{part};
    part.GetChildren(0, "ZOLOTHER", others, 1);
    EXPECT_EQ(others.Size(), 0);
}

TEST_F(ZOLDMInstanceTest, UsesCanBeLimitedToAssemblies) {
    const ZOLDMInstance wheel = Part("wheel");
    ZOLListValZOLDMInstance uses;
    wheel.GetFather(0, "ZOLASS", {}, uses);
    EXPECT_EQ(uses.Size(), 3);
    wheel.GetFather(0, "ZOLASS", {Part("frame").GetUUId().Text(), "nonsense"}, uses);
    ASSERT_EQ(uses.Size(), 1);
    EXPECT_EQ(uses[1].GetClientIdent(), "spare");
}

TEST_F(ZOLDMInstanceTest, AttributesComeByNameAndMissingOnesAreEmpty) {
    ZOLListValZOLUnicodeString values{"old"};
    Part("bike").GetAttributes({"MASS", "S_PART_NUMBER", "COLOR", "S_PART_NAME"}, values);
    ASSERT_EQ(values.Size(), 4);
    EXPECT_EQ(values[1], "31");
    EXPECT_EQ(values[2], "4711");
    EXPECT_EQ(values[3], "");
    EXPECT_EQ(values[4], "Cargo bike");
}

TEST_F(ZOLDMInstanceTest, ADeletedLinkIsPendingUntilCommitAndComesBackByRollBack) {
    ZOLDMInstance link = Links(Part("bike"))[2];
    const ZOLDMInstance copy = link;
    EXPECT_EQ(link.Delete(1, 1, 1, 1, 1), 0);
    EXPECT_EQ(Links(Part("bike")).Size(), 2);
    EXPECT_EQ(copy.GetCoid(), 0);
    EXPECT_EQ(Name(copy), "4711 B Cargo bike / 200 Wheel");
    ASSERT_EQ(DatabaseSession::UnsavedChanges().size(), 1u);
    EXPECT_EQ(DatabaseSession::UnsavedChanges()[0].object, "Front wheel");
    EXPECT_EQ(link.Delete(1, 1, 1, 1, 1), 60301);

    ZOLDMWVTA::RollBack(1);
    EXPECT_EQ(Links(Part("bike")).Size(), 3);
    EXPECT_GT(copy.GetCoid(), 0);

    EXPECT_EQ(link.Delete(1, 1, 1, 1, 1), 0);
    EXPECT_EQ(ZOLDMWVTA::Commit(1, 1), 0);
    EXPECT_EQ(copy.GetCoid(), 0);
    EXPECT_EQ(copy, link);
    Reopen();
    EXPECT_EQ(Links(Part("bike")).Size(), 2);
    EXPECT_EQ(Part("bike").Delete(1, 1, 1, 1, 1), 60200);
}

TEST_F(ZOLDMInstanceTest, RightsAreThoseOfTheSiteThatAnswersForThePart) {
    ASSERT_TRUE(SiteAdministration::AddSite("PARIS", error));
    ASSERT_TRUE(SiteAdministration::SetRight({"Set", "", "", "PARIS", false}, error)) << error.GetCode();
    ASSERT_TRUE(SiteAdministration::Save(error));
    const int refused = Part("wheel").GetFunctionRight("QRD", "CFG", "Set", 1);
    EXPECT_EQ(refused, RightTable::Find("Set")->refusal);
    EXPECT_LE(Part("bike").GetFunctionRight("QRD", "CFG", "Set", 1), 0);
    EXPECT_LE(Part("wheel").GetFunctionRight("OTHER", "CFG", "Set", 1), 0);
    EXPECT_EQ(Links(Part("bike"))[2].GetFunctionRight("QRD", "CFG", "Set", 1), 0);
    ZOLUnicodeString site;
    EXPECT_EQ(Part("wheel").GetSiteResponsible(site), 0);
    EXPECT_EQ(site, "PARIS");
}

TEST_F(ZOLDMInstanceTest, TheClipboardKeepsOrderAndEmptiesWithTheDatabase) {
    ZOLDMClipboard::SetObjects({Part("wheel"), Part("bike")});
    EXPECT_EQ(ZOLDMClipboard::GetNbObject(), 2);
    EXPECT_EQ(ZOLDMClipboard::GetObject(1), Part("wheel"));
    Reopen();
    EXPECT_EQ(ZOLDMClipboard::GetNbObject(), 0);
}

TEST_F(ZOLDMInstanceTest, PartsAreFoundByNumberNamePieceAndAsRoots) {
    ZOLListValZOLDMInstance found;
    PartQuery::ByNumber("100", found, error);
    EXPECT_EQ(Names(found), "100 Frame");
    PartQuery::ByNameContaining("e", found, error);
    EXPECT_EQ(Names(found), "4711 B Cargo bike, 100 Frame, 200 Wheel, spoke");
    PartQuery::Roots(found, error);
    EXPECT_EQ(Names(found), "4711 B Cargo bike");
    ZOLDMInstance link = Links(Part("wheel"))[1];
    link.Delete(1, 1, 1, 1, 1);
    PartQuery::Roots(found, error);
    EXPECT_EQ(Names(found), "4711 B Cargo bike, spoke");
    EXPECT_EQ(Name(Part("Wheel")), "200 Wheel");
    DatabaseSession::Close();
    PartQuery::Roots(found, error);
    EXPECT_EQ(error.GetCode(), 60201);
    EXPECT_EQ(found.Size(), 0);
}

} // namespace
} // namespace trellis::test
