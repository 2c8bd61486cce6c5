#pragma once

#include "toolkit/DialogButtons.h"

#include <map>
#include <set>
#include <utility>

class ZOLDialog;

namespace trellis {

class MotifFocus;

// MotifMnemonics: the letters that, with Alt, choose what stands in a window: menus of its bar, push buttons, check
// and radio buttons, tab pages, the buttons of its row; the letter of a label, or of a field's title, moves the
// keyboard to the field. They are chosen anew whenever the window changes, among what is shown.
class MotifMnemonics {
public:
    // Answers the numbers of the dialogs whose letter is another one now.
    std::set<long> Assign(const ZOLDialog& window);
    void Forget(long window) { _windows.erase(window); }

    // As it stands in the title; 0 for none.
    char Of(const ZOLDialog& dialog) const { return Of(dialog, ZOLDialogButton::None); }
    // The same of a button in the row of a window.
    char Of(const ZOLDialog& window, ZOLDialogButton button) const;

    // Does what the letter stands for in that window, whatever its case. False for a letter of nothing, or of a
    // menu of the bar, which opens by itself.
    static bool Press(const ZOLDialog& window, char letter, const MotifFocus& focus);

private:
    using Letters = std::map<std::pair<long, ZOLDialogButton>, char>; // None but for buttons of the row

    std::map<long, Letters> _windows;
};

} // namespace trellis
