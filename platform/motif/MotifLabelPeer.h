#pragma once

#include "motif/MotifPeer.h"

class ZOLDlgLabel;

namespace trellis {

// MotifLabelPeer: shows a label.
class MotifLabelPeer : public MotifPeer {
public:
    MotifLabelPeer(MotifView& view, ZOLDlgLabel& label);
    void Mirror() override;

protected:
    Widget Build(Widget parent) override;
};

} // namespace trellis
