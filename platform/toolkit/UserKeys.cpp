#include "toolkit/UserKeys.h"

#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgToggleButton.h"

namespace trellis {

namespace {

ZOLUserResult Close(const ZOLDialog& dialog) {
    auto* window = const_cast<ZOLDialog*>(dialog.GetHoldingWindow());
    if (auto* box = dynamic_cast<ZOLDlgNotify*>(window))
        return box->UserClose();
    auto* closable = dynamic_cast<ZOLDlgWindow*>(window);
    return closable ? closable->UserClose() : ZOLUserResult::NotThere;
}

ZOLUserResult Return(ZOLDialog& dialog) {
    if (auto* editor = dynamic_cast<ZOLDlgEditor*>(&dialog))
        return editor->UserEnter();
    if (auto* button = dynamic_cast<ZOLDlgPushButton*>(&dialog))
        return button->UserActivate();
    if (auto* list = dynamic_cast<ZOLDlgMultiList*>(&dialog); list && list->GetSelectCount() == 1)
        return list->UserActivate(list->GetSelect());
    auto* window = const_cast<ZOLDialog*>(dialog.GetHoldingWindow());
    if (auto* box = dynamic_cast<ZOLDlgNotify*>(window))
        return box->UserPress(ZOLDialogButton::OK);
    auto* holder = dynamic_cast<ZOLDlgDialog*>(window);
    return holder ? holder->UserReturn() : ZOLUserResult::NotThere;
}

ZOLUserResult Space(ZOLDialog& dialog) {
    if (auto* button = dynamic_cast<ZOLDlgPushButton*>(&dialog))
        return button->UserActivate();
    if (auto* toggle = dynamic_cast<ZOLDlgToggleButton*>(&dialog))
        return toggle->UserToggle();
    auto* editor = dynamic_cast<ZOLDlgEditor*>(&dialog);
    return editor ? editor->UserInsert(" ") : ZOLUserResult::NotThere;
}

// Erases the selection, or one character beside the caret: before it for -1, behind it for 1.
ZOLUserResult Erase(ZOLDialog& dialog, int side) {
    auto* editor = dynamic_cast<ZOLDlgEditor*>(&dialog);
    if (!editor)
        return ZOLUserResult::NotThere;
    int start = 0;
    int end = 0;
    editor->GetSelection(start, end);
    if (end != -1)
        return editor->UserInsert({});
    const int from = side < 0 ? start - 1 : start;
    if (from < 0 || from >= editor->GetText().GetLengthInChar())
        return editor->UserGate();
    if (const ZOLUserResult selected = editor->UserSelectText(from, from + 1);
        selected != ZOLUserResult::Done)
        return selected;
    return editor->UserInsert({});
}

ZOLUserResult Move(ZOLDialog& dialog, int step) {
    if (auto* combo = dynamic_cast<ZOLDlgCombo*>(&dialog))
        return combo->UserSelect(combo->GetSelect() + step);
    auto* list = dynamic_cast<ZOLDlgList*>(&dialog);
    return list ? list->UserSelect({list->GetSelect() + step}) : ZOLUserResult::NotThere;
}

} // namespace

ZOLUserResult PressKey(ZOLDialog& dialog, ZOLUserKey key) {
    switch (key) {
    case ZOLUserKey::Return:
        return Return(dialog);
    case ZOLUserKey::Escape:
        return Close(dialog);
    case ZOLUserKey::Space:
        return Space(dialog);
    case ZOLUserKey::Backspace:
        return Erase(dialog, -1);
    case ZOLUserKey::Delete:
        return Erase(dialog, 1);
    case ZOLUserKey::Up:
        return Move(dialog, -1);
    case ZOLUserKey::Down:
        return Move(dialog, 1);
    }
    return ZOLUserResult::NotThere;
}

} // namespace trellis
