#include "toolkit/ZOLDlgList.h"

#include "toolkit/CallbackScope.h"

#include <algorithm>

namespace {

constexpr unsigned long severalBit = 0x40000;

} // namespace

ZOLDlgList::ZOLDlgList(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style),
      _selection(style & severalBit ? trellis::RowSelection::Several : trellis::RowSelection::One),
      _selectNotification("ZOLDlgListSelectNotification") {}

void ZOLDlgList::GetSelect(const int*& rows, int& count) const {
    rows = _selection.Rows().data();
    count = GetSelectCount();
}

int ZOLDlgList::GetSelect() const {
    return _selection.Rows().empty() ? -1 : _selection.Rows().front();
}

void ZOLDlgList::SetSelect(const int* rows, int count, int notify) {
    const trellis::CallbackScope scope;
    std::vector<int> wanted;
    if (rows && count > 0)
        wanted.assign(rows, rows + count);
    _selection.Set(wanted, GetLineCount());
    MarkChanged();
    if (notify)
        SendUserNotification(_selectNotification);
}

void ZOLDlgList::ClearSelect() {
    _selection.Clear();
    MarkChanged();
}

ZOLUserResult ZOLDlgList::UserSelect(const std::vector<int>& rows) {
    const trellis::CallbackScope scope;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    const bool isGesture = AllowsSeveral() || rows.size() == 1;
    if (!isGesture || !std::all_of(rows.begin(), rows.end(), [this](int row) { return HasRow(row); }))
        return ZOLUserResult::NotThere;
    const std::vector<int> before = _selection.Rows();
    _selection.Set(rows, GetLineCount());
    if (_selection.Rows() == before)
        return ZOLUserResult::Done;
    MarkChanged();
    SendUserNotification(_selectNotification);
    return ZOLUserResult::Done;
}

bool ZOLDlgList::GrowsByClass() const {
    return true;
}
