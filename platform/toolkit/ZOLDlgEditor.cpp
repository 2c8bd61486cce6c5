#include "toolkit/ZOLDlgEditor.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/DialogDescription.h"
#include "toolkit/EditorLines.h"
#include "toolkit/EscapedException.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/UserKeys.h"

#include <algorithm>

using trellis::LayoutMetrics;

namespace {

constexpr unsigned long severalLinesBit = 0x80000;
constexpr unsigned long readOnlyBit = 0x4000000;

} // namespace

ZOLDlgEditor::ZOLDlgEditor(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style),
      _modifyNotification("ZOLDlgEditModifyNotification"),
      _returnNotification("ZOLDlgEditReturnNotification") {}

bool ZOLDlgEditor::IsReadOnly() const {
    return GetStyle() & readOnlyBit;
}

bool ZOLDlgEditor::HasSeveralLines() const {
    return GetStyle() & severalLinesBit;
}

int ZOLDlgEditor::GetLine(ZOLUnicodeString& text, int line) const {
    const std::vector<ZOLUnicodeString> lines = trellis::SplitLines(_text);
    if (line < 0 || line >= static_cast<int>(lines.size()))
        return 0;
    text = lines[static_cast<std::size_t>(line)];
    return 1;
}

void ZOLDlgEditor::SetLine(const ZOLUnicodeString& text, int line) {
    if (line < 0)
        return;
    std::vector<ZOLUnicodeString> lines = trellis::SplitLines(_text);
    lines.resize(std::max(lines.size(), static_cast<std::size_t>(line) + 1));
    lines[static_cast<std::size_t>(line)] = text;
    SetText(trellis::JoinLines(lines));
}

// The function may do anything, also destroy the panel; it runs inside a scope of every caller.
bool ZOLDlgEditor::Verify(const ZOLUnicodeString& text) {
    if (!_verify || _isVerifying)
        return true;
    const trellis::WeakCommand self(this);
    bool isTaken = false;
    _isVerifying = true;
    trellis::GuardCallback([&] { isTaken = _verify(text, _verifyData) != 0; });
    if (!self.Get())
        return false;
    _isVerifying = false;
    return isTaken;
}

void ZOLDlgEditor::SetText(const ZOLUnicodeString& text) {
    const trellis::CallbackScope scope;
    if (!Verify(text))
        return;
    _text = text;
    _start = text.GetLengthInChar();
    _end = -1;
    _isUnconfirmed = false;
    MarkChanged();
}

void ZOLDlgEditor::GetSelection(int& start, int& end) const {
    start = _start;
    end = _end;
}

void ZOLDlgEditor::SetSelection(int start, int end) {
    const int length = _text.GetLengthInChar();
    _start = std::clamp(start, 0, length);
    _end = std::min(end, length);
    if (_end <= _start)
        _end = -1;
    MarkChanged();
}

void ZOLDlgEditor::SetVisibleTextWidth(int characters) {
    _visibleWidth = characters;
    MarkChanged();
}

void ZOLDlgEditor::SetVisibleTextHeight(int lines) {
    _visibleHeight = lines;
    MarkChanged();
}

void ZOLDlgEditor::SetVerifyCallback(ZOLVerifyFunction function, void* data) {
    _verify = function;
    _verifyData = data;
}

ZOLUserResult ZOLDlgEditor::UserInsert(const ZOLUnicodeString& pasted) {
    const trellis::CallbackScope scope;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    if (IsReadOnly())
        return ZOLUserResult::ReadOnly;

    const ZOLUnicodeString text =
        HasSeveralLines() ? pasted : trellis::JoinLines(trellis::SplitLines(pasted), " ");
    const int behind = _end == -1 ? _start : _end;
    const ZOLUnicodeString edited = _text.SubString(0, _start) + text + _text.SubString(behind);
    const bool grows = edited.GetLengthInChar() > _text.GetLengthInChar();
    if (_maximum > 0 && grows && edited.GetLengthInChar() > _maximum)
        return ZOLUserResult::Refused;
    const int caret = _start + text.GetLengthInChar();
    const trellis::WeakCommand self(this);
    if (!Verify(edited) || !self.Get())
        return ZOLUserResult::Refused;
    _text = edited;
    _start = caret;
    _end = -1;
    _isUnconfirmed = true;
    MarkChanged();
    return ZOLUserResult::Done;
}

ZOLUserResult ZOLDlgEditor::UserSelectText(int start, int end) {
    const ZOLUserResult gate = UserGate();
    if (gate == ZOLUserResult::Done)
        SetSelection(start, end);
    return gate;
}

ZOLUserResult ZOLDlgEditor::UserEnter() {
    const trellis::CallbackScope scope;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    if (IsReadOnly())
        return ZOLUserResult::ReadOnly;
    if (HasSeveralLines())
        return UserInsert("\n");
    if (!Confirm() && !SendNotification(nullptr, &_returnNotification))
        trellis::PressDefaultButton(*this);
    return ZOLUserResult::Done;
}

void ZOLDlgEditor::UserLeave() {
    const trellis::CallbackScope scope;
    if (_isUnconfirmed && UserGate() == ZOLUserResult::Done)
        Confirm();
}

bool ZOLDlgEditor::Confirm() {
    _isUnconfirmed = false;
    return SendNotification(nullptr, &_modifyNotification) != 0;
}

const char* ZOLDlgEditor::GetKind() const {
    return "editor";
}

std::string ZOLDlgEditor::GetMarks() const {
    const std::string text = "holds " + trellis::DialogDescription::Quoted(_text);
    return IsReadOnly() ? text + " read-only" : text;
}

trellis::LayoutSize ZOLDlgEditor::GetNaturalSize(const trellis::TextMeasure& measure) const {
    const LayoutMetrics metrics(measure);
    return {_visibleWidth * measure.GetCharacterWidth() + 2 * metrics.FieldMargin(),
            (_visibleHeight - 1) * measure.GetLineHeight() + metrics.LineOfText()};
}
