#pragma once

#include "toolkit/ZOLNotification.h"
#include "values/ZOLUnicodeString.h"

#include <array>
#include <optional>

class ZOLDialog;

// The buttons of a dialog or message box; the numbers are the answers of DisplayBlocked (Apply never
// answers).
enum class ZOLDialogButton { None = 0, OK = 1, Cancel = 2, Help = 3, Apply = 4 };

namespace trellis {

// DialogButtons: which of the four buttons a dialog has, with titles and greying.
class TRELLIS_API DialogButtons {
public:
    struct Button {
        bool isThere = false;
        bool isSensitive = true;
        std::optional<ZOLUnicodeString> title;
    };

    Button& At(ZOLDialogButton button) { return _buttons[Index(button)]; }
    const Button& At(ZOLDialogButton button) const { return _buttons[Index(button)]; }
    // A button whose title is set is there, whatever the style says.
    void SetTitle(ZOLDialogButton button, const ZOLUnicodeString& title);
    // As set, else the text under "<dialog>.<OK, Apply, Cancel or Help>.Title", else the standard word.
    ZOLUnicodeString GetTitle(ZOLDialogButton button, const ZOLDialog& dialog) const;
    // The order on the screen.
    static constexpr std::array<ZOLDialogButton, 4> Row = {ZOLDialogButton::OK, ZOLDialogButton::Apply,
                                                           ZOLDialogButton::Cancel, ZOLDialogButton::Help};
    // One line: buttons: "OK" default, "Cancel" greyed.
    std::string Describe(const ZOLDialog& dialog, ZOLDialogButton defaultButton) const;

private:
    static std::size_t Index(ZOLDialogButton button) { return static_cast<std::size_t>(button); }

    std::array<Button, 5> _buttons; // the first stands for no button and is never there
};

} // namespace trellis
