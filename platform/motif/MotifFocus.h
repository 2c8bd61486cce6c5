#pragma once

#include "motif/MotifNative.h"

#include <vector>

class ZOLDialog;
class ZOLDlgRadioButton;

namespace trellis {

class MotifView;

// MotifFocus: how the keyboard walks through a window: Tab through all that takes it, in the order of the layout;
// arrows through the radio buttons of one owner, which are one stop for Tab.
class MotifFocus {
public:
    explicit MotifFocus(const MotifView& view) : _view(view) {}

    // The next stop with 1, the one before with -1; behind the last comes the first.
    void Step(const ZOLDialog& window, int direction) const;
    // The next radio button of the same owner, which goes on as well. False when the dialog is no radio button.
    bool StepInGroup(ZOLDialog& dialog, int direction) const;
    // The first stop in the dialog; false when nothing in it takes the keyboard.
    bool Enter(const ZOLDialog& dialog) const;
    // Whether Tab stops there: of a group of radio buttons only at the one that is on, else at the first.
    static bool IsStop(const ZOLDialog& dialog);

private:
    static std::vector<ZOLDlgRadioButton*> GroupOf(const ZOLDialog& dialog);
    std::vector<Widget> StopsIn(const ZOLDialog& dialog) const;

    const MotifView& _view;
};

} // namespace trellis
