#include "toolkit/ZOLDlgMultiList.h"

#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgSelectorList.h"

#include <rapidcheck/gtest.h>

#include <string>

namespace {

class ZOLDlgMultiListTest : public ToolkitTest {
protected:
    ZOLDlgMultiList* Make(unsigned long style = 0) {
        panel = OpenPanel();
        auto* list = new ZOLDlgMultiList(panel, "List", style);
        panel->Listen(list, list->GetListSelectNotification());
        return list;
    }
    static std::string Cell(const ZOLDlgMultiList& list, int column, int row) {
        ZOLUnicodeString text("none");
        list.GetColumnItem(column, text, row);
        return text.Bytes();
    }
    static std::vector<int> Selected(const ZOLDlgList& list) {
        const int* rows = nullptr;
        int count = 0;
        list.GetSelect(rows, count);
        return {rows, rows + count};
    }
    ListeningPanel* panel = nullptr;
};

constexpr unsigned long severalRows = 0x40000;

} // namespace

TEST_F(ZOLDlgMultiListTest, CellsWithoutARowNumberFillOneRowAfterTheOther) {
    ZOLDlgMultiList* list = Make();
    list->SetColumnItem(0, "a0");
    list->SetColumnItem(1, "a1");
    list->SetColumnItem(0, "b0");
    list->SetColumnItem(2, "b2");
    list->SetColumnItem(1, "b1");
    list->SetColumnItem(1, "c1");
    EXPECT_EQ(list->GetLineCount(), 3);
    EXPECT_EQ(Cell(*list, 1, 0), "a1");
    EXPECT_EQ(Cell(*list, 1, 1), "b1");
    EXPECT_EQ(Cell(*list, 0, 2), "");
    EXPECT_EQ(Cell(*list, 0, 3), "none");
}

TEST_F(ZOLDlgMultiListTest, AnExplicitRowAddsRowsUpToItAndAChangeNever) {
    ZOLDlgMultiList* list = Make();
    list->SetColumnItem(0, "x", 2, ZOLNewLine);
    EXPECT_EQ(list->GetLineCount(), 3);
    list->SetColumnItem(0, "y", 3, ZOLChangeLine);
    list->SetColumnItem(0, "y", -1, ZOLChangeLine);
    EXPECT_EQ(list->GetLineCount(), 3);
    list->SetColumnItem(0, "y", 2, ZOLChangeLine);
    EXPECT_EQ(Cell(*list, 0, 2), "y");
}

TEST_F(ZOLDlgMultiListTest, AClickOnTheSelectedRowTellsNothingUntilItIsClearedByCode) {
    ZOLDlgMultiList* list = Make();
    for (const char* text : {"a", "b"})
        list->SetColumnItem(0, text);
    ZOLUserDriver::SelectLines(list, {"b"});
    ZOLUserDriver::Select(list, {1});
    EXPECT_EQ(panel->heard.size(), 1u);
    list->ClearSelect();
    EXPECT_EQ(panel->heard.size(), 1u);
    ZOLUserDriver::Select(list, {1});
    EXPECT_EQ(panel->heard.size(), 2u);
    const int row = 1;
    list->SetSelect(&row, 1);
    list->SetSelect(&row, 1, 1);
    EXPECT_EQ(panel->heard.size(), 3u);
}

TEST_F(ZOLDlgMultiListTest, OneGestureSelectsSeveralRowsOnlyWhereTheListAllowsIt) {
    ZOLDlgMultiList* single = Make();
    auto* several = new ZOLDlgMultiList(panel, "Several", severalRows);
    panel->Listen(several, several->GetListSelectNotification());
    for (const char* text : {"a", "b", "b"}) {
        single->SetColumnItem(0, text);
        several->SetColumnItem(0, text);
    }
    EXPECT_THROW(ZOLUserDriver::Select(single, {0, 1}), ZOLUserDriver::Refused);
    EXPECT_THROW(ZOLUserDriver::Select(several, {3}), ZOLUserDriver::Refused);
    ZOLUserDriver::Select(several, {2, 0});
    EXPECT_EQ(Selected(*several), (std::vector{0, 2}));
    EXPECT_EQ(panel->heard, Heard{"Several"});
    const int rows[] = {7, 1, 0};
    single->SetSelect(rows, 3);
    EXPECT_EQ(Selected(*single), std::vector{1});
    EXPECT_EQ(ReasonOf([&] { ZOLUserDriver::SelectLines(several, {"b"}); }),
              "cannot select in list \"Several\": it has several rows \"b\"");
    EXPECT_EQ(ReasonOf([&] { ZOLUserDriver::SelectLines(several, {"c"}); }),
              "cannot select in list \"Several\": it has no row \"c\"");
}

TEST_F(ZOLDlgMultiListTest, ActivatingARowSelectsItFirst) {
    ZOLDlgMultiList* list = Make();
    panel->ListenAlso(list, list->GetListActivateNotification());
    for (const char* text : {"a", "b"})
        list->SetColumnItem(0, text);
    ZOLUserDriver::Activate(list, 1);
    ZOLUserDriver::Key(list, ZOLUserKey::Return);
    EXPECT_EQ(panel->heard, (Heard{"List", "also List", "also List"}));
    ZOLUserDriver::Key(list, ZOLUserKey::Up);
    EXPECT_TRUE(list->IsSelect(0));
    EXPECT_THROW(ZOLUserDriver::Key(list, ZOLUserKey::Up), ZOLUserDriver::Refused);
}

