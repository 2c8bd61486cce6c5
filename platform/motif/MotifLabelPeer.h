#pragma once

#include "motif/MotifCaption.h"
#include "motif/MotifPeer.h"

#include <optional>

class ZOLDlgLabel;

namespace trellis {

// MotifLabelPeer: shows a label.
class MotifLabelPeer : public MotifPeer {
public:
    MotifLabelPeer(MotifView& view, ZOLDlgLabel& label);
    void Mirror() override;
    void Place(const LayoutRectangle& place) override;

protected:
    Widget Build(Widget parent) override;

private:
    std::optional<MotifCaption> _caption;
};

} // namespace trellis
