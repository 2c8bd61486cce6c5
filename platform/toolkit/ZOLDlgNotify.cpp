#include "toolkit/ZOLDlgNotify.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/DialogDescription.h"
#include "toolkit/DialogRegistry.h"
#include "toolkit/OpenQuestions.h"
#include "toolkit/QuestionDesk.h"
#include "toolkit/ToolkitView.h"

#include <algorithm>

namespace {

constexpr unsigned long questionBit = 0x2000000;

} // namespace

ZOLDlgNotify::ZOLDlgNotify(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(trellis::DialogRegistry::Instance().Living(father), name, style) {
    InitialiseVisibility(ZOLHidden);
    _buttons.At(ZOLDialogButton::OK).isThere = true;
    _buttons.At(ZOLDialogButton::Cancel).isThere = style & questionBit;
}

bool ZOLDlgNotify::IsQuestion() const {
    return _buttons.At(ZOLDialogButton::Cancel).isThere || _buttons.At(ZOLDialogButton::Help).isThere;
}

int ZOLDlgNotify::DisplayBlocked(const ZOLUnicodeString& text, const ZOLUnicodeString& title) {
    return DisplayOver(GetOwner(), text, title, 0, !IsQuestion());
}

int ZOLDlgNotify::DisplayOver(ZOLDialog* over, const ZOLUnicodeString& text, const ZOLUnicodeString& title,
                              int code, bool isNotice) {
    const trellis::CallbackScope scope;
    auto& registry = trellis::DialogRegistry::Instance();
    ZOLDialog* below = registry.Living(over);
    _below = below && below->IsOnScreen() ? below : registry.Top();
    _text = text;
    _isNotice = isNotice;
    SetTitle(title);

    ZOLShownMessage message;
    message.code = code;
    message.isNotice = isNotice;
    message.title = title;
    message.text = text;
    message.isQuestion = IsQuestion();
    for (const ZOLDialogButton button : {ZOLDialogButton::OK, ZOLDialogButton::Cancel, ZOLDialogButton::Help})
        if (_buttons.At(button).isThere)
            message.buttons.push_back(static_cast<int>(button));

    SetVisibility(ZOLShown);
    registry.Raise(*this);
    if (trellis::ToolkitView* view = trellis::ToolkitView::Current())
        view->Shown(*this);
    const int answer = trellis::QuestionDesk::Instance().Ask(*this, GetDialogBelow(), message);
    SetVisibility(ZOLHidden);
    return answer;
}

ZOLDialog* ZOLDlgNotify::GetDialogBelow() const {
    return dynamic_cast<ZOLDialog*>(_below.Get());
}

ZOLDlgNotify::Sign ZOLDlgNotify::GetSign() const {
    if (IsQuestion())
        return Sign::Question;
    return _isNotice ? Sign::Notice : Sign::Error;
}

ZOLUserResult ZOLDlgNotify::UserPress(ZOLDialogButton button) {
    if (button == ZOLDialogButton::Apply || !_buttons.At(button).isThere)
        return ZOLUserResult::NotThere;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    trellis::OpenQuestions::Instance().Answer(*this, static_cast<int>(button));
    return ZOLUserResult::Done;
}

ZOLUserResult ZOLDlgNotify::UserClose() {
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    trellis::OpenQuestions::Instance().Answer(*this, 0);
    return ZOLUserResult::Done;
}

bool ZOLDlgNotify::IsWindow() const {
    return true;
}

const char* ZOLDlgNotify::GetKind() const {
    return IsQuestion() ? "question" : "notice";
}

void ZOLDlgNotify::DescribeTo(trellis::DialogDescription& description) const {
    description.Widget(*this);
    const trellis::DialogDescription::Indent indent(description);
    description.Line("text " + trellis::DialogDescription::Quoted(_text));
    description.Line(_buttons.Describe(*this, ZOLDialogButton::OK));
}
