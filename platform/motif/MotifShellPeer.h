#pragma once

#include "motif/MotifHolderPeer.h"

namespace trellis {

// MotifShellPeer: a window on the screen: its shell, its title, its place and size, its close box. It never
// goes by itself; the close box only tells the toolkit.
class MotifShellPeer : public MotifHolderPeer {
public:
    using MotifHolderPeer::MotifHolderPeer;

    // Brings the whole window up to date: what is in it, where all stands, and whether it is shown.
    void MirrorWindow();
    bool IsUp() const { return _isUp; }
    void Raise();
    // Above 0: puts the cursor over the window, from the cursor font; 0: the usual one.
    void SetCursor(unsigned int shape);
    // The shell of the window; the widget of this peer.
    Widget GetShell() const { return GetWidget(); }
    // Closing by the close box or by Escape.
    virtual void Close() = 0;

protected:
    Widget Build(Widget parent) override;
    // Makes what stands in the shell.
    virtual void BuildContent(Widget shell) = 0;
    // Lays the content out in a window of that size; answers the size that it needs at least.
    virtual LayoutSize LayOut(LayoutSize size) = 0;
    // The window over which it stands; null for none.
    virtual ZOLDialog* GetBelow() const;
    virtual bool StaysAbove() const { return true; }

private:
    void CloseBox(Widget, XtPointer);
    void Resized(Widget, XEvent* event);
    void FitSize();
    void ChoosePlace();
    LayoutSize ScreenSize() const;
    Widget GetShellBelow() const;

    LayoutSize _size;
    bool _isUp = false;
};

} // namespace trellis
