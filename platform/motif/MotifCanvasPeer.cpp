#include "motif/MotifCanvasPeer.h"

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

constexpr int Border = 1;
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
    Listen<&MotifCanvasPeer::Happened>(_canvas, ExposureMask | FocusChangeMask | ButtonPressMask |
                                                    ButtonReleaseMask | ButtonMotionMask | KeyPressMask);
    return outer;
}

void MotifCanvasPeer::Mirror() {
    MotifPeer::Mirror();
    Refresh();
}

void MotifCanvasPeer::Place(const LayoutRectangle& place) {
    MotifPeer::Place(place);
    _size = {std::max(place.width, 1), std::max(place.height, 1)};
    Refresh();
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
    ShowRange(_vertical, VerticalRange());
    ShowRange(_horizontal, HorizontalRange());
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

// The frame is what shows of the outer widget; it tells where the keyboard is.
void MotifCanvasPeer::PaintFrame() {
    const ThemeColour colour = _hasKeyboard ? Theme::Accent : Theme::BottomShadow;
    if (colour == _frameColour)
        return;
    _frameColour = colour;
    XtVaSetValues(GetWidget(), XmNbackground, MotifQuirks::Colour(GetWidget(), colour), nullptr);
}

MotifCanvasPeer::Mouse MotifCanvasPeer::MouseOf(unsigned button, unsigned state, Time time, int x, int y,
                                                int rootX, int rootY) const {
    return {{x, y}, {rootX, rootY}, button, state, time, false};
}

void MotifCanvasPeer::Happened(Widget, XEvent* event) {
    switch (event->type) {
    case Expose:
        if (event->xexpose.count == 0)
            Repaint();
        return;
    case FocusIn:
    case FocusOut:
        _hasKeyboard = event->type == FocusIn;
        Repaint();
        return;
    case ButtonPress:
        ButtonPressed(event->xbutton);
        return;
    case ButtonRelease:
        Released(MouseOf(event->xbutton.button, event->xbutton.state, event->xbutton.time, event->xbutton.x,
                         event->xbutton.y, event->xbutton.x_root, event->xbutton.y_root));
        return;
    case MotionNotify:
        Moved(MouseOf(0, event->xmotion.state, event->xmotion.time, event->xmotion.x, event->xmotion.y,
                      event->xmotion.x_root, event->xmotion.y_root));
        return;
    case KeyPress:
        KeyPressed(event->xkey);
        return;
    default:
        return;
    }
}

void MotifCanvasPeer::ButtonPressed(const XButtonEvent& event) {
    Mouse mouse =
        MouseOf(event.button, event.state, event.time, event.x, event.y, event.x_root, event.y_root);
    if (event.button == Button4 || event.button == Button5) {
        Wheeled(mouse, event.button == Button4 ? -1 : 1, (event.state & ShiftMask) != 0);
        return;
    }
    if (event.button == WheelLeft || event.button == WheelRight) {
        Wheeled(mouse, event.button == WheelLeft ? -1 : 1, true);
        return;
    }
    XmProcessTraversal(_canvas, XmTRAVERSE_CURRENT);
    const auto pause = static_cast<unsigned long>(XtGetMultiClickTime(XtDisplay(_canvas)));
    mouse.isDouble = event.button == _lastPress.button && !_lastPress.isDouble &&
                     mouse.milliseconds - _lastPress.milliseconds <= pause &&
                     std::abs(mouse.place.x - _lastPress.place.x) <= DoubleReach &&
                     std::abs(mouse.place.y - _lastPress.place.y) <= DoubleReach;
    _lastPress = mouse;
    Pressed(mouse);
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
    ScrolledTo(true, static_cast<XmScrollBarCallbackStruct*>(data)->value);
}

void MotifCanvasPeer::ScrolledVertically(Widget, XtPointer data) {
    ScrolledTo(false, static_cast<XmScrollBarCallbackStruct*>(data)->value);
}

} // namespace trellis
