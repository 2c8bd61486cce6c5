#pragma once

#include "motif/MotifCaption.h"
#include "motif/MotifPeer.h"

#include <optional>

namespace trellis {

// MotifFieldPeer: a peer of a field, with the title of the field beside it. Native fields write with one font and
// from left to right: while the user types elsewhere, a line that needs more is painted over, and so is a greyed
// one, which would be hard to read.
class MotifFieldPeer : public MotifPeer {
public:
    using MotifPeer::MotifPeer;
    ~MotifFieldPeer() override;

    void Mirror() override;
    void PlaceContent(const DialogLayout& layout, const LayoutRectangle& place) override;
    void SetShown(bool isShown) override;

protected:
    // The native widget of one line in which the text stands, and that text.
    void WatchLine(Widget line);
    virtual ZOLUnicodeString GetLineText() const = 0;
    // Its ground: white only where the user may type or choose.
    virtual ThemeColour GetGround() const;

private:
    void MirrorLine();
    void PaintLine(Widget line, XEvent* event);
    void FocusMoved(Widget line, XEvent* event);
    bool IsPaintedOver() const;

    std::optional<MotifCaption> _title; // once the field has one
    bool _hasRoom = false;              // whether the layout gave the title a place
    Widget _line = nullptr;             // null in fields of several lines
    int _font = 0;                      // of the line, as the fonts of the view count them
    bool _isTypedIn = false;
};

} // namespace trellis
