#pragma once

#include "motif/MotifPeer.h"
#include "motif/TextPainter.h"
#include "toolkit/TreeLayout.h"

#include <string>

namespace trellis {

// MotifCanvasPeer: a peer that paints its dialog by itself: a canvas that takes mouse and keyboard, with a scroll
// bar on each side that is longer than its room. Painting is buffered, so that nothing flickers.
class MotifCanvasPeer : public MotifPeer {
public:
    MotifCanvasPeer(MotifView& view, ZOLDialog& dialog);

    void Mirror() override;
    void Place(const LayoutRectangle& place) override;
    Widget GetFocusWidget() const override { return _canvas; }

protected:
    Widget Build(Widget parent) override;

    // What a scroll bar shows, in units of the class.
    struct Range {
        int first = 0;
        int shown = 1;
        int total = 1;
        int step = 1;
    };
    struct Mouse {
        LayoutPoint place; // in the canvas
        LayoutPoint rootPlace;
        unsigned button = 0;
        unsigned state = 0; // as of the X server
        unsigned long milliseconds = 0;
        bool isDouble = false; // second press at the same place in short time
    };
    struct Key {
        unsigned long symbol = 0;
        std::string text; // UTF-8, perhaps empty
        unsigned state = 0;
        unsigned long milliseconds = 0;
    };

    // The size of all that is there, in pixels: what is larger than the room gets a scroll bar.
    virtual LayoutSize ContentSize() = 0;
    // The canvas has another size, or the dialog changed: what depends on either is computed anew.
    virtual void Fit(LayoutSize canvas) = 0;
    virtual Range HorizontalRange() = 0;
    virtual Range VerticalRange() = 0;
    virtual void ScrolledTo(bool isHorizontal, int first) = 0;
    virtual void Paint(cairo_t* context) = 0;
    // Of each, what it does with the dialog comes last: the peer may be gone then.
    virtual void Pressed(const Mouse& mouse) = 0;
    virtual void Moved(const Mouse& mouse) = 0;
    virtual void Released(const Mouse& mouse) = 0;
    virtual void Typed(const Key& key) = 0;
    // Steps of the wheel, downwards or to the right.
    virtual void Wheeled(const Mouse& mouse, int steps, bool isHorizontal) = 0;

    // Computes, places and paints all anew.
    void Refresh();
    void Repaint();
    bool HasKeyboard() const { return _hasKeyboard; }
    LayoutSize CanvasSize() const { return _canvasSize; }
    Widget Canvas() const { return _canvas; }
    TextPainter& Text() { return _text; }

private:
    void Arrange();
    void ShowRange(Widget bar, const Range& range);
    void PaintFrame();
    Mouse MouseOf(unsigned button, unsigned state, Time time, int x, int y, int rootX, int rootY) const;

    void Happened(Widget widget, XEvent* event);
    void ButtonPressed(const XButtonEvent& event);
    void KeyPressed(XKeyEvent& event);
    void ScrolledHorizontally(Widget widget, XtPointer data);
    void ScrolledVertically(Widget widget, XtPointer data);

    TextPainter _text;
    Widget _canvas = nullptr;
    Widget _horizontal = nullptr;
    Widget _vertical = nullptr;
    LayoutSize _size;
    LayoutSize _canvasSize{1, 1};
    ThemeColour _frameColour{0};
    bool _hasKeyboard = false;
    Mouse _lastPress;
};

} // namespace trellis
