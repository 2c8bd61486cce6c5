#pragma once

#include "toolkit/ZOL2DViewer.h"

// ZOLNavigation2DViewer: a viewer whose drawing may be larger than its area. The viewpoint is the point of
// the drawing that stands in the top left corner of the area.
class TRELLIS_API ZOLNavigation2DViewer : public ZOL2DViewer {
    ZOL_META_OBJECT(ZOLNavigation2DViewer, ZOL2DViewer)
public:
    // Anchored: when the layout changes, what the user acted on last stays where it is on the screen. Else
    // the viewpoint keeps its place in the drawing.
    void setAnchoredViewpoint() { _isAnchored = true; }
    bool IsAnchored() const { return _isAnchored; }
    // Bounded: the viewpoint cannot leave the drawing; one that is smaller than the area stands at the
    // origin.
    void setBoundedViewpoint();
    bool IsBounded() const { return _isBounded; }
    // Back to the origin of the drawing.
    void reframe();
    // Marks that the viewpoint has to be looked at anew, as after a change of the drawing.
    void updateViewPoint();
    // Puts the viewpoint there, as a scroll bar does.
    void SetViewPoint(trellis::LayoutPoint point);

protected:
    using ZOL2DViewer::ZOL2DViewer;

    trellis::LayoutPoint StoredViewPoint() const { return _viewPoint; }
    void StoreViewPoint(trellis::LayoutPoint point) { _viewPoint = point; }
    // Moves the stored viewpoint into a drawing of that size, if it is bounded.
    void Bound(trellis::LayoutSize drawing);

private:
    trellis::LayoutPoint _viewPoint;
    bool _isAnchored = false;
    bool _isBounded = false;
};
