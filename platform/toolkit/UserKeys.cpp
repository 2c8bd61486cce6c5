#include "toolkit/UserKeys.h"

#include "toolkit/EditorKeys.h"
#include "toolkit/HelpPage.h"
#include "toolkit/MenuOpening.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgMenuPane.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"
#include "toolkit/ZOLDlgToggleButton.h"
#include "toolkit/ZOLGraphViewer.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr ZOLUserResult meansNothing = ZOLUserResult::NotThere;

template <class Widget>
Widget* As(ZOLDialog& dialog) {
    return dynamic_cast<Widget*>(&dialog);
}

// The main window of a program: nobody means to leave it by a key that ends menus and dialogs.
bool HasMenuBar(const ZOLDialog& window) {
    return std::ranges::any_of(window.GetChildren(), [](const ZOLDialog* child) {
        return dynamic_cast<const ZOLDlgMenuBar*>(child) && !child->IsBeingDestroyed();
    });
}

ZOLUserResult Escape(ZOLDialog& dialog, ZOLUserKey) {
    if (ZOLDlgMenuPane* menu = ZOLDlgMenuPane::GetOpenMenu()) {
        menu->Close();
        return ZOLUserResult::Done;
    }
    auto* window = const_cast<ZOLDialog*>(dialog.GetHoldingWindow());
    if (auto* box = dynamic_cast<ZOLDlgNotify*>(window))
        return box->UserClose();
    auto* closable = dynamic_cast<ZOLDlgWindow*>(window);
    return closable && !HasMenuBar(*closable) ? closable->UserClose() : meansNothing;
}

ZOLUserResult Return(ZOLDialog& dialog, ZOLUserKey) {
    if (auto* editor = As<ZOLDlgEditor>(dialog); editor && !editor->IsReadOnly())
        return editor->UserEnter();
    if (auto* button = As<ZOLDlgPushButton>(dialog))
        return button->UserActivate();
    if (auto* list = As<ZOLDlgMultiList>(dialog); list && list->GetSelectCount() == 1)
        return list->UserActivate(list->GetSelect());
    return PressDefaultButton(dialog);
}

// Going on to the next widget leaves an editor; of other widgets nobody hears.
ZOLUserResult Tab(ZOLDialog& dialog, ZOLUserKey) {
    const ZOLUserResult gate = dialog.UserGate();
    if (auto* editor = As<ZOLDlgEditor>(dialog); editor && gate == ZOLUserResult::Done)
        editor->UserLeave();
    return gate;
}

ZOLUserResult Help(ZOLDialog& dialog, ZOLUserKey) {
    return OpenHelpPage(dialog);
}

ZOLUserResult Menu(ZOLDialog& dialog, ZOLUserKey) {
    return OpenMenuByKey(dialog);
}

// What a key that writes puts into a text; null for all others.
const char* WrittenBy(ZOLUserKey key) {
    switch (key) {
    case ZOLUserKey::Space:
    case ZOLUserKey::ShiftSpace:
        return " ";
    case ZOLUserKey::Plus:
        return "+";
    case ZOLUserKey::Minus:
        return "-";
    default:
        return nullptr;
    }
}

ZOLUserResult InEditor(ZOLDlgEditor& editor, ZOLUserKey key) {
    const char* written = WrittenBy(key);
    return written ? editor.UserInsert(written) : PressEditorKey(editor, key);
}

// The caret of an editable combo stands at the end of its field.
ZOLUserResult InField(ZOLDlgCombo& combo, ZOLUserKey key) {
    const ZOLUnicodeString& field = combo.GetField();
    if (const char* written = WrittenBy(key))
        return combo.UserEditField(field + written);
    if (key != ZOLUserKey::Backspace)
        return meansNothing;
    if (field.IsEmpty())
        return combo.UserGate();
    return combo.UserEditField(field.SubString(0, field.GetLengthInChar() - 1));
}

// The row that a key goes to, from the selected one; -1 or the count when it leads out of the rows.
int TargetRow(ZOLUserKey key, int from, int count, int page) {
    switch (key) {
    case ZOLUserKey::Up:
        return from - 1;
    case ZOLUserKey::Down:
        return from + 1;
    case ZOLUserKey::PageUp:
        return std::max(from - page, 0);
    case ZOLUserKey::PageDown:
        return std::min(from + page, count - 1);
    case ZOLUserKey::Home:
        return 0;
    case ZOLUserKey::End:
        return count - 1;
    default:
        return -1;
    }
}

