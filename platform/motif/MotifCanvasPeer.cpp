#include "motif/MotifCanvasPeer.h"

#include "motif/CairoShapes.h"
#include "motif/MotifView.h"
#include "toolkit/ZOLDialog.h"

#include <X11/Xutil.h>
#include <Xm/DrawingA.h>
#include <Xm/ScrollBar.h>
#include <cairo-xlib.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace trellis {

namespace {

constexpr int Border = 2;      // around all: the ring that tells where the keyboard is
constexpr int DoubleReach = 4; // pixels between the presses of a double click
constexpr unsigned WheelLeft = 6;
constexpr unsigned WheelRight = 7;

Widget MakeBar(Widget parent, unsigned char orientation, int thickness) {
    const bool isUpright = orientation == XmVERTICAL;
    return XtVaCreateWidget(isUpright ? "vertical" : "horizontal", xmScrollBarWidgetClass, parent,
                            XmNorientation, orientation, isUpright ? XmNwidth : XmNheight, thickness,
                            XmNtraversalOn, False, XmNhighlightThickness, 0, nullptr);
}

} // namespace

MotifCanvasPeer::MotifCanvasPeer(MotifView& view, ZOLDialog& dialog)
    : MotifPeer(view, dialog), _text(view.GetTheme()) {}

Widget MotifCanvasPeer::Build(Widget parent) {
    Widget outer = XtVaCreateWidget(GetDialog().GetName().ConvertToChar(), xmDrawingAreaWidgetClass, parent,
                                    XmNresizePolicy, XmRESIZE_NONE, XmNmarginWidth, 0, XmNmarginHeight, 0,
                                    XmNshadowThickness, 0, nullptr);
    _canvas = XtVaCreateManagedWidget("canvas", xmDrawingAreaWidgetClass, outer, XmNresizePolicy,
                                      XmRESIZE_NONE, XmNtraversalOn, True, XmNnavigationType, XmTAB_GROUP,
                                      XmNbackground, MotifQuirks::Colour(outer, Theme::Field), nullptr);
    const int thickness = GetView().GetTheme().Pixels(Theme::ScrollBar);
    _horizontal = MakeBar(outer, XmHORIZONTAL, thickness);
    _vertical = MakeBar(outer, XmVERTICAL, thickness);
    Connect<&MotifCanvasPeer::ScrolledHorizontally>(_horizontal, XmNvalueChangedCallback);
    Connect<&MotifCanvasPeer::ScrolledHorizontally>(_horizontal, XmNdragCallback);
    Connect<&MotifCanvasPeer::ScrolledVertically>(_vertical, XmNvalueChangedCallback);
    Connect<&MotifCanvasPeer::ScrolledVertically>(_vertical, XmNdragCallback);
    Listen<&MotifCanvasPeer::FrameExposed>(outer, ExposureMask);
    Listen<&MotifCanvasPeer::Happened>(_canvas, ExposureMask | FocusChangeMask | ButtonPressMask |
                                                    ButtonReleaseMask | ButtonMotionMask | KeyPressMask);
    AsksForCrossings(_canvas);
    return outer;
}

// Greyed, it can still be scrolled by its bars, and read.
void MotifCanvasPeer::Mirror() {
    MotifQuirks::SetSensitive(_canvas, GetDialog().IsSensitive());
    Refresh();
}

void MotifCanvasPeer::Place(const LayoutRectangle& place) {
    MotifPeer::Place(place);
    _size = {std::max(place.width, 1), std::max(place.height, 1)};
    Refresh();
}

std::optional<LayoutPoint> MotifCanvasPeer::InCanvas(const LayoutPoint& place) const {
    const LayoutPoint inside = {place.x - Border, place.y - Border};
    const bool isInside =
        inside.x >= 0 && inside.y >= 0 && inside.x < _canvasSize.width && inside.y < _canvasSize.height;
    return isInside ? std::optional(inside) : std::nullopt;
}

ZOLUnicodeString MotifCanvasPeer::GetHiddenText(const LayoutPoint& place) const {
    const std::optional<LayoutPoint> inside = InCanvas(place);
    return inside ? CutTextAt(*inside) : ZOLUnicodeString();
}

void MotifCanvasPeer::Refresh() {
    if (!GetWidget())
        return;
    Arrange();
    Repaint();
}

// One bar takes room from the other side, which may then need its own.
void MotifCanvasPeer::Arrange() {
    const LayoutSize content = ContentSize();
    const int thickness = GetView().GetTheme().Pixels(Theme::ScrollBar);
    const LayoutSize room{std::max(_size.width - 2 * Border, 1), std::max(_size.height - 2 * Border, 1)};
    bool isTall = content.height > room.height;
    const bool isBroad = content.width > room.width - (isTall ? thickness : 0);
    isTall = content.height > room.height - (isBroad ? thickness : 0);
    _canvasSize = {std::max(room.width - (isTall ? thickness : 0), 1),
                   std::max(room.height - (isBroad ? thickness : 0), 1)};
    Fit(_canvasSize);

    MotifQuirks::Configure(_canvas, Border, Border, _canvasSize.width, _canvasSize.height);
    MotifQuirks::Configure(_vertical, Border + _canvasSize.width, Border, thickness, _canvasSize.height);
    MotifQuirks::Configure(_horizontal, Border, Border + _canvasSize.height, _canvasSize.width, thickness);
    MotifQuirks::SetManaged(_vertical, isTall);
    MotifQuirks::SetManaged(_horizontal, isBroad);
    ShowRange(_vertical, RangeOf(Axis::Vertical));
    ShowRange(_horizontal, RangeOf(Axis::Horizontal));
}

