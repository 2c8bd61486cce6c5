#include "motif/MotifComboPeer.h"

#include "motif/CairoShapes.h"
#include "motif/MotifView.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/ZOLDlgCombo.h"

#include <Xm/ComboBox.h>
#include <Xm/List.h>
#include <Xm/TextF.h>
#include <cairo-xlib.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace trellis {

namespace {

constexpr int border = 3;    // the ring of the focus and the line around the field
constexpr int mostRows = 12; // of the list, before it scrolls
constexpr int chevron = 10;  // width of the arrow, in plain pixels

} // namespace

MotifComboPeer::MotifComboPeer(MotifView& view, ZOLDlgCombo& combo)
    : MotifFieldPeer(view, combo), _combo(combo) {}

// The native arrow is a triangle with shadows; it is painted over.
Widget MotifComboPeer::Build(Widget parent) {
    const LayoutMetrics metrics(GetView().GetTextMeasure());
    Widget combo =
        XtVaCreateWidget(_combo.GetName().ConvertToChar(), xmComboBoxWidgetClass, parent, XmNcomboBoxType,
                         _combo.IsEditable() ? XmDROP_DOWN_COMBO_BOX : XmDROP_DOWN_LIST, XmNpositionMode,
                         XmZERO_BASED, XmNarrowSize, metrics.Arrow() - 4, nullptr);
    Widget field = XtNameToWidget(combo, "*Text");
    XtVaSetValues(field, XmNcursorPositionVisible, False, XmNmarginWidth,
                  std::max(1, metrics.FieldMargin() - border), XmNmarginHeight,
                  std::max(0, metrics.TextMargin() - border), nullptr);
    Connect<&MotifComboPeer::Chosen>(combo, XmNselectionCallback);
    WatchLine(field);
    Listen<&MotifComboPeer::PaintArrow>(combo, ExposureMask);
    Listen<&MotifComboPeer::ArrowTouched>(combo, ButtonPressMask | ButtonReleaseMask);
    // The shell of the list has the mouse while it is open.
    Listen<&MotifComboPeer::ArrowTouched>(XtNameToWidget(combo, "*GrabShell"),
                                          ButtonPressMask | ButtonReleaseMask | StructureNotifyMask);
    if (_combo.IsEditable()) {
        Connect<&MotifComboPeer::Typed>(field, XmNvalueChangedCallback);
        Listen<&MotifComboPeer::TypingMoved>(field, FocusChangeMask);
    }
    OpensMenu(combo);
    OpensMenu(field);
    return combo;
}

Widget MotifComboPeer::GetField() const {
    return XtNameToWidget(GetWidget(), "*Text");
}

void MotifComboPeer::Mirror() {
    MotifQuirks::SetSensitive(GetWidget(), _combo.IsSensitive());
    MotifFieldPeer::Mirror();
    MirrorLines();
    MirrorSelection();
    const std::unique_ptr<char, decltype(&XtFree)> shown(XmTextFieldGetString(GetField()), &XtFree);
    const std::string& text = _combo.GetField().Bytes();
    if (shown.get() != text)
        XmTextFieldSetString(GetField(), MotifQuirks::Name(text.c_str()));
    MotifQuirks::Redraw(GetWidget());
}

ZOLUnicodeString MotifComboPeer::GetLineText() const {
    return _combo.GetField();
}

// The list shows one line at least, or it cannot be sized.
void MotifComboPeer::MirrorLines() {
    MotifFonts& fonts = GetView().GetFonts();
    std::vector<std::string> lines;
    for (int line = 0; line < _combo.GetLineCount(); ++line) {
        ZOLUnicodeString text;
        _combo.GetLine(text, line);
        lines.push_back(text.Bytes());
    }
    // An open list given its lines anew loses its width.
    if (_lines == lines)
        return;
    _lines = lines;
    std::vector<XmString> items;
    for (const std::string& line : lines)
        items.push_back(fonts.Compose(line));
    const int count = _combo.GetLineCount();
    fonts.TeachAll(XtNameToWidget(GetWidget(), "*List"));
    XtVaSetValues(GetWidget(), XmNitems, items.data(), XmNitemCount, count, XmNvisibleItemCount,
                  std::clamp(count, 1, mostRows), nullptr);
    for (XmString item : items)
        XmStringFree(item);
}

void MotifComboPeer::MirrorSelection() {
    if (_combo.GetSelect() >= 0)
        XtVaSetValues(GetWidget(), XmNselectedPosition, _combo.GetSelect(), nullptr);
}

void MotifComboPeer::PaintArrow(Widget combo, XEvent* event) {
    if (event->xexpose.count > 0)
        return;
    const LayoutRectangle place = MotifQuirks::PlaceOf(combo);
    const LayoutRectangle field = MotifQuirks::PlaceOf(GetField());
    const int left = field.x + field.width;
    cairo_surface_t* surface = cairo_xlib_surface_create(
        XtDisplay(combo), XtWindow(combo), DefaultVisualOfScreen(XtScreen(combo)), place.width, place.height);
    cairo_t* context = cairo_create(surface);
    const int bottom = place.height - border;
    const int right = place.width - border;
    // Around the field all is ground, whatever of it the native widget has left.
    CairoShapes::Fill(context, {border, border, right - border, field.y - border}, GetGround());
    CairoShapes::Fill(context,
                      {border, field.y + field.height, right - border, bottom - field.y - field.height},
                      GetGround());
    CairoShapes::Fill(context, {left, border, right - left, bottom - border}, GetGround());
    CairoShapes::Chevron(context, (left + right) / 2.0, place.height / 2.0,
                         GetView().GetTheme().Pixels(chevron),
                         _combo.IsSensitive() ? Theme::HeaderText : Theme::BottomShadow);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}

// Behind this handler the native arrow shows whether it is pressed.
void MotifComboPeer::ArrowTouched(Widget, XEvent*) {
    MotifQuirks::Redraw(GetWidget());
}

// The caret shows only where the keyboard goes.
void MotifComboPeer::TypingMoved(Widget field, XEvent* event) {
    if (event->xfocus.detail == NotifyPointer)
        return;
    XtVaSetValues(field, XmNcursorPositionVisible, static_cast<Boolean>(event->type == FocusIn), nullptr);
}

void MotifComboPeer::Chosen(Widget, XtPointer callData) {
    // An arrow key, or that the field lost the keyboard, come without an event; what was typed stays then.
    if (!static_cast<XmComboBoxCallbackStruct*>(callData)->event && _combo.GetSelect() < 0)
        return;
    // What the combo itself tells is the line that was chosen before.
    int* positions = nullptr; // from 1
    int count = 0;
    if (!XmListGetSelectedPos(XtNameToWidget(GetWidget(), "*List"), &positions, &count))
        return;
    const int line = positions[0] - 1;
    XtFree(reinterpret_cast<char*>(positions));
    _combo.UserSelect(line);
}

// The combo itself sets the field as well, without an event.
void MotifComboPeer::Typed(Widget field, XtPointer callData) {
    if (!static_cast<XmAnyCallbackStruct*>(callData)->event)
        return;
    const std::unique_ptr<char, decltype(&XtFree)> text(XmTextFieldGetString(field), &XtFree);
    _combo.UserEditField(text.get());
}

} // namespace trellis
