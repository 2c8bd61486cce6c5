#pragma once

#include "motif/MotifPeer.h"
#include "motif/TextPainter.h"
#include "toolkit/TreeLayout.h"

#include <optional>
#include <string>

namespace trellis {

// MotifCanvasPeer: a peer that paints its dialog by itself: a canvas that takes mouse and keyboard, with a scroll
// bar on each side that is longer than its room. The wheel scrolls, with Shift sideways. Painting is buffered, so that nothing flickers.
class MotifCanvasPeer : public MotifPeer {
public:
    MotifCanvasPeer(MotifView& view, ZOLDialog& dialog);

    void Mirror() override;
    void Place(const LayoutRectangle& place) override;
    Widget GetFocusWidget() const override { return _canvas; }
    ZOLUnicodeString GetHiddenText(const LayoutPoint& place) const override;

protected:
    Widget Build(Widget parent) override;

    // What a scroll bar shows, in units of the class.
    struct Range {
        int first = 0;
        int shown = 1;
        int total = 1;
        int step = 1;
        int wheel = 1; // of a step of the wheel
    };
    enum class Axis { Horizontal, Vertical };
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
    virtual Range RangeOf(Axis axis) = 0;
    // Cut to the range; what is seen is brought up to date behind it.
    virtual void ScrollTo(Axis axis, int first) = 0;
    virtual void Paint(cairo_t* context) = 0;
    // The text at a place of the canvas when not all of it can be seen, else an empty one.
    virtual ZOLUnicodeString CutTextAt(const LayoutPoint& place) const = 0;
    // Of each, what it does with the dialog comes last: the peer may be gone then.
    virtual void Pressed(const Mouse& mouse) = 0;
    virtual void Moved(const Mouse& mouse) = 0;
    virtual void Released(const Mouse& mouse) = 0;
    virtual void Typed(const Key& key) = 0;
    // Steps of the wheel with Ctrl, upwards; by itself it scrolls.
    virtual void WheeledWithControl(const Mouse&, int) {}
    // The keyboard comes to the canvas or leaves it.
    virtual void KeyboardMoved() {}

    // Computes, places and paints all anew.
    void Refresh();
    void Repaint();
    // A place of the widget as one of the canvas; nothing on the frame and the bars.
    std::optional<LayoutPoint> InCanvas(const LayoutPoint& place) const;
    bool HasKeyboard() const { return _hasKeyboard; }
    LayoutSize CanvasSize() const { return _canvasSize; }
    Widget Canvas() const { return _canvas; }
    TextPainter& Text() { return _text; }

private:
    void Arrange();
    void ShowRange(Widget bar, const Range& range);
    void PaintFrame();
    void FrameExposed(Widget widget, XEvent* event);
    template <class Event>
    static Mouse MouseOf(const Event& event) {
        Mouse mouse{{event.x, event.y}, {event.x_root, event.y_root}, 0, event.state, event.time, false};
        if constexpr (requires { event.button; })
            mouse.button = event.button;
        return mouse;
    }

    void Happened(Widget widget, XEvent* event);
    void ButtonPressed(const XButtonEvent& event);
    void KeyPressed(XKeyEvent& event);
    void Wheeled(const XButtonEvent& event, Axis axis, int steps);
    void ScrolledHorizontally(Widget widget, XtPointer data);
    void ScrolledVertically(Widget widget, XtPointer data);

    TextPainter _text;
    Widget _canvas = nullptr;
    Widget _horizontal = nullptr;
    Widget _vertical = nullptr;
    LayoutSize _size;
    LayoutSize _canvasSize{1, 1};
    bool _hasKeyboard = false;
    Mouse _lastPress;
};

} // namespace trellis
