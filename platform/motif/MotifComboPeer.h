#pragma once

#include "motif/MotifFieldPeer.h"

#include <optional>
#include <string>
#include <vector>

class ZOLDlgCombo;

namespace trellis {

// MotifComboPeer: shows a combo, fixed or with a field to type in.
class MotifComboPeer : public MotifFieldPeer {
public:
    MotifComboPeer(MotifView& view, ZOLDlgCombo& combo);
    void Mirror() override;
    Widget GetFocusWidget() const override { return GetWidget(); }

protected:
    Widget Build(Widget parent) override;
    ZOLUnicodeString GetLineText() const override;

private:
    void Chosen(Widget, XtPointer callData);
    void Typed(Widget, XtPointer callData);
    void MirrorLines();
    void MirrorSelection();
    void PaintArrow(Widget combo, XEvent* event);
    void ArrowTouched(Widget, XEvent*);
    void TypingMoved(Widget field, XEvent* event);
    Widget GetField() const;

    ZOLDlgCombo& _combo;
    std::optional<std::vector<std::string>> _lines; // as the native list has them
};

} // namespace trellis
