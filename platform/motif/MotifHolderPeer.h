#pragma once

#include "motif/MotifPeer.h"

namespace trellis {

// MotifHolderPeer: a peer whose dialog holds others: a plain surface on which their widgets stand.
class MotifHolderPeer : public MotifPeer {
public:
    using MotifPeer::MotifPeer;

    // A surface that lets everything stand where it is put.
    static Widget MakeSurface(const char* name, Widget parent);

    // What is held is greyed by itself; natively the surface never is, so that what it holds can still be scrolled
    // and read.
    void Mirror() override {}
    void MirrorContent() override;
    void PlaceContent(const DialogLayout& layout, const LayoutRectangle& place) override;
    // Its own, then those of what it shows.
    void CollectStops(std::vector<Widget>& stops) const override;

protected:
    Widget Build(Widget parent) override;
    // The widget in which those that are held stand.
    virtual Widget GetSurface() const { return GetWidget(); }
    virtual Widget GetSurfaceOf(const ZOLDialog&) const { return GetSurface(); }
    // Places one that is held; `corner` is where the surface begins in the layout.
    virtual void PlaceChild(const ZOLDialog& child, const DialogLayout& layout,
                            const LayoutRectangle& corner);

private:
    bool _wasSensitive = true; // when its content was mirrored last: what is painted in it greys with it
};

} // namespace trellis
