#include "toolkit/ZOL2DViewer.h"

#include <algorithm>

ZOL2DViewer::ZOL2DViewer(ZOLDialog* owner, const ZOLString& name, unsigned long style, int width, int height,
                         int sizing)
    : ZOLDialog(owner, name, style), _area{std::max(width, 1), std::max(height, 1)}, _sizing(sizing) {}

void ZOL2DViewer::ResizeGraph(int width, int height) {
    _area = {std::max(width, 1), std::max(height, 1)};
    MarkChanged();
}

trellis::LayoutSize ZOL2DViewer::GetAreaSize() const {
    return _shownArea.width > 0 ? _shownArea : _area;
}

void ZOL2DViewer::SetShownArea(trellis::LayoutSize area) {
    _shownArea = {std::max(area.width, 1), std::max(area.height, 1)};
}

void ZOL2DViewer::SetBackgroundColor(int index) {
    _background = index;
    MarkChanged();
}

void ZOL2DViewer::update() {
    MarkChanged();
}

trellis::LayoutSize ZOL2DViewer::GetNaturalSize(const trellis::TextMeasure&) const {
    return _area;
}
