#include "motif/MotifMnemonics.h"

#include "motif/MotifFocus.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/Mnemonics.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContainer.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"
#include "toolkit/ZOLDlgToggleButton.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace trellis {

namespace {

// What a letter may stand for.
struct Choice {
    ZOLDialog* dialog;
    ZOLDialogButton button; // None but for buttons of the row
    ZOLUnicodeString title;
    ZOLDialog* field = nullptr; // behind a label
    char letter = 0;
};
using Choices = std::vector<Choice>;

template <class Widget>
Widget* As(ZOLDialog* dialog) {
    return dynamic_cast<Widget*>(dialog);
}

bool IsField(ZOLDialog* dialog) {
    return As<ZOLDlgEditor>(dialog) || As<ZOLDlgCombo>(dialog);
}

bool IsButton(ZOLDialog* dialog) {
    return As<ZOLDlgPushButton>(dialog) || As<ZOLDlgToggleButton>(dialog) || As<ZOLDlgTabPage>(dialog);
}

// A toggle in an area that scrolls, titled by code, stands for one of many things of the user's own: letters for
// these would change with them, and leave none for the buttons.
bool IsDatum(ZOLDialog* dialog) {
    ZOLUnicodeString text;
    if (!As<ZOLDlgToggleButton>(dialog) ||
        dialog->GetResourceValueFromKey((std::string(dialog->GetName().View()) + ".Title").c_str(), text))
        return false;
    for (ZOLDialog* holder = dialog->GetOwner(); holder; holder = holder->GetOwner())
        if (As<ZOLDlgContainer>(holder))
            return true;
    return false;
}

const DialogButtons* RowOf(const ZOLDialog& window) {
    if (const auto* box = dynamic_cast<const ZOLDlgNotify*>(&window))
        return &box->GetButtons();
    const auto* dialog = dynamic_cast<const ZOLDlgDialog*>(&window);
    return dialog ? &dialog->GetButtons() : nullptr;
}

bool IsSameLetter(char one, char other) {
    const auto lower = [](char letter) { return std::tolower(static_cast<unsigned char>(letter)); };
    return lower(one) == lower(other);
}

void AddMenus(const ZOLDialog& window, Choices& choices) {
    const ZOLDlgMenuBar* bar = ZOLDlgMenuBar::Find(window);
    if (!bar)
        return;
    for (ZOLDialog* menu : bar->GetChildren())
        if (menu->GetVisibility() == ZOLShown && !menu->IsBeingDestroyed())
            choices.push_back({menu, ZOLDialogButton::None, menu->GetTitle()});
}

void AddButtons(const ZOLDialog& window, Choices& choices) {
    const DialogButtons* row = RowOf(window);
    if (!row)
        return;
    for (const ZOLDialogButton button : DialogButtons::Row)
        if (row->At(button).isThere)
            choices.push_back({const_cast<ZOLDialog*>(&window), button, row->GetTitle(button, window)});
}

void AddContent(const ZOLDialog& holder, Choices& choices) {
    ZOLDialog* label = nullptr;
    for (ZOLDialog* child : holder.GetChildren()) {
        const bool isPage =
            As<ZOLDlgTabPage>(child); // its title stands there also while another one is shown
        if (child->GetVisibility() != ZOLShown || child->IsBeingDestroyed() || !child->IsLaidOut())
            continue;
        if (isPage || (IsButton(child) && !IsDatum(child)))
            choices.push_back({child, ZOLDialogButton::None, child->GetTitle()});
        else if (IsField(child) && label)
            choices.push_back({label, ZOLDialogButton::None, label->GetTitle(), child});
        else if (IsField(child) && !child->GetTitle().IsEmpty())
            choices.push_back({child, ZOLDialogButton::None, child->GetTitle(), child});
        label = As<ZOLDlgLabel>(child);
        if (holder.ShowsChild(*child))
            AddContent(*child, choices);
    }
}

Choices ChoicesIn(const ZOLDialog& window) {
    Choices choices;
    AddMenus(window, choices);
    AddContent(window, choices);
    AddButtons(window, choices);
    std::vector<ZOLUnicodeString> titles;
    for (const Choice& choice : choices)
        titles.push_back(choice.title);
    const std::vector<char> letters = Mnemonics(titles);
    for (std::size_t i = 0; i < choices.size(); ++i)
        choices[i].letter = letters[i];
    return choices;
}

bool Choose(const Choice& choice, const MotifFocus& focus) {
    const CallbackScope scope;
    ZOLDialog* dialog = choice.dialog;
    if (choice.field) {
        focus.Enter(*choice.field);
    } else if (auto* box = As<ZOLDlgNotify>(dialog)) {
        box->UserPress(choice.button);
    } else if (choice.button != ZOLDialogButton::None) {
        As<ZOLDlgDialog>(dialog)->UserPress(choice.button);
    } else if (auto* button = As<ZOLDlgPushButton>(dialog)) {
        if (button->TakesFocus())
            focus.Enter(*button);
        button->UserActivate();
    } else if (auto* toggle = As<ZOLDlgToggleButton>(dialog)) {
        focus.Enter(*toggle);
        toggle->UserToggle();
    } else if (auto* page = As<ZOLDlgTabPage>(dialog)) {
        As<ZOLDlgTabContainer>(page->GetOwner())->UserSelectPage(page);
    } else {
        return false;
    }
    return true;
}

} // namespace

std::set<long> MotifMnemonics::Assign(const ZOLDialog& window) {
    Letters now;
    for (const Choice& choice : ChoicesIn(window))
        now[{choice.dialog->GetNumber(), choice.button}] = choice.letter;
    const Letters before = std::exchange(_windows[window.GetNumber()], now);
    std::set<long> changed;
    for (const Letters& letters : {now, before})
        for (const auto& [key, letter] : letters)
            if (!now.contains(key) || !before.contains(key) || now.at(key) != before.at(key))
                changed.insert(key.first);
    return changed;
}

char MotifMnemonics::Of(const ZOLDialog& dialog, ZOLDialogButton button) const {
    const ZOLDialog* holding = dialog.GetHoldingWindow();
    const auto window = holding ? _windows.find(holding->GetNumber()) : _windows.end();
    if (window == _windows.end())
        return 0;
    const auto found = window->second.find({dialog.GetNumber(), button});
    return found == window->second.end() ? 0 : found->second;
}

bool MotifMnemonics::Press(const ZOLDialog& window, char letter, const MotifFocus& focus) {
    const Choices choices = ChoicesIn(window);
    const auto choice = std::find_if(choices.begin(), choices.end(), [letter](const Choice& candidate) {
        return candidate.letter && IsSameLetter(candidate.letter, letter);
    });
    return choice != choices.end() && Choose(*choice, focus);
}

} // namespace trellis
