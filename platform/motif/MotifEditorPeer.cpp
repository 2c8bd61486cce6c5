#include "motif/MotifEditorPeer.h"

#include "motif/MotifView.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/WeakCommand.h"
#include "toolkit/ZOLDlgEditor.h"

#include <Xm/ScrolledW.h>
#include <Xm/Text.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

namespace trellis {

namespace {

using NativeText = std::unique_ptr<char, decltype(&XtFree)>;

Arg Argument(const char* name, XtArgVal value) {
    return {MotifQuirks::Name(name), value};
}

ZOLUnicodeString TextOf(const XmTextBlockRec& block) {
    return block.ptr ? ZOLUnicodeString(std::string(block.ptr, static_cast<std::size_t>(block.length)))
                     : ZOLUnicodeString();
}

} // namespace

MotifEditorPeer::MotifEditorPeer(MotifView& view, ZOLDlgEditor& editor)
    : MotifFieldPeer(view, editor), _editor(editor) {}

Widget MotifEditorPeer::Build(Widget parent) {
    const bool isReadOnly = _editor.IsReadOnly();
    std::array<Arg, 5> arguments = {
        Argument(XmNeditMode, _editor.HasSeveralLines() ? XmMULTI_LINE_EDIT : XmSINGLE_LINE_EDIT),
        Argument(XmNeditable, !isReadOnly), Argument(XmNcursorPositionVisible, False),
        Argument(XmNwordWrap, True), Argument(XmNscrollHorizontal, False)};
    char* name = MotifQuirks::Name(_editor.GetName().ConvertToChar());
    if (_editor.HasSeveralLines()) {
        _text = XmCreateScrolledText(parent, name, arguments.data(), arguments.size());
        XtManageChild(_text);
    } else {
        _text = XmCreateText(parent, name, arguments.data(), 3);
    }
    const LayoutMetrics metrics(GetView().GetTextMeasure());
    constexpr int border = 3; // the ring of the focus and the line around the field
    XtVaSetValues(_text, XmNmarginWidth, std::max(1, metrics.FieldMargin() - border), XmNmarginHeight,
                  std::max(0, metrics.TextMargin() - border), nullptr);
    Connect<&MotifEditorPeer::Edits>(_text, XmNmodifyVerifyCallback);
    Connect<&MotifEditorPeer::Entered>(_text, XmNfocusCallback);
    Connect<&MotifEditorPeer::Left>(_text, XmNlosingFocusCallback);
    Connect<&MotifEditorPeer::CaretMoves>(_text, XmNmotionVerifyCallback);
    if (!_editor.HasSeveralLines())
        WatchLine(_text);
    OpensMenu(_text);
    return _editor.HasSeveralLines() ? XtParent(_text) : _text;
}

void MotifEditorPeer::Mirror() {
    MirrorState();
    MirrorText();
    MotifFieldPeer::Mirror();
    if (_hasMoved)
        TakeSelection();
    else
        MirrorSelection();
}

ZOLUnicodeString MotifEditorPeer::GetLineText() const {
    return _editor.GetText();
}

ThemeColour MotifEditorPeer::GetGround() const {
    return _editor.IsReadOnly() ? Theme::GreyedField : MotifFieldPeer::GetGround();
}

// Greyed, it takes no keys and no focus, but natively it stays alive: its text can still be scrolled and read.
void MotifEditorPeer::MirrorState() {
    const bool isSensitive = _editor.IsSensitive();
    const ThemeColour ink = isSensitive ? Theme::Text : Theme::GreyedText;
    XtVaSetValues(_text, XmNbackground, MotifQuirks::Colour(_text, GetGround()), XmNforeground,
                  MotifQuirks::Colour(_text, ink), XmNeditable,
                  static_cast<Boolean>(isSensitive && !_editor.IsReadOnly()), XmNtraversalOn,
                  static_cast<Boolean>(isSensitive), nullptr);
}

void MotifEditorPeer::MirrorText() {
    const NativeText shown(XmTextGetString(_text), &XtFree);
    if (shown.get() == _editor.GetText().Bytes())
        return;
    XmTextSetString(_text, MotifQuirks::Name(_editor.GetText().ConvertToChar()));
    _hasMoved = false;
}

void MotifEditorPeer::MirrorSelection() {
    int start = 0;
    int end = -1;
    _editor.GetSelection(start, end);
    XmTextPosition left = 0;
    XmTextPosition right = 0;
    const bool hasSelection = XmTextGetSelectionPosition(_text, &left, &right) && left != right;
    if (end == -1) {
        if (hasSelection)
            XmTextClearSelection(_text, XtLastTimestampProcessed(XtDisplay(_text)));
        if (XmTextGetInsertionPosition(_text) != start)
            XmTextSetInsertionPosition(_text, start);
    } else if (!hasSelection || left != start || right != end) {
        XmTextSetSelection(_text, start, end, XtLastTimestampProcessed(XtDisplay(_text)));
    }
}

// The native field must not be changed from here; where the model made something else of the edit, it is
// refused natively and the text is mirrored in the next turn.
void MotifEditorPeer::Edits(Widget, XtPointer callData) {
    auto& edit = *static_cast<XmTextVerifyCallbackStruct*>(callData);
    edit.doit = False;
    const int start = static_cast<int>(edit.startPos);
    const int end = static_cast<int>(edit.endPos);
    const ZOLUnicodeString inserted = TextOf(*edit.text);
    const ZOLUnicodeString& before = _editor.GetText();
    const ZOLUnicodeString expected = before.SubString(0, start) + inserted + before.SubString(end);

    const WeakCommand self(&_editor);
    ZOLDlgEditor& editor = _editor;
    if (editor.UserSelectText(start, end) != ZOLUserResult::Done ||
        editor.UserInsert(inserted) != ZOLUserResult::Done || !self.Get())
        return;
    edit.doit = editor.GetText() == expected;
}

// The caret shows only where the keyboard goes.
void MotifEditorPeer::Entered(Widget, XtPointer) {
    XtVaSetValues(_text, XmNcursorPositionVisible, static_cast<Boolean>(!_editor.IsReadOnly()), nullptr);
}

void MotifEditorPeer::Left(Widget, XtPointer) {
    XtVaSetValues(_text, XmNcursorPositionVisible, False, nullptr);
    _editor.UserLeave();
}

// Called before the caret moves: the next mirroring sees where it went.
void MotifEditorPeer::CaretMoves(Widget, XtPointer) {
    _hasMoved = true;
}

void MotifEditorPeer::TakeSelection() {
    _hasMoved = false;
    XmTextPosition left = 0;
    XmTextPosition right = 0;
    const bool hasSelection = XmTextGetSelectionPosition(_text, &left, &right) && left != right;
    const int start = static_cast<int>(hasSelection ? left : XmTextGetInsertionPosition(_text));
    _editor.UserSelectText(start, hasSelection ? static_cast<int>(right) : -1);
}

} // namespace trellis
