#pragma once

#include "toolkit/TreeLayout.h"
#include "toolkit/ZOLDialog.h"

// ZOL2DViewer: a widget with an area of some size in which something is drawn.
class TRELLIS_API ZOL2DViewer : public ZOLDialog {
    ZOL_META_OBJECT(ZOL2DViewer, ZOLDialog)
public:
    // Another size of the area, in pixels; numbers below 1 count as 1.
    void ResizeGraph(int width, int height);
    // The area as it is shown, else as it was asked for; in units of the drawing.
    trellis::LayoutSize GetAreaSize() const;
    // For views: how much of the drawing has room on the screen. It differs from what was asked for when the
    // window is larger or smaller, or the drawing is magnified. Marks nothing.
    void SetShownArea(trellis::LayoutSize area);
    // An index of trellis::GraphPalette; the background is white at first, index 6.
    void SetBackgroundColor(int index);
    int GetBackgroundColor() const { return _background; }
    // Marks that the area has to be painted anew. Nothing is drawn here.
    void update();

    trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const override;
    bool GrowsByClass() const override { return _sizing != KeepsSize; }

protected:
    // sizing  KeepsSize: the area stays as it is when the window grows; 0: it takes the room
    static constexpr int KeepsSize = 4;
    ZOL2DViewer(ZOLDialog* owner, const ZOLString& name, unsigned long style, int width, int height,
                int sizing);

private:
    trellis::LayoutSize _area;
    trellis::LayoutSize _shownArea; // 0 by 0 without a view
    int _background = 6;
    int _sizing;
};
