#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

#include <functional>

// ZOLInteractiveApplication: the running program as panels see it: its cursor, its screen, its progress.
class TRELLIS_API ZOLInteractiveApplication {
public:
    using ProgressListener = std::function<void(const ZOLUnicodeString& text, long done, long of)>;

    // The one of this process; there always is one.
    static ZOLInteractiveApplication* GetApplication();

    // Puts the busy cursor up (1) or takes it away (0). It goes by itself with the return to the loop, and is
    // lifted while a question waits.
    void SetBusyCursor(int on = 1);
    int GetBusyCursor() const;
    // Draws what has changed and flushes the screen. Dispatches no input; nothing without a view.
    void UpdateDisplay();

    // Long work tells how far it is; `of` is 0 where the end is not known. Goes to the listener, then to the
    // screen.
    void ReportProgress(const ZOLUnicodeString& text, long done, long of);
    // Who shows progress, such as a terminal; an empty function for nobody.
    void SetProgressListener(ProgressListener listener) { _progressListener = std::move(listener); }

    // How many dialogs live, shown or not: hosts and tests look for panels that nobody ended.
    int CountDialogs() const;

private:
    ZOLInteractiveApplication() = default;

    ProgressListener _progressListener;
};
