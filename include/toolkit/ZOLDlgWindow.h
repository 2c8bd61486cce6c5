#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgWindow: a window of its own on the screen. It starts hidden, and nobody but the panel hides it: the
// close box only sends.
class TRELLIS_API ZOLDlgWindow : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgWindow, ZOLDialog)
public:
    // The father may be null, gone or going: the window then stands alone. Style 0x200: it stays above its
    // father; 0x2000000: modal, so that the windows that own it take no input while it is shown.
    ZOLDlgWindow(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // Sent to this window itself, then its fathers, when the user closes it.
    ZOLNotification* GetWindCloseNotification() { return &_closeNotification; }
    void SetVisibility(int visibility) override;
    bool IsModal() const;
    bool StaysAboveFather() const;

    // The size that it has on the screen, as its view tells; 0 by 0 without a view.
    void SetShownSize(trellis::LayoutSize size) { _shownSize = size; }
    trellis::LayoutSize GetShownSize() const { return _shownSize; }

    virtual ZOLUserResult UserClose();

    bool IsWindow() const override;
    const char* GetKind() const override;
    // The title under "<name>.Title", else under "<resource file>.Title", else the name.
    ZOLUnicodeString GetFallbackTitle() const override;

private:
    trellis::LayoutSize _shownSize;
    ZOLNotification _closeNotification;
};
