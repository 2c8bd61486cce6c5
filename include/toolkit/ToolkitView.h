#pragma once

#include "toolkit/TextMeasure.h"
#include "values/TrellisApi.h"

#include <functional>

class ZOLDialog;

namespace trellis {

// ToolkitView: what shows the toolkit's objects on a screen. The objects hold all state; a view is told what
// changed, looks at it when it has time, and calls the User... operations for what a user does. Panels cannot
// tell whether there is one.
class TRELLIS_API ToolkitView {
public:
    virtual ~ToolkitView();

    // The view of this process; null, as at the start, when nothing is shown. Not owned; chosen once, before
    // the first dialog.
    static ToolkitView* Current();
    static void Choose(ToolkitView* view);

    // A window came up or was raised.
    virtual void Shown(ZOLDialog& window) = 0;
    // Any state of the dialog but its life may be another one now. Called often: mark, and look later.
    virtual void Changed(ZOLDialog& dialog) = 0;
    // The dialog is being freed: only its number and its address are good for anything.
    virtual void Destroyed(ZOLDialog& dialog) = 0;
    // A menu has built itself and is to appear at the place of the last gesture.
    virtual void MenuOpened(ZOLDialog& menu) = 0;
    // Serves events of all windows until the function answers true.
    virtual void RunUntil(const std::function<bool()>& isAnswered) = 0;
    // Draws what was marked and flushes; dispatches no input.
    virtual void UpdateDisplay() = 0;
    virtual void SetBusy(bool isBusy) = 0;
    virtual const TextMeasure& GetTextMeasure() const = 0;
    // Native handles, for hosts that embed widgets of their own; null where the view has none.
    virtual void* GetNativeFather(ZOLDialog& dialog) = 0;
    virtual void* GetNativeApplication() = 0;
};

} // namespace trellis
