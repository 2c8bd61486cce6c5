#include "toolkit/ZOLDlgDialog.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/DialogDescription.h"
#include "toolkit/OpenQuestions.h"
#include "toolkit/QuestionDesk.h"
#include "values/ContractBreach.h"

namespace {

constexpr unsigned long okBit = 0x400;
constexpr unsigned long cancelBit = 0x800;
constexpr unsigned long helpBit = 0x1000;
constexpr unsigned long applyBit = 0x2000;
constexpr unsigned long buttonBits = okBit | cancelBit | helpBit | applyBit;

} // namespace

ZOLDlgDialog::ZOLDlgDialog(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgWindow(father, name, style),
      _okNotification("ZOLDlgDiaOKNotification"),
      _applyNotification("ZOLDlgDiaAPPLYNotification"),
      _cancelNotification("ZOLDlgDiaCANCELNotification"),
      _helpNotification("ZOLDlgDiaHELPNotification") {
    const unsigned long bits = style & buttonBits ? style : okBit | cancelBit;
    _buttons.At(ZOLDialogButton::OK).isThere = bits & (okBit | applyBit);
    _buttons.At(ZOLDialogButton::Cancel).isThere = bits & cancelBit;
    _buttons.At(ZOLDialogButton::Help).isThere = bits & helpBit;
    _buttons.At(ZOLDialogButton::Apply).isThere = bits & applyBit;
}

void ZOLDlgDialog::SetButtonTitle(ZOLDialogButton button, const ZOLUnicodeString& title) {
    _buttons.SetTitle(button, title);
    MarkChanged();
}

void ZOLDlgDialog::SetButtonSensitivity(ZOLDialogButton button, int sensitivity) {
    _buttons.At(button).isSensitive = sensitivity == ZOLActive;
    MarkChanged();
}

void ZOLDlgDialog::SetDefaultButton(ZOLDialogButton button) {
    _defaultButton = button;
    MarkChanged();
}

ZOLNotification& ZOLDlgDialog::NotificationOf(ZOLDialogButton button) {
    switch (button) {
    case ZOLDialogButton::OK:
        return _okNotification;
    case ZOLDialogButton::Apply:
        return _applyNotification;
    case ZOLDialogButton::Cancel:
        return _cancelNotification;
    case ZOLDialogButton::Help:
        return _helpNotification;
    case ZOLDialogButton::None:
        break;
    }
    ContractBreach("ZOLDlgDialog::NotificationOf", "no button");
}

int ZOLDlgDialog::DisplayBlocked() {
    const trellis::CallbackScope scope; // keeps this dialog, also when it is given up while it waits
    SetVisibility(ZOLShown);
    ZOLShownMessage message;
    message.title = GetTitle();
    message.isQuestion = true;
    for (const ZOLDialogButton button : {ZOLDialogButton::OK, ZOLDialogButton::Cancel, ZOLDialogButton::Help})
        if (_buttons.At(button).isThere)
            message.buttons.push_back(static_cast<int>(button));
    const int answer = trellis::QuestionDesk::Instance().Ask(*this, GetOwner(), message);
    SetVisibility(ZOLHidden);
    return answer;
}

ZOLUserResult ZOLDlgDialog::UserPress(ZOLDialogButton button) {
    const trellis::CallbackScope scope;
    if (!_buttons.At(button).isThere)
        return ZOLUserResult::NotThere;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    if (!_buttons.At(button).isSensitive)
        return ZOLUserResult::Insensitive;
    const bool isAnswer = button != ZOLDialogButton::Apply;
    if (isAnswer && trellis::OpenQuestions::Instance().Answer(*this, static_cast<int>(button)))
        return ZOLUserResult::Done;
    SendNotification(this, &NotificationOf(button));
    return ZOLUserResult::Done;
}

ZOLUserResult ZOLDlgDialog::UserClose() {
    if (UserGate() != ZOLUserResult::BehindQuestion && trellis::OpenQuestions::Instance().Answer(*this, 0))
        return ZOLUserResult::Done;
    return ZOLDlgWindow::UserClose();
}

ZOLUserResult ZOLDlgDialog::UserReturn() {
    return UserPress(_defaultButton);
}

void ZOLDlgDialog::DescribeTo(trellis::DialogDescription& description) const {
    ZOLDlgWindow::DescribeTo(description);
    const trellis::DialogDescription::Indent indent(description);
    description.Line(_buttons.Describe(*this, _defaultButton));
}
