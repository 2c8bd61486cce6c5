#pragma once

#include "toolkit/DialogButtons.h"
#include "toolkit/ZOLDlgWindow.h"

// ZOLDlgDialog: a window with a row of up to four buttons. Pressing one only sends; the panel decides by
// itself when it closes.
//
// Style bits: 0x400 OK, 0x800 Cancel, 0x1000 Help, 0x2000 Apply (which brings OK with it); none of the four:
// OK and Cancel. A button whose title is set is there whatever the bits say.
class TRELLIS_API ZOLDlgDialog : public ZOLDlgWindow {
    ZOL_META_OBJECT(ZOLDlgDialog, ZOLDlgWindow)
public:
    ZOLDlgDialog(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // Each is sent to this dialog itself, then its fathers.
    ZOLNotification* GetDiaOKNotification() { return &_okNotification; }
    ZOLNotification* GetDiaAPPLYNotification() { return &_applyNotification; }
    ZOLNotification* GetDiaCANCELNotification() { return &_cancelNotification; }
    ZOLNotification* GetDiaHELPNotification() { return &_helpNotification; }

    void SetOKTitle(const ZOLUnicodeString& title) { SetButtonTitle(ZOLDialogButton::OK, title); }
    void SetAPPLYTitle(const ZOLUnicodeString& title) { SetButtonTitle(ZOLDialogButton::Apply, title); }
    void SetCANCELTitle(const ZOLUnicodeString& title) { SetButtonTitle(ZOLDialogButton::Cancel, title); }
    void SetHELPTitle(const ZOLUnicodeString& title) { SetButtonTitle(ZOLDialogButton::Help, title); }
    // ZOLActive or ZOLGreyed.
    void SetOKSensitivity(int sensitivity) { SetButtonSensitivity(ZOLDialogButton::OK, sensitivity); }
    void SetAPPLYSensitivity(int sensitivity) { SetButtonSensitivity(ZOLDialogButton::Apply, sensitivity); }
    void SetCANCELSensitivity(int sensitivity) { SetButtonSensitivity(ZOLDialogButton::Cancel, sensitivity); }
    // The button that Return presses; OK at first, None for dialogs in which Return belongs to their fields.
    void SetDefaultButton(ZOLDialogButton button);

    // Shows the dialog and waits: 1, 2 or 3 for OK, Cancel and Help, 0 when its window was closed. These
    // three answer and send nothing meanwhile; all else in the dialog works as ever. It is hidden again when
    // this returns. Hidden or given up while it waits, it answers 0. Without a view the next queued answer is
    // taken (see ZOLUserDriver).
    int DisplayBlocked();

    // NotThere for a button that the dialog does not have.
    ZOLUserResult UserPress(ZOLDialogButton button);
    ZOLUserResult UserClose() override;
    // Presses the default button; NotThere without one.
    ZOLUserResult UserReturn();

    const trellis::DialogButtons& GetButtons() const { return _buttons; }
    ZOLDialogButton GetDefaultButton() const { return _defaultButton; }
    void DescribeTo(trellis::DialogDescription& description) const override;

private:
    void SetButtonTitle(ZOLDialogButton button, const ZOLUnicodeString& title);
    void SetButtonSensitivity(ZOLDialogButton button, int sensitivity);
    ZOLNotification& NotificationOf(ZOLDialogButton button);

    trellis::DialogButtons _buttons;
    ZOLDialogButton _defaultButton = ZOLDialogButton::OK;
    ZOLNotification _okNotification;
    ZOLNotification _applyNotification;
    ZOLNotification _cancelNotification;
    ZOLNotification _helpNotification;
};
