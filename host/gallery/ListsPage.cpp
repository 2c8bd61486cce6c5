#include "gallery/ListsPage.h"

#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSelectorList.h"

#include <array>

namespace trellis {

namespace {

constexpr unsigned long OneRow = 0;
constexpr unsigned long SeveralRows = 0x40000;
constexpr int RowCount = 40;
constexpr int ShownRows = 6;
constexpr int SelectorWidth = 28; // characters

struct ColumnTable {
    const char* title;
    const char* cell;
    int width; // characters
    int visibility;
};

// The third one is there, and hidden.
constexpr std::array<ColumnTable, 4> Columns = {{{"Column.Number", "Cell.Number", 10, ZOLShown},
                                                 {"Column.Name", "Cell.Name", 16, ZOLShown},
                                                 {"Column.Hidden", "Cell.Hidden", 10, ZOLHidden},
                                                 {"Column.Description", "Cell.Description", 34, ZOLShown}}};

ZOLUnicodeString SelectedRows(const ZOLDlgList& list) {
    const int* rows = nullptr;
    int count = 0;
    list.GetSelect(rows, count);
    ZOLUnicodeString text = "rows:";
    for (int i = 0; i < count; ++i)
        text += ZOLUnicodeString(" ") + ZOLUnicodeString::FromNumber(rows[i]);
    return text;
}

void SelectSecondRow(ZOLDlgList& list) {
    const int row = 1;
    list.SetSelect(&row, 1);
}

} // namespace

void ListsPage::Build(ZOLDlgFrame* holder) {
    ZOLDlgFrame* left = AddColumn(holder, "Left");
    BuildMultiList(AddGrowingFrame(left, "RowFrame"), "OneRow", OneRow);
    BuildMultiList(AddGrowingFrame(left, "RowsFrame"), "SeveralRows", SeveralRows);
    ZOLDlgFrame* right = AddColumn(holder, "Right");
    right->SetHorizontalAttachment(0);
    BuildSelectorList(AddGrowingFrame(right, "LineFrame"), "OneOfLines", OneRow);
    BuildSelectorList(AddGrowingFrame(right, "LinesFrame"), "SeveralOfLines", SeveralRows);
}

void ListsPage::BuildMultiList(ZOLDlgFrame* frame, const char* name, unsigned long style) {
    auto* list = new ZOLDlgMultiList(frame, name, style);
    std::array<ZOLUnicodeString, Columns.size()> titles;
    for (std::size_t i = 0; i < Columns.size(); ++i)
        titles[i] = Text(Columns[i].title);
    list->SetColumnTitles(static_cast<int>(titles.size()), titles.data());
    list->SetVisibleLineCount(ShownRows);
    for (int column = 0; column < list->GetColumnCount(); ++column) {
        const ColumnTable& entry = Columns[static_cast<std::size_t>(column)];
        list->SetColumnTextWidth(column, entry.width);
        list->SetColumnVisibility(column, entry.visibility);
        ZOLUnicodeString text;
        for (int row = 0; row < RowCount; ++row)
            if (GetResourceValueFromKey(entry.cell, text, {ZOLUnicodeString::FromNumber(row + 1)}) == 1)
                list->SetColumnItem(column, text, row);
    }
    AddExample(list, [=] { SelectSecondRow(*list); });
    Log(list, list->GetListSelectNotification(), [=](const ZOLNotification&) { return SelectedRows(*list); });
    Log(list, list->GetListActivateNotification(),
        [=](const ZOLNotification&) { return SelectedRows(*list); });
    auto* item = new ZOLDlgPushItem(new ZOLDlgContextualMenu(list, "ListMenu"), "ListItem");
    Log(item, item->GetMenuIActivateNotification(),
        [=](const ZOLNotification&) { return SelectedRows(*list); });
}

void ListsPage::BuildSelectorList(ZOLDlgFrame* frame, const char* name, unsigned long style) {
    auto* list = new ZOLDlgSelectorList(frame, name, style);
    list->SetVisibleTextWidth(SelectorWidth);
    list->SetVisibleTextHeight(ShownRows);
    ZOLUnicodeString text;
    for (int row = 0; row < RowCount; ++row)
        if (GetResourceValueFromKey("Cell.Name", text, {ZOLUnicodeString::FromNumber(row + 1)}) == 1)
            list->SetLine(text);
    AddExample(list, [=] { SelectSecondRow(*list); });
    Log(list, list->GetListSelectNotification(), [=](const ZOLNotification&) { return SelectedRows(*list); });
}

} // namespace trellis
