#pragma once

#include "motif/MotifFace.h"
#include "motif/MotifPeer.h"

class ZOLDlgToggleButton;

namespace trellis {

// MotifToggleButtonPeer: shows a check or radio button.
class MotifToggleButtonPeer : public MotifPeer {
public:
    MotifToggleButtonPeer(MotifView& view, ZOLDlgToggleButton& button);
    void Mirror() override;
    void Place(const LayoutRectangle& place) override;
    Widget GetFocusWidget() const override { return GetWidget(); }

protected:
    Widget Build(Widget parent) override;

private:
    void Toggled(Widget, XtPointer);

    ZOLDlgToggleButton& _button;
    MotifFace _face;
};

} // namespace trellis
