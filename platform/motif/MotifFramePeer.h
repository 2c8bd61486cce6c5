#pragma once

#include "motif/MotifCaption.h"
#include "motif/MotifHolderPeer.h"

#include <optional>

class ZOLDlgFrame;

namespace trellis {

// MotifFramePeer: shows a frame: a thin line around what it holds, broken by its title.
class MotifFramePeer : public MotifHolderPeer {
public:
    MotifFramePeer(MotifView& view, ZOLDlgFrame& frame);
    void Mirror() override;
    void Place(const LayoutRectangle& place) override;

protected:
    Widget Build(Widget parent) override;

private:
    void Exposed(Widget, XEvent*);
    void PlaceTitle();

    ZOLDlgFrame& _frame;
    std::optional<MotifCaption> _title;
};

} // namespace trellis
