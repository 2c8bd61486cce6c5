#pragma once

#include "toolkit/ZOLDlgToggleButton.h"

// ZOLDlgRadioButton: one of several choices. Of the radio buttons of one owner at most one is on, also when
// it is set by code; all off is legal. The news is sent for the one that goes off, then for the one that goes
// on.
class TRELLIS_API ZOLDlgRadioButton : public ZOLDlgToggleButton {
    ZOL_META_OBJECT(ZOLDlgRadioButton, ZOLDlgToggleButton)
public:
    ZOLDlgRadioButton(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    ZOLNotification* GetRadBModifyNotification() { return &GetModifyNotification(); }
    void SetState(int state, int notify = 0) override;
    // A click on the one that is on changes and sends nothing.
    ZOLUserResult UserToggle() override;

    const char* GetKind() const override;

private:
    std::vector<ZOLDlgRadioButton*> OthersThatAreOn() const;
};
