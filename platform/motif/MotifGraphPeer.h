#pragma once

#include "motif/GraphPainter.h"
#include "motif/MotifCanvasPeer.h"

class ZOLGraphViewer;

namespace trellis {

// MotifGraphPeer: shows a graph. How far it is magnified is kept here alone.
//
// Mouse: the left button selects, with Ctrl or Shift extended; the third opens the context of a node; the
// background is dragged by the left or middle button; the wheel magnifies with Ctrl. Keys: arrows move; Space selects, with Shift rejects; + and - open and close; with Ctrl +, - and 0
// magnify.
class MotifGraphPeer : public MotifCanvasPeer {
public:
    MotifGraphPeer(MotifView& view, ZOLGraphViewer& viewer);
    LayoutRectangle GetMenuPlace() const override;
    void PointerAt(const LayoutPoint& place) override;
    void PointerLeft() override;

protected:
    LayoutSize ContentSize() override;
    void Fit(LayoutSize canvas) override;
    Range RangeOf(Axis axis) override;
    void ScrollTo(Axis axis, int first) override;
    void Paint(cairo_t* context) override;
    ZOLUnicodeString CutTextAt(const LayoutPoint& place) const override;
    void Pressed(const Mouse& mouse) override;
    void Moved(const Mouse& mouse) override;
    void Released(const Mouse& mouse) override;
    void Typed(const Key& key) override;
    void WheeledWithControl(const Mouse& mouse, int steps) override;
    void KeyboardMoved() override;

private:
    const TextMeasure& Measure() const;
    GraphPicture Picture() const;
    void MoveViewPoint(LayoutPoint point);
    void Zoom(LayoutPoint place, double factor);
    void ZoomByKey(double factor);
    void PressedNode(const Mouse& mouse, ZOLGraphNode* node);
    void PressedBackground(const Mouse& mouse);
    void TypedPlain(const Key& key);

    ZOLGraphViewer& _viewer;
    GraphPainter _painter;
    GraphFrame _frame;
    bool _hasPointer = false;
    bool _isDragging = false;
    LayoutPoint _dragStart;     // pixel
    LayoutPoint _dragViewPoint; // at the start
};

} // namespace trellis
