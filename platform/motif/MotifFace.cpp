#include "motif/MotifFace.h"

#include "motif/MotifQuirks.h"
#include "motif/MotifView.h"

#include <cairo-xlib.h>

#include <algorithm>

namespace trellis {

MotifFace::MotifFace(MotifView& view, Face::Kind kind) : _view(view), _kind(kind) {}

MotifFace::~MotifFace() {
    Free(_picture);
    Free(_second);
}

void MotifFace::Free(Pixmap picture) {
    if (picture)
        XFreePixmap(_view.GetDisplay(), picture);
}

void MotifFace::Show(Widget widget, Face face) {
    const LayoutRectangle place = MotifQuirks::PlaceOf(widget);
    face.kind = _kind;
    face.size = {std::max(1, place.width - 2 * RingWidth()), std::max(1, place.height - 2 * RingWidth())};
    if (face == _shown)
        return;
    _shown = face;
    const Pixmap oldPicture = std::exchange(_picture, Painted(widget, false));
    const bool hasSecond = _kind == Face::Button || !face.isSensitive;
    const Pixmap oldSecond = std::exchange(_second, hasSecond ? Painted(widget, true) : 0);
    Carry(widget);
    Free(oldPicture);
    Free(oldSecond);
}

void MotifFace::Fit(Widget widget) {
    if (_shown.kind != Face::Nothing)
        Show(widget, _shown);
}

Pixmap MotifFace::Painted(Widget widget, bool isPressed) {
    Screen* screen = XtScreenOfObject(widget);
    const auto width = static_cast<unsigned>(_shown.size.width);
    const auto height = static_cast<unsigned>(_shown.size.height);
    const Pixmap picture = XCreatePixmap(_view.GetDisplay(), RootWindowOfScreen(screen), width, height,
                                         static_cast<unsigned>(DefaultDepthOfScreen(screen)));
    cairo_surface_t* surface = cairo_xlib_surface_create(
        _view.GetDisplay(), picture, DefaultVisualOfScreen(screen), _shown.size.width, _shown.size.height);
    cairo_t* context = cairo_create(surface);
    FacePainter(_view.GetTheme(), _view.GetTextPainter()).Paint(context, _shown, isPressed);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    return picture;
}

// Whatever state the native widget believes itself in, it shows the picture that was painted for it. A greyed
// widget whose two pictures are one would put a grid over it. A toggle that is on remembers how wide its picture was
// before it became narrower, so the picture begins where the widget does instead of standing in its middle.
void MotifFace::Carry(Widget widget) {
    const Pixmap greyed = _shown.isSensitive ? _picture : _second;
    XtVaSetValues(widget, XmNlabelType, XmPIXMAP, XmNalignment, XmALIGNMENT_BEGINNING, XmNmarginWidth, 0,
                  XmNmarginHeight, 0, XmNmarginLeft, 0, XmNmarginRight, 0, XmNmarginTop, 0, XmNmarginBottom,
                  0, XmNshadowThickness, 0, XmNhighlightThickness, RingWidth(), XmNrecomputeSize, False,
                  XmNlabelPixmap, _picture, XmNlabelInsensitivePixmap, greyed, nullptr);
    if (_kind == Face::Button)
        XtVaSetValues(widget, XmNarmPixmap, _second, XmNfillOnArm, False, nullptr);
    if (_kind == Face::Check || _kind == Face::Radio)
        XtVaSetValues(widget, XmNindicatorOn, XmINDICATOR_NONE, XmNfillOnSelect, False, XmNselectPixmap,
                      _picture, XmNselectInsensitivePixmap, greyed, nullptr);
    // A label of the same size does not draw itself again for another picture.
    const LayoutRectangle part = XtIsWidget(widget) ? LayoutRectangle() : MotifQuirks::PlaceOf(widget);
    if (const Window window = XtWindowOfObject(widget)) // a button without window stands in that of its box
        XClearArea(_view.GetDisplay(), window, part.x, part.y, static_cast<unsigned>(part.width),
                   static_cast<unsigned>(part.height), True);
}

} // namespace trellis
