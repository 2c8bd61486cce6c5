#include "toolkit/DialogLayout.h"

#include "toolkit/ButtonRowLayout.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContainer.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgSeparator.h"
#include "toolkit/ZOLDlgSplitter.h"

namespace {

using trellis::DialogLayout;
using trellis::LayoutRectangle;

class DialogLayoutTest : public ToolkitTest {
protected:
    static LayoutRectangle PlaceOf(const DialogLayout& layout, const ZOLDialog* dialog) {
        return layout.Find(*dialog).value_or(LayoutRectangle{-1, -1, -1, -1});
    }
    static LayoutRectangle TitleOf(const DialogLayout& layout, const ZOLDialog* field) {
        return layout.FindTitle(*field).value_or(LayoutRectangle{-1, -1, -1, -1});
    }
    static int Right(const LayoutRectangle& place) { return place.x + place.width; }
    static int Bottom(const LayoutRectangle& place) { return place.y + place.height; }
    trellis::TextMeasure measure;
};

} // namespace

TEST_F(DialogLayoutTest, LabelsAndFieldsFormTwoColumnsAndTheListTakesTheRest) {
    ListeningPanel* panel = OpenPanel();
    auto* shortLabel = new ZOLDlgLabel(panel, "Id");
    auto* shortField = new ZOLDlgEditor(panel, "IdEd");
    new ZOLDlgLabel(panel, "Description");
    auto* longField = new ZOLDlgEditor(panel, "DescEd");
    auto* list = new ZOLDlgMultiList(panel, "List");
    list->SetColumnTextWidth(0, 10);
    const DialogLayout natural(*panel, measure);
    const DialogLayout wide(*panel, measure, {900, 700});

    EXPECT_EQ(PlaceOf(natural, shortField).x, PlaceOf(natural, longField).x);
    EXPECT_EQ(PlaceOf(natural, shortField).y, PlaceOf(natural, shortLabel).y);
    EXPECT_GT(PlaceOf(natural, longField).y, PlaceOf(natural, shortField).y);
    EXPECT_EQ(PlaceOf(wide, longField), PlaceOf(natural, longField)) << "fields keep their size";
    const LayoutRectangle before = PlaceOf(natural, list);
    const LayoutRectangle after = PlaceOf(wide, list);
    EXPECT_EQ(after.height - before.height, 700 - natural.GetSize().height);
    EXPECT_EQ(after.x + after.width, 900 - after.x);
    EXPECT_GT(wide.GetButtonRow().y, after.y + after.height);
    EXPECT_LE(wide.GetButtonRow().y + wide.GetButtonRow().height, 700);
}

TEST_F(DialogLayoutTest, HiddenWidgetsGiveUpTheirRoomAndHiddenLabelsKeepIt) {
    ListeningPanel* panel = OpenPanel();
    auto* label = new ZOLDlgLabel(panel, "Bidon");
    auto* check = new ZOLDlgCheckButton(panel, "Check");
    auto* last = new ZOLDlgCheckButton(panel, "Last");
    const int before = PlaceOf(DialogLayout(*panel, measure), last).y;
    label->SetVisibility(ZOLHidden);
    EXPECT_EQ(PlaceOf(DialogLayout(*panel, measure), last).y, before);
    check->SetVisibility(ZOLHidden);
    const DialogLayout layout(*panel, measure);
    EXPECT_LT(PlaceOf(layout, last).y, before);
    EXPECT_FALSE(layout.Find(*check).has_value());
}

TEST_F(DialogLayoutTest, AFrameSideBySideInAGridOrOfGivenSizeIsPlacedSo) {
    ListeningPanel* panel = OpenPanel();
    auto* row = new ZOLDlgFrame(panel, "Row", 0xc0000);
    row->SetDefaultOrientation(1);
    auto* left = new ZOLDlgCheckButton(row, "Left");
    auto* right = new ZOLDlgCheckButton(row, "Right");
    auto* grid = new ZOLDlgFrame(panel, "Grid", 0xc0000);
    grid->SetGridConstraints(2);
    std::vector<ZOLDialog*> cells;
    for (const char* name : {"a", "wide cell", "b", "c"})
        cells.push_back(new ZOLDlgCheckButton(grid, name));
    auto* fixed = new ZOLDlgMultiList(panel, "Fixed");
    fixed->SetRectDimensions(300, 60);
    fixed->SetHorizontalAttachment(0);
    fixed->SetVerticalAttachment(0);
    const DialogLayout layout(*panel, measure, {800, 600});

    EXPECT_EQ(PlaceOf(layout, left).y, PlaceOf(layout, right).y);
    EXPECT_GT(PlaceOf(layout, right).x, PlaceOf(layout, left).x);
    EXPECT_EQ(PlaceOf(layout, cells[1]).x, PlaceOf(layout, cells[3]).x);
    EXPECT_EQ(PlaceOf(layout, cells[0]).x, PlaceOf(layout, cells[2]).x);
    EXPECT_EQ(PlaceOf(layout, fixed).width, 300);
    EXPECT_EQ(PlaceOf(layout, fixed).height, 60);
}