ZOLUserResult InCombo(ZOLDlgCombo& combo, ZOLUserKey key) {
    if (combo.IsEditable())
        if (const ZOLUserResult edited = InField(combo, key); edited != meansNothing)
            return edited;
    return combo.UserSelect(
        TargetRow(key, combo.GetSelect(), combo.GetLineCount(), combo.GetVisibleTextHeight()));
}

ZOLUserResult InList(ZOLDlgList& list, ZOLUserKey key) {
    return list.UserSelect(
        {TargetRow(key, list.GetSelect(), list.GetLineCount(), list.GetVisibleLineCount())});
}

ZOLUserResult InGraph(ZOLGraphViewer& graph, ZOLUserKey key) {
    switch (key) {
    case ZOLUserKey::Left:
        return graph.UserMoveFocus(GraphStep::Left);
    case ZOLUserKey::Right:
        return graph.UserMoveFocus(GraphStep::Right);
    case ZOLUserKey::Up:
        return graph.UserMoveFocus(GraphStep::Up);
    case ZOLUserKey::Down:
        return graph.UserMoveFocus(GraphStep::Down);
    case ZOLUserKey::Space:
        return graph.UserClickFocus();
    case ZOLUserKey::ShiftSpace:
        return graph.UserContextFocus();
    case ZOLUserKey::CtrlSpace:
        return graph.UserExtendFocus();
    case ZOLUserKey::ShiftUp:
        return graph.UserExtendTo(GraphStep::Up);
    case ZOLUserKey::ShiftDown:
        return graph.UserExtendTo(GraphStep::Down);
    case ZOLUserKey::Plus:
        return graph.UserOpenFocus();
    case ZOLUserKey::Minus:
        return graph.UserCloseFocus();
    default:
        return meansNothing;
    }
}

// The next page in that direction that can be chosen.
ZOLUserResult InTabs(ZOLDlgTabContainer& tabs, ZOLUserKey key) {
    std::vector<ZOLDlgTabPage*> pages = tabs.GetPages();
    if (key == ZOLUserKey::Left)
        std::reverse(pages.begin(), pages.end());
    else if (key != ZOLUserKey::Right)
        return meansNothing;
    auto next = std::find(pages.begin(), pages.end(), tabs.GetSelectedPage());
    if (next != pages.end())
        next = std::find_if(next + 1, pages.end(),
                            [](const ZOLDlgTabPage* page) { return page->GetSensitivity() == ZOLActive; });
    return next == pages.end() ? meansNothing : tabs.UserSelectPage(*next);
}

// Keys that belong to one kind of widget.
ZOLUserResult InWidget(ZOLDialog& dialog, ZOLUserKey key) {
    if (auto* editor = As<ZOLDlgEditor>(dialog))
        return InEditor(*editor, key);
    if (auto* combo = As<ZOLDlgCombo>(dialog))
        return InCombo(*combo, key);
    if (auto* list = As<ZOLDlgList>(dialog))
        return InList(*list, key);
    if (auto* graph = As<ZOLGraphViewer>(dialog))
        return InGraph(*graph, key);
    if (auto* tabs = As<ZOLDlgTabContainer>(dialog))
        return InTabs(*tabs, key);
    if (key != ZOLUserKey::Space)
        return meansNothing;
    if (auto* button = As<ZOLDlgPushButton>(dialog))
        return button->UserActivate();
    auto* toggle = As<ZOLDlgToggleButton>(dialog);
    return toggle ? toggle->UserToggle() : meansNothing;
}

struct KeyOfWindows {
    ZOLUserKey key;
    ZOLUserResult (*press)(ZOLDialog& dialog, ZOLUserKey key);
};

// Keys that mean the same in every window, whatever has the cursor.
constexpr KeyOfWindows keysOfWindows[] = {
    {ZOLUserKey::Return, Return}, {ZOLUserKey::Escape, Escape}, {ZOLUserKey::Tab, Tab},
    {ZOLUserKey::F1, Help},       {ZOLUserKey::Menu, Menu},
};

} // namespace

ZOLUserResult PressKey(ZOLDialog& dialog, ZOLUserKey key) {
    for (const KeyOfWindows& known : keysOfWindows)
        if (known.key == key)
            return known.press(dialog, key);
    return InWidget(dialog, key);
}

ZOLUserResult PressDefaultButton(const ZOLDialog& dialog) {
    auto* window = const_cast<ZOLDialog*>(dialog.GetHoldingWindow());
    if (auto* box = dynamic_cast<ZOLDlgNotify*>(window))
        return box->UserPress(ZOLDialogButton::OK);
    auto* holder = dynamic_cast<ZOLDlgDialog*>(window);
    return holder ? holder->UserReturn() : meansNothing;
}

} // namespace trellis