TEST_F(ZOLDlgMultiListTest, ReorderedColumnsTakeTitlesWidthsAndCellsToTheirNewNumbers) {
    ZOLDlgMultiList* list = Make();
    const ZOLUnicodeString titles[] = {"Id", "Name", "Type"};
    list->SetColumnTitles(3, titles);
    list->SetColumnTextWidth(0, 33);
    list->SetColumnVisibility(1, ZOLHidden);
    list->SetColumnItem(0, "id");
    list->SetColumnItem(1, "name");
    const int order[] = {1, 0};
    list->ReorderColumns(2, order);
    EXPECT_EQ(list->GetColumnTitle(0), "Name");
    EXPECT_EQ(list->GetColumnVisibility(0), ZOLHidden);
    EXPECT_EQ(list->GetColumnTextWidth(1), 33);
    EXPECT_EQ(Cell(*list, 1, 0), "id");
    EXPECT_EQ(list->GetColumnTitle(2), "Type");
    const int wrong[] = {1, 1};
    EXPECT_DEATH(list->ReorderColumns(2, wrong), "permutation");
}

TEST_F(ZOLDlgMultiListTest, TheFirstLineStaysAmongTheRows) {
    ZOLDlgMultiList* list = Make();
    list->SetFirstLine(5);
    EXPECT_EQ(list->GetFirstLine(), 0);
    list->SetColumnItem(0, "x", 9);
    list->SetFirstLine(-4);
    EXPECT_EQ(list->GetFirstLine(), 0);
    list->SetFirstLine(99);
    EXPECT_EQ(list->GetFirstLine(), 9);
    list->ClearLine(3);
    EXPECT_EQ(list->GetFirstLine(), 8);
}

TEST_F(ZOLDlgMultiListTest, ASelectorListKeepsItsSelectionOnTheSameLines) {
    panel = OpenPanel();
    auto* list = new ZOLDlgSelectorList(panel, "List", severalRows);
    for (const char* text : {"b", "c", "d"})
        list->SetLine(text);
    ZOLUserDriver::SelectLines(list, {"b", "d"});
    list->SetLine("a", 0);
    list->SetLine("C", 2, ZOLChangeLine);
    EXPECT_EQ(Selected(*list), (std::vector{1, 3}));
    list->ClearLine(1);
    EXPECT_EQ(Selected(*list), std::vector{2});
    EXPECT_EQ(list->GetRowText(1), "C");
    EXPECT_EQ(list->GetSelect(), 2);
}

namespace {

// A list as simple as can be: rows of one cell that know whether they are selected.
struct ModelRow {
    std::string text;
    bool isSet = false;
    bool isSelected = false;
};

struct Change {
    enum Kind { Append, SetRow, ChangeRow, RemoveRow, SelectRows } kind;
    int row;
    int otherRow;
};

void Apply(const Change& change, ZOLDlgMultiList& list, int number) {
    const std::string text = std::to_string(number);
    const int rows[] = {change.row, change.otherRow};
    switch (change.kind) {
    case Change::Append:
        return list.SetColumnItem(0, text);
    case Change::SetRow:
        return list.SetColumnItem(0, text, change.row, ZOLNewLine);
    case Change::ChangeRow:
        return list.SetColumnItem(0, text, change.row, ZOLChangeLine);
    case Change::RemoveRow:
        return list.ClearLine(change.row);
    case Change::SelectRows:
        return list.SetSelect(rows, 2);
    }
}

void Apply(const Change& change, std::vector<ModelRow>& model, int number) {
    const std::string text = std::to_string(number);
    const auto row = static_cast<std::size_t>(change.row);
    const bool isThere = row < model.size();
    if (change.kind == Change::Append) {
        if (model.empty() || model.back().isSet)
            model.emplace_back();
        model.back().text = text;
        model.back().isSet = true;
    } else if (change.kind == Change::SetRow || (change.kind == Change::ChangeRow && isThere)) {
        if (!isThere)
            model.resize(row + 1);
        model[row].text = text;
        model[row].isSet = true;
    } else if (change.kind == Change::RemoveRow && isThere) {
        model.erase(model.begin() + change.row);
    } else if (change.kind == Change::SelectRows) {
        for (std::size_t i = 0; i < model.size(); ++i)
            model[i].isSelected = static_cast<int>(i) == change.row || static_cast<int>(i) == change.otherRow;
    }
}

} // namespace

RC_GTEST_PROP(ZOLDlgMultiListProperty, RowsAndSelectionFollowASimpleModel, ()) {
    ListeningPanel panel;
    auto* list = new ZOLDlgMultiList(&panel, "List", severalRows);
    std::vector<ModelRow> model;
    const auto steps = *rc::gen::inRange(0, 40);
    for (int step = 0; step < steps; ++step) {
        const auto kind = static_cast<Change::Kind>(*rc::gen::inRange(0, 5));
        const Change change{kind, *rc::gen::inRange(0, 12), *rc::gen::inRange(0, 12)};
        Apply(change, *list, step);
        Apply(change, model, step);

        RC_ASSERT(list->GetLineCount() == static_cast<int>(model.size()));
        for (int row = 0; row < list->GetLineCount(); ++row) {
            const ModelRow& expected = model[static_cast<std::size_t>(row)];
            RC_ASSERT(list->GetRowText(row).Bytes() == expected.text);
            RC_ASSERT((list->IsSelect(row) == 1) == expected.isSelected);
        }
    }
}
