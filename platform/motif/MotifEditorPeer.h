#pragma once

#include "motif/MotifFieldPeer.h"

class ZOLDlgEditor;

namespace trellis {

// MotifEditorPeer: shows an editor of one or several lines. Each edit is tried on the model first; the native
// field takes what the model took.
class MotifEditorPeer : public MotifFieldPeer {
public:
    MotifEditorPeer(MotifView& view, ZOLDlgEditor& editor);
    void Mirror() override;
    Widget GetFocusWidget() const override { return _text; }

protected:
    Widget Build(Widget parent) override;
    ZOLUnicodeString GetLineText() const override;
    ThemeColour GetGround() const override;

private:
    void Edits(Widget, XtPointer callData);
    void CaretMoves(Widget, XtPointer);
    void Entered(Widget, XtPointer);
    void Left(Widget, XtPointer);
    // The selection of the native field becomes that of the model.
    void TakeSelection();
    void MirrorText();
    void MirrorState();
    void MirrorSelection();

    ZOLDlgEditor& _editor;
    Widget _text = nullptr;
    bool _hasMoved = false; // by the user, since the model heard of it last
};

} // namespace trellis