// A viewpoint may stand outside of what there is; the bar then reaches as far.
void MotifCanvasPeer::ShowRange(Widget bar, const Range& range) {
    const MotifQuirks::QuietScope quiet;
    const int shown = std::max(range.shown, 1);
    const int least = std::min(range.first, 0);
    const int most = std::max({range.total, range.first + shown, least + 1});
    XtVaSetValues(bar, XmNminimum, least, XmNmaximum, most, XmNsliderSize, shown, XmNvalue, range.first,
                  XmNincrement, std::max(range.step, 1), XmNpageIncrement, std::max(shown - range.step, 1),
                  nullptr);
}

void MotifCanvasPeer::Repaint() {
    PaintFrame();
    if (!_canvas || !XtIsRealized(_canvas))
        return;
    cairo_surface_t* surface = cairo_xlib_surface_create(XtDisplay(_canvas), XtWindow(_canvas),
                                                         DefaultVisualOfScreen(XtScreen(_canvas)),
                                                         _canvasSize.width, _canvasSize.height);
    cairo_t* context = cairo_create(surface);
    cairo_push_group_with_content(context, CAIRO_CONTENT_COLOR);
    Paint(context);
    cairo_pop_group_to_source(context);
    cairo_paint(context);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}

// What shows of the outer widget around the canvas and the bars: a line, or the broad ring of the focus, and the
// corner between two bars.
void MotifCanvasPeer::PaintFrame() {
    const Widget outer = GetWidget();
    if (!outer || !XtIsRealized(outer))
        return;
    cairo_surface_t* surface = cairo_xlib_surface_create(
        XtDisplay(outer), XtWindow(outer), DefaultVisualOfScreen(XtScreen(outer)), _size.width, _size.height);
    cairo_t* context = cairo_create(surface);
    const auto fill = [&](int inset, ThemeColour colour) {
        CairoShapes::Fill(context, {inset, inset, _size.width - 2 * inset, _size.height - 2 * inset}, colour);
    };
    fill(0, _hasKeyboard ? Theme::Accent : Theme::Background);
    if (!_hasKeyboard)
        fill(Border - 1, Theme::BottomShadow);
    fill(Border, Theme::Background);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}

void MotifCanvasPeer::FrameExposed(Widget, XEvent* event) {
    if (event->xexpose.count == 0)
        PaintFrame();
}

void MotifCanvasPeer::Happened(Widget, XEvent* event) {
    switch (event->type) {
    case Expose:
        if (event->xexpose.count == 0)
            Repaint();
        return;
    case FocusIn:
    case FocusOut:
        if (event->xfocus.detail == NotifyPointer)
            return; // the window has the keyboard, and the pointer happens to be here
        _hasKeyboard = event->type == FocusIn;
        Repaint();
        KeyboardMoved();
        return;
    case ButtonPress:
        ButtonPressed(event->xbutton);
        return;
    case ButtonRelease:
        Released(MouseOf(event->xbutton));
        return;
    case MotionNotify:
        Moved(MouseOf(event->xmotion));
        return;
    case KeyPress:
        KeyPressed(event->xkey);
        return;
    default:
        return;
    }
}

void MotifCanvasPeer::ButtonPressed(const XButtonEvent& event) {
    if (event.button == Button4 || event.button == Button5)
        return Wheeled(event, (event.state & ShiftMask) != 0 ? Axis::Horizontal : Axis::Vertical,
                       event.button == Button4 ? -1 : 1);
    if (event.button == WheelLeft || event.button == WheelRight)
        return Wheeled(event, Axis::Horizontal, event.button == WheelLeft ? -1 : 1);
    Mouse mouse = MouseOf(event);
    XmProcessTraversal(_canvas, XmTRAVERSE_CURRENT);
    const auto pause = static_cast<unsigned long>(XtGetMultiClickTime(XtDisplay(_canvas)));
    mouse.isDouble = event.button == _lastPress.button && !_lastPress.isDouble &&
                     mouse.milliseconds - _lastPress.milliseconds <= pause &&
                     std::abs(mouse.place.x - _lastPress.place.x) <= DoubleReach &&
                     std::abs(mouse.place.y - _lastPress.place.y) <= DoubleReach;
    _lastPress = mouse;
    Pressed(mouse);
}

void MotifCanvasPeer::Wheeled(const XButtonEvent& event, Axis axis, int steps) {
    if ((event.state & ControlMask) != 0)
        return WheeledWithControl(MouseOf(event), -steps);
    const Range range = RangeOf(axis);
    ScrollTo(axis, range.first + steps * range.wheel);
    Refresh();
}

void MotifCanvasPeer::KeyPressed(XKeyEvent& event) {
    std::array<char, 32> text{};
    KeySym symbol = NoSymbol;
    const int length = XLookupString(&event, text.data(), static_cast<int>(text.size()), &symbol, nullptr);
    // What the server gives is Latin 1, one byte a character.
    std::string utf8;
    for (int i = 0; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
        if (byte < 0x80)
            utf8 += static_cast<char>(byte);
        else
            utf8.append({static_cast<char>(0xc0 | byte >> 6), static_cast<char>(0x80 | (byte & 0x3f))});
    }
    Typed({symbol, utf8, event.state, event.time});
}

void MotifCanvasPeer::ScrolledHorizontally(Widget, XtPointer data) {
    ScrollTo(Axis::Horizontal, static_cast<XmScrollBarCallbackStruct*>(data)->value);
    Repaint();
}

void MotifCanvasPeer::ScrolledVertically(Widget, XtPointer data) {
    ScrollTo(Axis::Vertical, static_cast<XmScrollBarCallbackStruct*>(data)->value);
    Repaint();
}

} // namespace trellis
