#pragma once

#include "motif/MotifFace.h"
#include "motif/MotifPeer.h"

class ZOLDlgPushButton;

namespace trellis {

// MotifPushButtonPeer: shows a push button.
class MotifPushButtonPeer : public MotifPeer {
public:
    MotifPushButtonPeer(MotifView& view, ZOLDlgPushButton& button);
    void Mirror() override;
    void Place(const LayoutRectangle& place) override;
    Widget GetFocusWidget() const override { return GetWidget(); }

protected:
    Widget Build(Widget parent) override;

private:
    void Pressed(Widget, XtPointer);

    ZOLDlgPushButton& _button;
    MotifFace _face;
};

} // namespace trellis
