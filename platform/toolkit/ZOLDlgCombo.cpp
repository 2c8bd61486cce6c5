#include "toolkit/ZOLDlgCombo.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/DialogDescription.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"

#include <algorithm>

using trellis::LayoutMetrics;

namespace {

constexpr unsigned long editableBit = 0x40000;

} // namespace

ZOLDlgCombo::ZOLDlgCombo(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style),
      _selectNotification("ZOLDlgComboSelectNotification"),
      _modifyNotification("ZOLDlgComboModifyNotification") {}

bool ZOLDlgCombo::IsEditable() const {
    return GetStyle() & editableBit;
}

void ZOLDlgCombo::SetLine(const ZOLUnicodeString& text, int index, int mode) {
    if (mode == ZOLChangeLine) {
        if (!Has(index))
            return;
        _lines[static_cast<std::size_t>(index)] = text;
        if (index == _selected)
            _field = text;
    } else {
        const int position = Has(index) ? index : GetLineCount();
        _lines.insert(_lines.begin() + position, text);
        if (_selected >= position)
            ++_selected;
    }
    MarkChanged();
}

int ZOLDlgCombo::GetLine(ZOLUnicodeString& text, int index) const {
    if (!Has(index))
        return 0;
    text = _lines[static_cast<std::size_t>(index)];
    return 1;
}

void ZOLDlgCombo::ClearLine(int index) {
    if (index == -1) {
        _lines.clear();
        StoreSelect(-1);
    } else if (Has(index)) {
        _lines.erase(_lines.begin() + index);
        if (_selected == index)
            StoreSelect(-1);
        else if (_selected > index)
            --_selected;
        MarkChanged();
    }
}

void ZOLDlgCombo::StoreSelect(int position) {
    _selected = position;
    _field = Has(position) ? _lines[static_cast<std::size_t>(position)] : ZOLUnicodeString();
    MarkChanged();
}

int ZOLDlgCombo::Locate(const ZOLUnicodeString& text) const {
    const auto found = std::find(_lines.begin(), _lines.end(), text);
    return found == _lines.end() ? -1 : static_cast<int>(found - _lines.begin());
}

int ZOLDlgCombo::SetSelect(int position, int notify) {
    if (position != -1 && !Has(position))
        return 0;
    const trellis::CallbackScope scope;
    StoreSelect(position);
    if (notify)
        SendUserNotification(_selectNotification);
    return 1;
}

int ZOLDlgCombo::SetSelect(const ZOLUnicodeString& text, int notify) {
    const int position = Locate(text);
    return position < 0 ? 0 : SetSelect(position, notify);
}

void ZOLDlgCombo::StoreField(const ZOLUnicodeString& text) {
    _field = text;
    _selected = Locate(text);
    MarkChanged();
}

void ZOLDlgCombo::SetField(const ZOLUnicodeString& text) {
    StoreField(text);
}

void ZOLDlgCombo::SetVisibleTextWidth(int characters) {
    _visibleWidth = characters;
    MarkChanged();
}

void ZOLDlgCombo::SetVisibleTextHeight(int lines) {
    _visibleHeight = lines;
    MarkChanged();
}

ZOLUserResult ZOLDlgCombo::UserSelect(int position) {
    const trellis::CallbackScope scope;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    if (!Has(position))
        return ZOLUserResult::NotThere;
    if (position != _selected)
        SetSelect(position, 1);
    return ZOLUserResult::Done;
}

ZOLUserResult ZOLDlgCombo::UserEditField(const ZOLUnicodeString& text) {
    const trellis::CallbackScope scope;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    if (!IsEditable())
        return ZOLUserResult::ReadOnly;
    StoreField(text);
    SendUserNotification(_modifyNotification);
    return ZOLUserResult::Done;
}

const char* ZOLDlgCombo::GetKind() const {
    return "combo";
}

std::string ZOLDlgCombo::GetMarks() const {
    return "shows " + trellis::DialogDescription::Quoted(_field);
}

trellis::LayoutSize ZOLDlgCombo::GetNaturalSize(const trellis::TextMeasure& measure) const {
    int width = _visibleWidth * measure.GetCharacterWidth();
    if (_visibleWidth == 0)
        for (const ZOLUnicodeString& line : _lines)
            width = std::max(width, measure.GetTextWidth(line));
    const LayoutMetrics metrics(measure);
    return {width + metrics.Arrow() + 2 * metrics.FieldMargin(), metrics.LineOfText()};
}
