#pragma once

#include "motif/MotifNative.h"
#include "toolkit/LayoutTypes.h"
#include "toolkit/TreeLayout.h"

class ZOLDialog;
class ZOLUnicodeString;

namespace trellis {

class MotifView;

// MotifToolTip: the text that comes up beside a pointer that rests for a while over something with a tool tip, or
// over a text that does not fit. It takes neither keyboard nor mouse, and goes with the next thing that happens.
class MotifToolTip {
public:
    static constexpr unsigned long RestMilliseconds = 600;

    explicit MotifToolTip(MotifView& view) : _view(view) {}
    ~MotifToolTip();
    MotifToolTip(const MotifToolTip&) = delete;
    MotifToolTip& operator=(const MotifToolTip&) = delete;

    // The pointer is at a place of the root window, in a window of ours.
    void PointerMoved(const ZOLDialog& window, LayoutPoint root);
    // Also keeps one from coming up before the pointer moves again.
    void Hide();

private:
    static void RestedCB(XtPointer self, XtIntervalId*);
    void Show();
    // What is to be read there; empty for nothing.
    ZOLUnicodeString TextAt(const ZOLDialog& window, LayoutPoint root) const;
    void Write(const ZOLUnicodeString& text);
    // Below the pointer, or above it where the screen ends.
    LayoutPoint PlaceFor(LayoutSize size) const;

    MotifView& _view;
    Widget _shell = nullptr;
    Widget _label = nullptr;
    XtIntervalId _timer = 0;
    long _window = 0;
    LayoutPoint _pointer;
    bool _isUp = false;
};

} // namespace trellis
