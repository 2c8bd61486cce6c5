#pragma once

#include "motif/MotifPeer.h"

namespace trellis {

// MotifHolderPeer: a peer whose dialog holds others: a plain surface on which their widgets stand.
class MotifHolderPeer : public MotifPeer {
public:
    using MotifPeer::MotifPeer;

    void MirrorContent() override;
    void PlaceContent(const DialogLayout& layout, const LayoutRectangle& place) override;

protected:
    Widget Build(Widget parent) override;
    // The widget in which those that are held stand.
    virtual Widget GetSurface() const { return GetWidget(); }
    // A surface that lets everything stand where it is put.
    static Widget MakeSurface(const char* name, Widget parent);
    // Places one that is held; `corner` is where the surface begins in the layout.
    void PlaceChild(const ZOLDialog& child, const DialogLayout& layout, const LayoutRectangle& corner);
};

} // namespace trellis
