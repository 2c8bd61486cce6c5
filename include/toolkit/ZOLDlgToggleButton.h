#pragma once

#include "toolkit/ZOLDialog.h"

// States of check and radio buttons. Both words are above 0: compare with ZOLOn.
enum ZOLButtonState { ZOLOn = 0x40000, ZOLOff = 0x80000 };

// ZOLDlgToggleButton: a button that is on or off. It keeps any word given, and is on for exactly ZOLOn.
class TRELLIS_API ZOLDlgToggleButton : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgToggleButton, ZOLDialog)
public:
    int GetState() const { return _state; }
    bool IsOn() const { return _state == ZOLOn; }
    // notify  non-zero sends the user's notification, also when the state is the old one; 0 sends nothing
    virtual void SetState(int state, int notify = 0);
    // What a click does: changes the state and sends.
    virtual ZOLUserResult UserToggle();

    std::string GetMarks() const override;
    trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const override;

protected:
    ZOLDlgToggleButton(ZOLDialog* father, const ZOLString& name, unsigned long style,
                       const char* notificationClass);

    ZOLUnicodeString GetFallbackTitle() const override;
    ZOLNotification& GetModifyNotification() { return _modifyNotification; }
    void StoreState(int state);

private:
    int _state = ZOLOff;
    ZOLNotification _modifyNotification;
};
