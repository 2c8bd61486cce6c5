#include "service/ZOLQRDCfgModification.h"

#include "model/LinksUnderEdit.h"
#include "model/ZOLGYRSdai.h"
#include "service/ServiceFixture.h"

namespace {

using namespace trellis;

// BIKE holds FRAME and two WHEEL.
class ZOLQRDCfgModificationTest : public test::ServiceFixture {
protected:
    LinksUnderEdit::Links Below(const char* part) { return LinksUnderEdit::Below({Part(part)}).front(); }
    SdaiAppInstance* Edited(SdaiAppInstance* link, double present) {
        LinksUnderEdit::TakeUp(*link);
        ZOLGYRSdai::PutHiddenAttr(link, "present", present, error);
        return link;
    }
};

TEST_F(ZOLQRDCfgModificationTest, EachKindIsToldToPeopleInOneLine) {
    SdaiAppInstance* frame = Below("BIKE")[0];
    SdaiAppInstance* wheel = Below("BIKE")[1];
    SdaiAppInstance* moved = LinksUnderEdit::Make(Part("FRAME"), Part("WHEEL"), "", wheel);
    SdaiAppInstance* other = LinksUnderEdit::Make(Part("BIKE"), Part("FRAME"), "", wheel);
    LinksUnderEdit::TakeUp(*frame);
    LinksUnderEdit::SetName(*frame, "main");
    ZOLQRDCfgModification record;
    record.Append(AddLink, moved, nullptr, 1, "");
    record.Append(RemoveLink, wheel, nullptr, 2, "");
    record.Append(MoveLink, moved, wheel, 3, "");
    record.Append(ReplaceLink, other, wheel, 4, "7");
    record.Append(RenameLink, frame, nullptr, 5, "");
    const char* lines[] = {"WHEEL added to FRAME", "WHEEL removed from BIKE",
                           "WHEEL moved from BIKE to FRAME", "WHEEL replaced by FRAME in BIKE",
                           R"(link to FRAME in BIKE renamed from "" to "main")"};
    for (int position = 1; position <= record.GetNbModifications(); ++position)
        EXPECT_EQ(record.GetText(position), lines[position - 1]);
    EXPECT_EQ(record.GetId(4), "7");
    EXPECT_EQ(record.GetSecond(2), nullptr);
}

TEST_F(ZOLQRDCfgModificationTest, ARollBackBringsTheStructureBackAndACopyMeansTheSameLinks) {
    const LinksUnderEdit::Links before = Below("BIKE");
    SdaiAppInstance* moved = LinksUnderEdit::Make(Part("FRAME"), Part("WHEEL"), "", before[1]);
    ZOLQRDCfgModification record;
    record.Append(MoveLink, Edited(moved, 3), Edited(before[1], -1), 1, "");
    record.Append(AddLink, Edited(LinksUnderEdit::Make(Part("BIKE"), Part("FRAME"), "", nullptr), 2), nullptr,
                  2, "");
    const ZOLQRDCfgModification copy = record;
    EXPECT_EQ(Below("BIKE").size(), 4u);
    record.RollBack(0);
    EXPECT_EQ(record.GetNbModifications(), 0);
    EXPECT_EQ(Below("BIKE"), before);
    EXPECT_FALSE(before[1]->IsRemoved());
    EXPECT_TRUE(Below("FRAME").empty());
    EXPECT_EQ(copy.GetNbModifications(), 2);
    EXPECT_EQ(copy.GetFirst(1), moved);
}

} // namespace