TEST_F(DialogLayoutTest, TheTitleOfAFieldStandsBeforeItInTheColumnOfTheLabels) {
    ListeningPanel* panel = OpenPanel();
    new ZOLDlgLabel(panel, "A longer label");
    auto* plain = new ZOLDlgEditor(panel, "Plain");
    auto* titled = new ZOLDlgCombo(panel, "Titled");
    titled->SetTitle("Dictionary");
    auto* frame = new ZOLDlgFrame(panel, "Row", 0xc0000);
    frame->SetDefaultOrientation(1);
    auto* inRow = new ZOLDlgCombo(frame, "InRow");
    inRow->SetTitle("Rules");
    auto* button = new ZOLDlgPushButton(frame, "Import");
    const DialogLayout layout(*panel, measure);

    EXPECT_EQ(PlaceOf(layout, titled).x, PlaceOf(layout, plain).x);
    EXPECT_LT(Right(TitleOf(layout, titled)), PlaceOf(layout, titled).x);
    EXPECT_EQ(TitleOf(layout, titled).y, PlaceOf(layout, titled).y);
    EXPECT_FALSE(layout.FindTitle(*plain).has_value());
    EXPECT_EQ(TitleOf(layout, inRow).width, 5 * measure.GetCharacterWidth());
    EXPECT_LT(Right(TitleOf(layout, inRow)), PlaceOf(layout, inRow).x);
    EXPECT_LT(Right(PlaceOf(layout, inRow)), PlaceOf(layout, button).x);
    EXPECT_LE(Right(PlaceOf(layout, button)), layout.GetSize().width);
}

TEST_F(DialogLayoutTest, ButtonsAreEquallyLargeAtTheRightEndAndTheWindowIsWideEnoughForThem) {
    ListeningPanel* panel = OpenPanel("Panel", nullptr, 0x2c00);
    panel->SetCANCELTitle("Reject selectively");
    const DialogLayout layout(*panel, measure);
    const auto ok = layout.FindButton(ZOLDialogButton::OK);
    const auto apply = layout.FindButton(ZOLDialogButton::Apply);
    const auto cancel = layout.FindButton(ZOLDialogButton::Cancel);
    ASSERT_TRUE(ok && apply && cancel);
    EXPECT_FALSE(layout.FindButton(ZOLDialogButton::Help));
    EXPECT_GT(ok->width, 18 * measure.GetCharacterWidth());
    EXPECT_EQ(ok->width, cancel->width);
    EXPECT_LT(Right(*ok), apply->x);
    EXPECT_LT(Right(*apply), cancel->x);
    EXPECT_GE(ok->x, 0);
    EXPECT_EQ(Right(*cancel), Right(layout.GetButtonRow()));
    const DialogLayout wide(*panel, measure, {2000, 500});
    EXPECT_EQ(Right(*wide.FindButton(ZOLDialogButton::Cancel)), Right(wide.GetButtonRow()));
}

TEST_F(DialogLayoutTest, ThePanesOfASplitterFillItBelowOrBesideEachOther) {
    ListeningPanel* panel = OpenPanel();
    auto* split = new ZOLDlgSplitter(panel, "Split");
    auto* first = new ZOLDlgFrame(split, "First");
    auto* second = new ZOLDlgFrame(split, "Second");
    new ZOLDlgCheckButton(first, "Check");
    new ZOLDlgCheckButton(second, "A longer check");
    const auto places = [&] {
        const DialogLayout layout(*panel, measure, {400, 600});
        return std::tuple(PlaceOf(layout, split), PlaceOf(layout, first), PlaceOf(layout, second));
    };
    const auto [whole, upper, lower] = places();
    EXPECT_EQ(upper.width, whole.width);
    EXPECT_EQ(upper.width, lower.width);
    EXPECT_EQ(upper.height, lower.height) << "none grows by itself, so both do";
    EXPECT_LT(Bottom(upper), lower.y);
    EXPECT_EQ(Bottom(lower), Bottom(whole));

    split->SetDefaultOrientation(1);
    new ZOLDlgMultiList(second, "List");
    const auto [sameWhole, left, right] = places();
    EXPECT_EQ(left.height, sameWhole.height);
    EXPECT_EQ(left.height, right.height);
    EXPECT_EQ(left.width, DialogLayout(*first, measure).GetSize().width) << "the list takes the rest";
    EXPECT_LT(Right(left), right.x);
    EXPECT_EQ(Right(right), Right(sameWhole));
}

