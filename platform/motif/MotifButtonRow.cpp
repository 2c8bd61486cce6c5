#include "motif/MotifButtonRow.h"

#include "motif/MotifQuirks.h"
#include "motif/Theme.h"
#include "toolkit/TextMeasure.h"

#include <Xm/MessageB.h>
#include <Xm/PushBG.h>

#include <algorithm>

namespace trellis {

namespace {

constexpr int leastWidth = 76; // of a button, in pixels of the plain theme

constexpr std::array<unsigned char, 5> nativeButtons = {0, XmDIALOG_OK_BUTTON, XmDIALOG_CANCEL_BUTTON,
                                                        XmDIALOG_HELP_BUTTON, 0};

} // namespace

// A template has only those buttons that get a text when it is made. They are gadgets: without window or
// screen of their own.
Widget MotifButtonRow::MakeBox(const char* name, Widget parent) {
    const MotifQuirks::Text text(" ");
    Widget box = XtVaCreateWidget(name, xmMessageBoxWidgetClass, parent, XmNdialogType, XmDIALOG_TEMPLATE,
                                  XmNokLabelString, text.Get(), XmNcancelLabelString, text.Get(),
                                  XmNhelpLabelString, text.Get(), XmNautoUnmanage, False, XmNmarginWidth, 0,
                                  XmNmarginHeight, 0, XmNshadowThickness, 0, XmNresizePolicy, XmRESIZE_NONE,
                                  XmNdefaultPosition, False, nullptr);
    XtVaCreateManagedWidget("Apply", xmPushButtonGadgetClass, box, nullptr);
    XtVaSetValues(box, XmNdefaultButton, nullptr, nullptr); // the cancelling button is how others find Cancel
    if (Widget separator = XmMessageBoxGetChild(box, XmDIALOG_SEPARATOR))
        XtUnmanageChild(separator);
    return box;
}

MotifButtonRow::MotifButtonRow(Widget box, const Theme& theme, const TextMeasure& measure)
    : _theme(theme), _measure(measure) {
    for (const ZOLDialogButton button : DialogButtons::Row) {
        const auto index = static_cast<std::size_t>(button);
        _widgets[index] = button == ZOLDialogButton::Apply ? XtNameToWidget(box, "Apply")
                                                           : XmMessageBoxGetChild(box, nativeButtons[index]);
        XtVaSetValues(_widgets[index], XmNrecomputeSize, False, XmNnavigationType, XmTAB_GROUP,
                      XmNshowAsDefault, 0, XmNdefaultButtonShadowThickness, 0, nullptr);
    }
}

void MotifButtonRow::Mirror(const DialogButtons& buttons, const ZOLDialog& dialog,
                            ZOLDialogButton defaultButton) {
    for (const ZOLDialogButton button : DialogButtons::Row) {
        const DialogButtons::Button& state = buttons.At(button);
        Widget widget = GetWidget(button);
        if (state.isThere) {
            MotifQuirks::SetLabel(widget, buttons.GetTitle(button, dialog));
            XtSetSensitive(widget, state.isSensitive);
            Dress(widget, button == defaultButton && state.isSensitive);
        }
        MotifQuirks::SetManaged(widget, state.isThere);
    }
}

void MotifButtonRow::Dress(Widget widget, bool standsOut) {
    const Widget box = XtParent(widget);
    const Pixel ground = MotifQuirks::Colour(box, standsOut ? Theme::Accent : Theme::Field);
    const Pixel text = MotifQuirks::Colour(box, standsOut ? Theme::Field : Theme::Text);
    const Pixel armed = MotifQuirks::Colour(box, standsOut ? Theme::HeaderText : Theme::Selection);
    XtVaSetValues(widget, XmNbackground, ground, XmNforeground, text, XmNarmColor, armed, nullptr);
}

int MotifButtonRow::ButtonWidth(const DialogButtons& buttons, const ZOLDialog& dialog) const {
    int width = _theme.Pixels(leastWidth);
    for (const ZOLDialogButton button : DialogButtons::Row)
        if (buttons.At(button).isThere)
            width = std::max(width, _measure.GetTextWidth(buttons.GetTitle(button, dialog)) +
                                        2 * _theme.Pixels(Theme::ButtonWidthMargin));
    return width;
}

LayoutSize MotifButtonRow::GetSize(const DialogButtons& buttons, const ZOLDialog& dialog) const {
    const auto count =
        static_cast<int>(std::count_if(DialogButtons::Row.begin(), DialogButtons::Row.end(),
                                       [&](ZOLDialogButton button) { return buttons.At(button).isThere; }));
    const int gap = _theme.Pixels(Theme::FormSpacing);
    return {count * ButtonWidth(buttons, dialog) + std::max(0, count - 1) * gap,
            _measure.GetLineHeight() + 2 * _theme.Pixels(Theme::ButtonHeightMargin)};
}

void MotifButtonRow::Place(const DialogButtons& buttons, const ZOLDialog& dialog,
                           const LayoutRectangle& row) {
    const int width = ButtonWidth(buttons, dialog);
    int x = row.x + row.width - GetSize(buttons, dialog).width;
    for (const ZOLDialogButton button : DialogButtons::Row) {
        if (!buttons.At(button).isThere)
            continue;
        MotifQuirks::Configure(GetWidget(button), x, row.y, width, row.height);
        x += width + _theme.Pixels(Theme::FormSpacing);
    }
}

ZOLDialogButton MotifButtonRow::GetButton(Widget widget) const {
    for (const ZOLDialogButton button : DialogButtons::Row)
        if (GetWidget(button) == widget)
            return button;
    return ZOLDialogButton::None;
}

} // namespace trellis
