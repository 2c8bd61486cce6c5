#include "motif/MotifButtonRow.h"

#include "motif/MotifQuirks.h"
#include "motif/MotifView.h"
#include "toolkit/ButtonRowLayout.h"
#include "toolkit/ZOLDialog.h"

#include <Xm/MessageB.h>
#include <Xm/PushBG.h>

namespace trellis {

namespace {

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

MotifButtonRow::MotifButtonRow(MotifView& view, Widget box) : _view(view) {
    for (const ZOLDialogButton button : DialogButtons::Row) {
        const auto index = static_cast<std::size_t>(button);
        _widgets[index] = button == ZOLDialogButton::Apply ? XtNameToWidget(box, "Apply")
                                                           : XmMessageBoxGetChild(box, nativeButtons[index]);
        XtVaSetValues(_widgets[index], XmNrecomputeSize, False, XmNnavigationType, XmTAB_GROUP,
                      XmNshowAsDefault, 0, XmNdefaultButtonShadowThickness, 0, nullptr);
        _faces[index] = std::make_unique<MotifFace>(view, Face::Button);
    }
}

void MotifButtonRow::Mirror(const DialogButtons& buttons, const ZOLDialog& dialog,
                            ZOLDialogButton defaultButton) {
    for (const ZOLDialogButton button : DialogButtons::Row) {
        const DialogButtons::Button& state = buttons.At(button);
        Widget widget = GetWidget(button);
        if (state.isThere) {
            Face face;
            face.text = buttons.GetTitle(button, dialog).Bytes();
            face.isSensitive = state.isSensitive && dialog.IsSensitive();
            XtSetSensitive(widget, face.isSensitive);
            face.mnemonic = _view.GetMnemonics().Of(dialog, button);
            face.isDefault = button == defaultButton && face.isSensitive;
            _faces[static_cast<std::size_t>(button)]->Show(widget, face);
        }
        MotifQuirks::SetManaged(widget, state.isThere);
    }
}

LayoutSize MotifButtonRow::GetSize(const DialogButtons& buttons, const ZOLDialog& dialog) const {
    return ButtonRowLayout(buttons, dialog, _view.GetTextMeasure()).GetSize();
}

void MotifButtonRow::Place(const DialogButtons& buttons, const ZOLDialog& dialog,
                           const LayoutRectangle& row) {
    for (const auto& [button, place] :
         ButtonRowLayout(buttons, dialog, _view.GetTextMeasure()).PlaceIn(row)) {
        MotifQuirks::Configure(GetWidget(button), place.x, place.y, place.width, place.height);
        _faces[static_cast<std::size_t>(button)]->Fit(GetWidget(button));
    }
}

ZOLDialogButton MotifButtonRow::GetButton(Widget widget) const {
    for (const ZOLDialogButton button : DialogButtons::Row)
        if (GetWidget(button) == widget)
            return button;
    return ZOLDialogButton::None;
}

} // namespace trellis
