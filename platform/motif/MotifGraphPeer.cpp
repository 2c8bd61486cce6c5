#include "motif/MotifGraphPeer.h"

#include "motif/MotifView.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

#include <X11/keysym.h>

#include <algorithm>
#include <cmath>

namespace trellis {

namespace {

constexpr int WheelPixels = 48;
constexpr double ZoomStep = 1.2;

struct StepKey {
    KeySym symbol;
    GraphStep step;
};

constexpr StepKey StepKeys[] = {
    {XK_Left, GraphStep::Left},      {XK_KP_Left, GraphStep::Left}, {XK_Right, GraphStep::Right},
    {XK_KP_Right, GraphStep::Right}, {XK_Up, GraphStep::Up},        {XK_KP_Up, GraphStep::Up},
    {XK_Down, GraphStep::Down},      {XK_KP_Down, GraphStep::Down},
};

bool IsPlus(KeySym symbol) {
    return symbol == XK_plus || symbol == XK_KP_Add;
}

bool IsMinus(KeySym symbol) {
    return symbol == XK_minus || symbol == XK_KP_Subtract;
}

int Rounded(double value) {
    return static_cast<int>(std::lround(value));
}

} // namespace

MotifGraphPeer::MotifGraphPeer(MotifView& view, ZOLGraphViewer& viewer)
    : MotifCanvasPeer(view, viewer), _viewer(viewer), _painter(Text()) {}

const TextMeasure& MotifGraphPeer::Measure() const {
    return GetView().GetTextMeasure();
}

LayoutSize MotifGraphPeer::ContentSize() {
    const LayoutSize size = _viewer.GetDrawing(Measure()).Size();
    return {static_cast<int>(std::ceil(size.width * _frame.zoom)) + 2 * GraphFrame::Margin,
            static_cast<int>(std::ceil(size.height * _frame.zoom)) + 2 * GraphFrame::Margin};
}

void MotifGraphPeer::Fit(LayoutSize canvas) {
    _frame.area = canvas;
    _viewer.SetShownArea(_frame.ShownArea());
    _frame.viewPoint = _viewer.GetViewPoint(Measure());
}

MotifCanvasPeer::Range MotifGraphPeer::RangeOf(Axis axis) {
    const LayoutSize shown = _frame.ShownArea();
    const LayoutSize whole = _viewer.GetDrawing(Measure()).Size();
    const int step = Rounded(WheelPixels / _frame.zoom);
    if (axis == Axis::Horizontal)
        return {_frame.viewPoint.x, shown.width, whole.width, step, step};
    return {_frame.viewPoint.y, shown.height, whole.height, step, step};
}

void MotifGraphPeer::ScrollTo(Axis axis, int first) {
    LayoutPoint point = _frame.viewPoint;
    (axis == Axis::Horizontal ? point.x : point.y) = first;
    MoveViewPoint(point);
}

// However far the user moves, a part of the drawing stays in sight.
void MotifGraphPeer::MoveViewPoint(LayoutPoint point) {
    const LayoutSize size = _viewer.GetDrawing(Measure()).Size();
    const LayoutSize shown = _frame.ShownArea();
    point.x = std::clamp(point.x, 0, std::max(size.width - shown.width, 0));
    point.y = std::clamp(point.y, 0, std::max(size.height - shown.height, 0));
    _viewer.SetViewPoint(point);
    _frame.viewPoint = point;
}

GraphPicture MotifGraphPeer::Picture() const {
    return {_viewer.GetDrawing(Measure()),
            _viewer.GetGraph()->GetLayoutStyle(),
            _frame,
            _viewer.GetBackgroundColor(),
            HasKeyboard() ? _viewer.GetFocusNode() : nullptr,
            _viewer.IsSensitive()};
}

void MotifGraphPeer::Paint(cairo_t* context) {
    _painter.Paint(context, Picture());
}

ZOLUnicodeString MotifGraphPeer::CutTextAt(const LayoutPoint& place) const {
    const GraphPicture picture = Picture();
    const GraphHit hit = _painter.HitAt(picture, place);
    if (!hit.node)
        return {};
    const auto position = static_cast<std::size_t>(picture.drawing.Position(hit.node));
    const LayoutRectangle& node = picture.drawing.Nodes()[position].place;
    const LayoutRectangle sight = _frame.InSight();
    const bool isCut = node.x < sight.x || node.y < sight.y || node.x + node.width > sight.x + sight.width ||
                       node.y + node.height > sight.y + sight.height;
    return isCut || !_painter.ShowsTexts(_frame) ? hit.node->getText() : ZOLUnicodeString();
}

LayoutRectangle MotifGraphPeer::GetMenuPlace() const {
    const GraphDrawing& drawing = _viewer.GetDrawing(Measure());
    const int position = drawing.Position(_viewer.GetFocusNode());
    if (position < 0)
        return {GraphFrame::Margin, GraphFrame::Margin, 1, 1};
    const LayoutRectangle& place = drawing.Nodes()[static_cast<std::size_t>(position)].place;
    const int x = Rounded((place.x - _frame.viewPoint.x) * _frame.zoom) + GraphFrame::Margin;
    const int y = Rounded((place.y + place.height - _frame.viewPoint.y) * _frame.zoom) + GraphFrame::Margin;
    return {std::clamp(x, 0, CanvasSize().width), std::clamp(y, 0, CanvasSize().height), 1, 1};
}

void MotifGraphPeer::PointerAt(const LayoutPoint& place) {
    const std::optional<LayoutPoint> inside = InCanvas(place);
    _hasPointer = inside.has_value();
    _viewer.UserPointAt(inside ? _viewer.GetDrawing(Measure()).NodeAt(_frame.ToDrawing(*inside)) : nullptr);
}

void MotifGraphPeer::PointerLeft() {
    _hasPointer = false;
    _viewer.UserPointAt(nullptr);
}

// Who comes by key looks at the node with the focus; who clicks, at what is under the pointer.
void MotifGraphPeer::KeyboardMoved() {
    if (!_hasPointer)
        _viewer.UserPointAt(HasKeyboard() ? _viewer.GetFocusNode() : nullptr);
}

void MotifGraphPeer::Pressed(const Mouse& mouse) {
    if (ZOLGraphNode* node = _painter.HitAt(Picture(), mouse.place).node; node && mouse.button != Button2)
        PressedNode(mouse, node);
    else
        PressedBackground(mouse);
}

void MotifGraphPeer::PressedNode(const Mouse& mouse, ZOLGraphNode* node) {
    GetView().Changed(_viewer); // the focus moves, even where nobody listens
    if (mouse.button == Button1)
        _viewer.UserClickNode(node, (mouse.state & (ShiftMask | ControlMask)) != 0);
    else if (mouse.button == Button3)
        _viewer.UserContextNode(node);
}

void MotifGraphPeer::PressedBackground(const Mouse& mouse) {
    if (mouse.button == Button3) {
        _viewer.UserContextBackground();
        return;
    }
    _isDragging = true;
    _dragStart = mouse.place;
    _dragViewPoint = _frame.viewPoint;
    if (mouse.button == Button1)
        _viewer.UserClickBackground();
}

void MotifGraphPeer::Moved(const Mouse& mouse) {
    if (!_isDragging)
        return;
    MoveViewPoint({_dragViewPoint.x - Rounded((mouse.place.x - _dragStart.x) / _frame.zoom),
                   _dragViewPoint.y - Rounded((mouse.place.y - _dragStart.y) / _frame.zoom)});
    Refresh();
}

void MotifGraphPeer::Released(const Mouse&) {
    _isDragging = false;
}

void MotifGraphPeer::WheeledWithControl(const Mouse& mouse, int steps) {
    Zoom(mouse.place, steps > 0 ? ZoomStep : 1 / ZoomStep);
}

void MotifGraphPeer::Zoom(LayoutPoint place, double factor) {
    _frame = _frame.ZoomedAt(place, _frame.zoom * factor);
    // Steps up and down meet the plain size again, where texts are sharpest.
    if (std::abs(_frame.zoom - 1) < 0.01)
        _frame.zoom = 1;
    _viewer.SetShownArea(_frame.ShownArea());
    MoveViewPoint(_frame.viewPoint);
    Refresh();
}

void MotifGraphPeer::ZoomByKey(double factor) {
    Zoom({CanvasSize().width / 2, CanvasSize().height / 2}, factor);
}

void MotifGraphPeer::Typed(const Key& key) {
    if ((key.state & ControlMask) == 0) {
        TypedPlain(key);
        return;
    }
    if (key.symbol == XK_space)
        _viewer.UserExtendFocus();
    else if (IsPlus(key.symbol))
        ZoomByKey(ZoomStep);
    else if (IsMinus(key.symbol))
        ZoomByKey(1 / ZoomStep);
    else if (key.symbol == XK_0 || key.symbol == XK_KP_0)
        ZoomByKey(1 / _frame.zoom);
}

void MotifGraphPeer::TypedPlain(const Key& key) {
    for (const StepKey& stepKey : StepKeys)
        if (stepKey.symbol == key.symbol) {
            if ((key.state & ShiftMask) != 0)
                _viewer.UserExtendTo(stepKey.step);
            else
                _viewer.UserMoveFocus(stepKey.step);
            return;
        }
    if (key.symbol == XK_space && (key.state & ShiftMask) != 0)
        _viewer.UserContextFocus();
    else if (key.symbol == XK_space)
        _viewer.UserClickFocus();
    else if (IsPlus(key.symbol))
        _viewer.UserOpenFocus();
    else if (IsMinus(key.symbol))
        _viewer.UserCloseFocus();
}

} // namespace trellis
