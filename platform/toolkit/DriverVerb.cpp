#include "toolkit/DriverVerb.h"

#include "toolkit/DialogRegistry.h"
#include "toolkit/QuestionDesk.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgMenuPane.h"

#include <array>

namespace trellis {

namespace {

WeakCommand& EditorInUse() {
    static WeakCommand editor;
    return editor;
}

struct Reason {
    ZOLUserResult result;
    const char* text;
};
constexpr std::array reasons = {
    Reason{ZOLUserResult::Insensitive, "it is greyed"},
    Reason{ZOLUserResult::Hidden, "it is not on the screen"},
    Reason{ZOLUserResult::ReadOnly, "it cannot be edited"},
    Reason{ZOLUserResult::BehindQuestion, "a question is open before it"},
    Reason{ZOLUserResult::NotThere, "there is no such thing in it"},
};

// Leaves the editor that the user was typing in, unless a question stands before it: it keeps the cursor
// then.
void LeaveEditor(const ZOLDialog* next) {
    auto* editor = dynamic_cast<ZOLDlgEditor*>(EditorInUse().Get());
    if (!editor || editor == next || editor->UserGate() == ZOLUserResult::BehindQuestion)
        return;
    EditorInUse() = WeakCommand();
    editor->UserLeave();
}

} // namespace

DriverVerb::DriverVerb(const char* verb, const ZOLDialog* dialog)
    : _verb(verb), _dialog(DialogRegistry::Instance().Living(const_cast<ZOLDialog*>(dialog))) {
    if (!_dialog) {
        _name = "a dialog";
        Refuse(dialog ? "it does not live any more" : "there is none");
    }
    _name = std::string(_dialog->GetKind()) + " \"" + std::string(_dialog->GetName().View()) + '"';
}

void DriverVerb::EnterEditor(ZOLDlgEditor& editor) {
    EditorInUse() = WeakCommand(&editor);
}

ZOLUserResult DriverVerb::Prepare() {
    const ZOLUserResult gate = _dialog->UserGate();
    if (gate == ZOLUserResult::Hidden || gate == ZOLUserResult::BehindQuestion)
        return gate;
    if (ZOLDlgMenuPane* menu = ZOLDlgMenuPane::GetOpenMenu(); menu && _closesMenu)
        menu->Close();
    if (_leavesEditor)
        LeaveEditor(_dialog);
    return ZOLUserResult::Done;
}

void DriverVerb::Finish(ZOLUserResult result) const {
    if (const std::exception_ptr thrown = QuestionDesk::Instance().TakePendingException())
        std::rethrow_exception(thrown);
    for (const Reason& reason : reasons)
        if (reason.result == result)
            Refuse(reason.text);
}

void DriverVerb::Refuse(const std::string& reason) const {
    throw ZOLUserDriver::Refused(std::string("cannot ") + _verb + ' ' + _name + ": " + reason);
}

} // namespace trellis
