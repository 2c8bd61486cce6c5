#pragma once

#include "motif/MotifPeer.h"

class ZOLDlgCombo;

namespace trellis {

// MotifComboPeer: shows a combo, fixed or with a field to type in.
class MotifComboPeer : public MotifPeer {
public:
    MotifComboPeer(MotifView& view, ZOLDlgCombo& combo);
    void Mirror() override;
    Widget GetFocusWidget() const override { return GetWidget(); }

protected:
    Widget Build(Widget parent) override;

private:
    void Chosen(Widget, XtPointer callData);
    void Typed(Widget, XtPointer callData);
    void MirrorLines();
    Widget GetField() const;

    ZOLDlgCombo& _combo;
};

} // namespace trellis
