#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgPushButton: a button that the user presses.
class TRELLIS_API ZOLDlgPushButton : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgPushButton, ZOLDialog)
public:
    ZOLDlgPushButton(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    ZOLNotification* GetPushBActivateNotification() { return &_activateNotification; }
    // 0: pressing it leaves an editor in which the user is typing as it is, so that the typed text is not
    // confirmed first; for buttons that take things back. 1 at first.
    void SetTakesFocus(int takes) { _takesFocus = takes != 0; }
    bool TakesFocus() const { return _takesFocus; }

    ZOLUserResult UserActivate();

    const char* GetKind() const override;
    trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const override;

protected:
    ZOLUnicodeString GetFallbackTitle() const override;

private:
    ZOLNotification _activateNotification;
    bool _takesFocus = true;
};
