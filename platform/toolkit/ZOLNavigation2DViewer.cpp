#include "toolkit/ZOLNavigation2DViewer.h"

#include <algorithm>

void ZOLNavigation2DViewer::setBoundedViewpoint() {
    _isBounded = true;
    MarkChanged();
}

void ZOLNavigation2DViewer::reframe() {
    SetViewPoint({0, 0});
}

void ZOLNavigation2DViewer::updateViewPoint() {
    MarkChanged();
}

void ZOLNavigation2DViewer::SetViewPoint(trellis::LayoutPoint point) {
    _viewPoint = point;
    MarkChanged();
}

void ZOLNavigation2DViewer::Bound(trellis::LayoutSize drawing) {
    if (!_isBounded)
        return;
    const trellis::LayoutSize area = GetAreaSize();
    _viewPoint.x = std::clamp(_viewPoint.x, 0, std::max(drawing.width - area.width, 0));
    _viewPoint.y = std::clamp(_viewPoint.y, 0, std::max(drawing.height - area.height, 0));
}
