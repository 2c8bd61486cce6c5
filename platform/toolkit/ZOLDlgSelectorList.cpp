#include "toolkit/ZOLDlgSelectorList.h"

#include "toolkit/DialogDescription.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"

ZOLDlgSelectorList::ZOLDlgSelectorList(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgList(father, name, style) {}

void ZOLDlgSelectorList::SetLine(const ZOLUnicodeString& text, int index, int mode) {
    if (mode == ZOLChangeLine) {
        if (!HasRow(index))
            return;
        _lines[static_cast<std::size_t>(index)] = text;
    } else {
        const int position = HasRow(index) ? index : GetLineCount();
        _lines.insert(_lines.begin() + position, text);
        Selection().RowAdded(position);
    }
    MarkChanged();
}

int ZOLDlgSelectorList::GetLine(ZOLUnicodeString& text, int index) const {
    if (!HasRow(index))
        return 0;
    text = _lines[static_cast<std::size_t>(index)];
    return 1;
}

void ZOLDlgSelectorList::ClearLine(int index) {
    if (index == -1) {
        _lines.clear();
        Selection().Clear();
    } else if (HasRow(index)) {
        _lines.erase(_lines.begin() + index);
        Selection().RowRemoved(index);
    }
    MarkChanged();
}

ZOLUnicodeString ZOLDlgSelectorList::GetRowText(int row) const {
    ZOLUnicodeString text;
    GetLine(text, row);
    return text;
}

void ZOLDlgSelectorList::SetVisibleTextWidth(int characters) {
    _visibleWidth = characters;
    MarkChanged();
}

void ZOLDlgSelectorList::SetVisibleTextHeight(int lines) {
    _visibleHeight = lines;
    MarkChanged();
}

const char* ZOLDlgSelectorList::GetKind() const {
    return "list";
}

void ZOLDlgSelectorList::DescribeTo(trellis::DialogDescription& description) const {
    description.Line(IsSensitive() ? GetKind() : std::string(GetKind()) + " greyed");
    const trellis::DialogDescription::Indent indent(description);
    for (int row = 0; row < GetLineCount(); ++row)
        description.Line((IsSelect(row) ? "row selected " : "row ") +
                         trellis::DialogDescription::Quoted(GetRowText(row)));
}

trellis::LayoutSize ZOLDlgSelectorList::GetNaturalSize(const trellis::TextMeasure& measure) const {
    const trellis::LayoutMetrics metrics(measure);
    return {_visibleWidth * measure.GetCharacterWidth() + 2 * metrics.CellMargin() + metrics.ScrollBar(),
            _visibleHeight * measure.GetRowHeight() + 2 * trellis::LayoutMetrics::separator};
}
