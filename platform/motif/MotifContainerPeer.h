#pragma once

#include "motif/MotifHolderPeer.h"
#include "motif/MotifScroller.h"

#include <optional>

class ZOLDlgContainer;

namespace trellis {

// MotifContainerPeer: shows a container: scroll bars come when what it holds needs more room than there is.
class MotifContainerPeer : public MotifHolderPeer {
public:
    MotifContainerPeer(MotifView& view, ZOLDlgContainer& container);
    void PlaceContent(const DialogLayout& layout, const LayoutRectangle& place) override;

protected:
    Widget Build(Widget parent) override;
    Widget GetSurface() const override { return _scroller->GetSurface(); }

private:
    std::optional<MotifScroller> _scroller;
};

} // namespace trellis
