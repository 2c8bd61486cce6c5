#include "motif/MotifFieldPeer.h"

#include "motif/CairoShapes.h"
#include "motif/MotifView.h"
#include "toolkit/DialogLayout.h"
#include "toolkit/ZOLDialog.h"

#include <cairo-xlib.h>

#include <utility>

namespace trellis {

MotifFieldPeer::~MotifFieldPeer() {
    if (_title)
        _title->Destroy();
}

void MotifFieldPeer::Mirror() {
    const ZOLUnicodeString title = GetDialog().GetTitle();
    if (!_title && !title.IsEmpty())
        _title.emplace(GetView(), XtParent(GetWidget()), "fieldTitle");
    if (_title)
        _title->Show(title, GetDialog().IsSensitive(), GetMnemonic());
    if (_line)
        MirrorLine();
}

void MotifFieldPeer::WatchLine(Widget line) {
    _line = line;
    Listen<&MotifFieldPeer::PaintLine>(line, ExposureMask);
    Listen<&MotifFieldPeer::FocusMoved>(line, FocusChangeMask);
}

ThemeColour MotifFieldPeer::GetGround() const {
    return GetDialog().IsSensitive() ? Theme::Field : Theme::GreyedField;
}

void MotifFieldPeer::MirrorLine() {
    MotifFonts& fonts = GetView().GetFonts();
    if (const int font = fonts.FontFor(GetLineText().Bytes()); std::exchange(_font, font) != font)
        fonts.Dress(_line, font);
    XtVaSetValues(_line, XmNbackground, MotifQuirks::Colour(_line, GetGround()), nullptr);
    MotifQuirks::Redraw(_line);
}

bool MotifFieldPeer::IsPaintedOver() const {
    return !GetDialog().IsSensitive() ||
           (!_isTypedIn && !GetView().GetFonts().CanWrite(GetLineText().Bytes()));
}

void MotifFieldPeer::PaintLine(Widget line, XEvent* event) {
    if (event->xexpose.count > 0 || !IsPaintedOver())
        return;
    Dimension ring = 0;
    Dimension border = 0;
    Dimension margin = 0;
    XtVaGetValues(line, XmNhighlightThickness, &ring, XmNshadowThickness, &border, XmNmarginWidth, &margin,
                  nullptr);
    const LayoutRectangle place = MotifQuirks::PlaceOf(line);
    const int inset = ring + border;
    const int height = place.height - 2 * inset;
    TextPainter& text = GetView().GetTextPainter();
    cairo_surface_t* surface = cairo_xlib_surface_create(
        XtDisplay(line), XtWindow(line), DefaultVisualOfScreen(XtScreen(line)), place.width, place.height);
    cairo_t* context = cairo_create(surface);
    CairoShapes::Fill(context, {inset, inset, place.width - 2 * inset, height}, GetGround());
    CairoShapes::SetColour(context, GetDialog().IsSensitive() ? Theme::Text : Theme::GreyedText);
    text.DrawWithin(context, GetLineText().Bytes(), inset + margin,
                    inset + (height - text.LineHeight()) / 2.0, place.width - 2 * (inset + margin));
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}

void MotifFieldPeer::FocusMoved(Widget line, XEvent* event) {
    if (event->xfocus.detail == NotifyPointer)
        return; // the window has the keyboard, and the pointer happens to be here
    _isTypedIn = event->type == FocusIn;
    MotifQuirks::Redraw(line);
}

void MotifFieldPeer::PlaceContent(const DialogLayout& layout, const LayoutRectangle& place) {
    const auto title = layout.FindTitle(GetDialog());
    _hasRoom = title.has_value();
    if (!_title || !title)
        return;
    const LayoutRectangle field = MotifQuirks::PlaceOf(GetWidget());
    _title->Place({field.x + title->x - place.x, field.y + title->y - place.y, title->width, title->height});
}

void MotifFieldPeer::SetShown(bool isShown) {
    MotifPeer::SetShown(isShown);
    if (_title)
        _title->SetManaged(isShown && _hasRoom);
}

} // namespace trellis