TEST_F(DialogLayoutTest, ASeparatorSpansTheColumnThatItDivides) {
    ListeningPanel* panel = OpenPanel();
    auto* separator = new ZOLDlgSeparator(panel, "Separ");
    new ZOLDlgCheckButton(panel, "Check");
    const DialogLayout layout(*panel, measure, {500, 300});
    EXPECT_GT(PlaceOf(layout, separator).width, 400);
    EXPECT_LT(PlaceOf(layout, separator).height, 10);
}

TEST_F(DialogLayoutTest, EverythingGrowsWithTheFont) {
    class LargeMeasure : public trellis::TextMeasure {
        int GetCharacterWidth() const override { return 16; }
        int GetLineHeight() const override { return 32; }
        int GetPixels(int plain) const override { return 2 * plain; }
    };
    ListeningPanel* panel = OpenPanel();
    auto* upper = new ZOLDlgEditor(panel, "Upper");
    auto* lower = new ZOLDlgCheckButton(panel, "Lower");
    const DialogLayout plain(*panel, measure);
    const DialogLayout large(*panel, LargeMeasure());
    EXPECT_EQ(large.GetSize().width, 2 * plain.GetSize().width);
    EXPECT_EQ(large.GetSize().height, 2 * plain.GetSize().height);
    for (const ZOLDialog* dialog : {static_cast<ZOLDialog*>(upper), static_cast<ZOLDialog*>(lower)}) {
        EXPECT_EQ(PlaceOf(large, dialog).x, 2 * PlaceOf(plain, dialog).x);
        EXPECT_EQ(PlaceOf(large, dialog).y, 2 * PlaceOf(plain, dialog).y);
        EXPECT_EQ(PlaceOf(large, dialog).height, 2 * PlaceOf(plain, dialog).height);
    }
}

TEST_F(DialogLayoutTest, AContainerAsksForALittleAndIsItselfLaidOutWithAll) {
    ListeningPanel* panel = OpenPanel();
    auto* container = new ZOLDlgContainer(panel, "Container");
    ZOLDlgCheckButton* last = nullptr;
    for (int i = 0; i < 300; ++i)
        last = new ZOLDlgCheckButton(container, "Check");
    EXPECT_LT(DialogLayout(*panel, measure).GetSize().height, 500);
    container->SetRectDimensions(0, 100);
    EXPECT_LT(DialogLayout(*panel, measure).GetSize().height, 200);
    const DialogLayout own(*container, measure);
    EXPECT_GT(own.GetSize().height, 300 * measure.GetLineHeight());
    EXPECT_LE(Bottom(PlaceOf(own, last)), own.GetSize().height);
}

TEST_F(DialogLayoutTest, FramesBelowEachOtherEndAtOneEdge) {
    ListeningPanel* panel = OpenPanel();
    auto* narrow = new ZOLDlgFrame(panel, "Narrow");
    new ZOLDlgCheckButton(narrow, "Check");
    auto* wide = new ZOLDlgFrame(panel, "Wide");
    new ZOLDlgCheckButton(wide, "A check with a long title");
    const DialogLayout layout(*panel, measure);
    EXPECT_EQ(Right(PlaceOf(layout, narrow)), Right(PlaceOf(layout, wide)));
}

TEST_F(DialogLayoutTest, ButtonsShareARowThatIsTooNarrowForThem) {
    ListeningPanel* panel = OpenPanel("Panel", nullptr, 0x2c00);
    const trellis::ButtonRowLayout row(panel->GetButtons(), *panel, measure);
    const auto places = row.PlaceIn({10, 0, 100, 28});
    ASSERT_EQ(places.size(), 3U);
    EXPECT_GE(places.front().place.x, 10);
    EXPECT_EQ(Right(places.back().place), 110);
    EXPECT_LT(Right(places[0].place), places[1].place.x);
    for (const auto& placed : row.PlaceIn({0, 0, 1, 28}))
        EXPECT_GT(placed.place.width, 0);
}
