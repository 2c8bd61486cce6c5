#include "model/LinksUnderEdit.h"

#include "model/ModelFixture.h"
#include "model/ZOLDMWVTA.h"
#include "model/ZOLGYRSdai.h"

namespace {

using namespace trellis;
using test::ModelFixture;

// The bike: BIKE holds FRAME and two WHEEL, both hold BOLT.
class LinksUnderEditTest : public ModelFixture {
protected:
    LinksUnderEditTest() : ModelFixture(Place::Memory) {
        Import("parent,child,link_name,position\nBIKE,FRAME,,10\nBIKE,WHEEL,front,20\nBIKE,WHEEL,rear,30\n"
               "FRAME,BOLT,,10\nWHEEL,BOLT,,10\nSHOP,BIKE,,10\n");
    }
    LinksUnderEdit::Links Below(const char* part) { return LinksUnderEdit::Below({Part(part)}).front(); }
    SdaiAppInstance& Link(const char* part, std::size_t n) { return *Below(part).at(n - 1); }
    std::string Line(const char* part) {
        std::string line;
        for (const SdaiAppInstance* link : Below(part))
            line += (line.empty() ? "" : " ") + Name(link->GetChild()) + (link->IsRemoved() ? "-" : "") +
                    (link->IsNew() ? "+" : "");
        return line;
    }
    void Mark(SdaiAppInstance& link, double present) {
        ZOLGYRSdai::PutHiddenAttr(&link, "present", present, error);
    }
    SdaiAppInstance* Make(const char* parent, const char* child, SdaiAppInstance* older = nullptr) {
        return LinksUnderEdit::Make(Part(parent), Part(child), "", older);
    }
    bool ClosesCircle(const char* parent, const char* child) {
        error.Clear();
        return LinksUnderEdit::ClosesCircle(Part(parent), Part(child), error);
    }
    std::vector<std::string> Walk(SdaiEntityInstance* part) {
        std::vector<std::string> names;
        for (SdaiEntityInstance* link : part->GetAggregate("ZOLASS"))
            names.push_back(Name(link->GetEntity("ref")->GetInstance()));
        return names;
    }
};

TEST_F(LinksUnderEditTest, APartOrLinkIsOneObjectHoweverItIsReached) {
    SdaiEntityInstance* wheel = LinksUnderEdit::Part(Part("WHEEL"));
    EXPECT_EQ(Link("BIKE", 2).GetEntity("ref"), wheel);
    EXPECT_EQ(Link("BIKE", 3).GetEntity("ref"), wheel);
    EXPECT_EQ(LinksUnderEdit::Link(Link("BIKE", 2).GetInstance()), &Link("BIKE", 2));
    EXPECT_EQ(ZOLGYRSdai::GetParentPart(&Link("BIKE", 2), error), LinksUnderEdit::Part(Part("BIKE")));
    EXPECT_EQ(LinksUnderEdit::Part(Link("BIKE", 2).GetInstance()), nullptr);
    EXPECT_EQ(error.GetCode(), 0);
    EXPECT_EQ(ZOLGYRSdai::GetParentPart(wheel, error), nullptr);
    EXPECT_EQ(error.GetCode(), 20904);
}

TEST_F(LinksUnderEditTest, ALinkHasMarksOnlyInTheWorkingModel) {
    SdaiAppInstance& link = Link("BIKE", 1);
    Mark(link, -1);
    EXPECT_EQ(error.GetCode(), 60241);
    EXPECT_EQ(link.FindEntityInstanceModel(), "SdaiProductModel");
    EXPECT_FALSE(link.IsRemoved());

    error.Clear();
    LinksUnderEdit::TakeUp(link);
    EXPECT_EQ(link.FindEntityInstanceModel(), "SdaiRelModel");
    Mark(link, -1);
    EXPECT_EQ(error.GetCode(), 0);
    EXPECT_EQ(Line("BIKE"), "FRAME- WHEEL WHEEL");
    EXPECT_EQ(Walk(LinksUnderEdit::Part(Part("BIKE"))), (std::vector<std::string>{"WHEEL", "WHEEL"}));
    LinksUnderEdit::PutBack(link);
    EXPECT_EQ(Line("BIKE"), "FRAME WHEEL WHEEL");
    EXPECT_EQ(link.FindEntityInstanceModel(), "SdaiProductModel");
}

TEST_F(LinksUnderEditTest, ANewLinkStandsBehindTheOneWhosePlaceItTakesElseAtTheEnd) {
    SdaiAppInstance* added = Make("BIKE", "BOLT");
    SdaiAppInstance* other = Make("BIKE", "BOLT", &Link("BIKE", 1));
    SdaiAppInstance* moved = Make("BIKE", "BOLT", &Link("FRAME", 1));
    EXPECT_EQ(Line("BIKE"), "FRAME BOLT+ WHEEL WHEEL BOLT+ BOLT+");
    EXPECT_EQ(Below("BIKE"), (LinksUnderEdit::Links{&Link("BIKE", 1), other, &Link("BIKE", 3),
                                                    &Link("BIKE", 4), added, moved}));
    LinksUnderEdit::PutBack(*added);
    EXPECT_EQ(Line("BIKE"), "FRAME BOLT+ WHEEL WHEEL BOLT+");
}

TEST_F(LinksUnderEditTest, ANewLinkHasAnIdentifierOfItsOwnAndIsNoStoredOne) {
    ZOLDMInstance first, second;
    ZOLGYRSdai::Convert(Make("BIKE", "BOLT"), first, error);
    ZOLGYRSdai::Convert(Make("BIKE", "BOLT"), second, error);
    EXPECT_EQ(ZOLGYRSdai::GetUuid(first).length(), 50u);
    EXPECT_FALSE(first == second);
    EXPECT_EQ(first.GetCoid(), 0);
    EXPECT_TRUE(LinksUnderEdit::Link(ZOLGYRSdai::GetDMInstance(first.GetUUId()))->IsNew());
    EXPECT_EQ(Stored("links"), "6");
    EXPECT_EQ(ZOLDMWVTA::Commit(1, 1, error), 0);
    EXPECT_EQ(Stored("links"), "6") << "only their own commit writes edits";
}

TEST_F(LinksUnderEditTest, ACircleIsFoundAtAnyDepthAndTold) {
    EXPECT_TRUE(ClosesCircle("BIKE", "BIKE"));
    EXPECT_TRUE(ClosesCircle("BOLT", "SHOP"));
    EXPECT_EQ(error.GetCode(), 60240);
    ZOLUnicodeString message;
    error.GetLongMsg(message);
    EXPECT_NE(message.SearchSubString("SHOP > BIKE > "), -1) << message.Bytes();
    EXPECT_FALSE(ClosesCircle("FRAME", "WHEEL")) << "a part may be reached on two ways";
    EXPECT_EQ(error.GetCode(), 0);
}

TEST_F(LinksUnderEditTest, ACircleIsLookedForInTheStructureAsTheEditsLeaveIt) {
    Make("FRAME", "WHEEL");
    EXPECT_TRUE(ClosesCircle("WHEEL", "FRAME"));
    SdaiAppInstance& shop = Link("SHOP", 1);
    LinksUnderEdit::TakeUp(shop);
    Mark(shop, -1);
    EXPECT_FALSE(ClosesCircle("BIKE", "SHOP"));
}

TEST_F(LinksUnderEditTest, WhatStandsBelowIsKnownWithoutReadingIt) {
    const std::vector<ZOLDMInstance> parts = {Part("BIKE"), Part("BOLT"), ZOLDMInstance()};
    EXPECT_EQ(LinksUnderEdit::HaveLinks(parts), (std::vector<bool>{true, false, false}));
    Make("BOLT", "WHEEL");
    EXPECT_EQ(LinksUnderEdit::HaveLinks(parts), (std::vector<bool>{true, true, false}));
}

TEST_F(LinksUnderEditTest, ANameIsThatOfTheEditUntilItIsTakenBack) {
    SdaiAppInstance& front = Link("BIKE", 2);
    LinksUnderEdit::SetName(front, "left");
    EXPECT_EQ(front.GetName(), "front") << "it is not under edit";
    LinksUnderEdit::TakeUp(front);
    LinksUnderEdit::SetName(front, "left");
    EXPECT_EQ(front.GetName(), "left");
    EXPECT_EQ(front.GetStoredName(), "front");
    LinksUnderEdit::PutBack(front);
    EXPECT_EQ(front.GetName(), "front");
}

TEST_F(LinksUnderEditTest, AnotherDatabaseKnowsNothingOfTheEdits) {
    Make("BIKE", "BOLT");
    ASSERT_TRUE(DatabaseSession::Create("sqlite::memory:", error));
    Import("parent,child\nBIKE,FRAME\n");
    EXPECT_EQ(Line("BIKE"), "FRAME");
}

} // namespace
