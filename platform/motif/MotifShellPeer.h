#pragma once

#include "motif/MotifHolderPeer.h"

#include <optional>
#include <string>

namespace trellis {

class MotifButtonRow;

// MotifShellPeer: a window on the screen: its shell, its title, its place and size, its close box. It never
// goes by itself; the close box only tells the toolkit.
class MotifShellPeer : public MotifHolderPeer {
public:
    using MotifHolderPeer::MotifHolderPeer;

    // Brings the whole window up to date: what is in it, where all stands, and whether it is shown.
    void MirrorWindow();
    bool IsUp() const { return _isUp; }
    void Raise();
    // Takes the keyboard where no window manager gives it, at once or when the window has come up.
    void TakeKeyboard();
    // As it was when the window came up last.
    bool HasWindowManager() const { return _hasManager; }
    void CollectStops(std::vector<Widget>& stops) const override;
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
    // The room that a window can take on the screen.
    LayoutSize ScreenSize() const;
    // Null for a window without one.
    virtual const MotifButtonRow* GetButtons() const { return nullptr; }

private:
    void CloseBox(Widget, XtPointer);
    void Happened(Widget, XEvent* event);
    void Moved(const XConfigureEvent& event);
    void MirrorTitle();
    void MirrorPlace();
    LayoutPoint FrameWidths() const;
    void FitSize();
    void ChoosePlace();
    Widget GetShellBelow() const;

    LayoutSize _size;
    LayoutSize _needed; // when it was laid out last
    std::string _title;
    LayoutPoint _place;                      // of the frame on the root window, as the toolkit knows it
    std::optional<LayoutPoint> _frameWidths; // that a window manager puts left and above, once it did
    bool _isUp = false;
    bool _isMapped = false;
    bool _wantsKeyboard = false;
    bool _hasManager = false;
};

} // namespace trellis
