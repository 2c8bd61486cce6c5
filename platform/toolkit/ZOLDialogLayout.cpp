// The layout operations of ZOLDialog: they note what a panel asks for; DialogLayout computes when somebody
// looks.

#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLDialog.h"

using trellis::LayoutHints;

void ZOLDialog::SetGridConstraints(int columns) {
    _hints.columns = columns > 0 ? columns : 0;
    MarkChanged();
}

void ZOLDialog::SetRectDimensions(int width, int height) {
    _hints.size = {width > 0 ? width : 0, height > 0 ? height : 0};
    MarkChanged();
}

void ZOLDialog::SetRectPosition(int x, int y) {
    _hints.position.x = x;
    _hints.position.y = y;
    _hints.hasPosition = true;
    MarkChanged();
}

void ZOLDialog::GetRectPosition(int& x, int& y) const {
    x = _hints.position.x;
    y = _hints.position.y;
}

void ZOLDialog::Attach4Sides() {
    _hints.horizontal = _hints.vertical = LayoutHints::Grows;
    MarkChanged();
}

void ZOLDialog::SetHorizontalAttachment(int grows) {
    _hints.horizontal = grows ? LayoutHints::Grows : LayoutHints::Fixed;
    MarkChanged();
}

void ZOLDialog::SetVerticalAttachment(int grows) {
    _hints.vertical = grows ? LayoutHints::Grows : LayoutHints::Fixed;
    MarkChanged();
}

void ZOLDialog::ResetAttachment() {
    _hints.horizontal = _hints.vertical = LayoutHints::ByClass;
    MarkChanged();
}

void ZOLDialog::SetDefaultOrientation(int orientation) {
    _hints.orientation = orientation ? 1 : 0;
    MarkChanged();
}

trellis::LayoutSize ZOLDialog::GetNaturalSize(const trellis::TextMeasure& measure) const {
    return {measure.GetTextWidth(GetTitle()), measure.GetLineHeight()};
}
