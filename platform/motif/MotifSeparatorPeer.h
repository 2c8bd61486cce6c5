#pragma once

#include "motif/MotifPeer.h"

class ZOLDlgSeparator;

namespace trellis {

// MotifSeparatorPeer: shows a line between widgets.
class MotifSeparatorPeer : public MotifPeer {
public:
    MotifSeparatorPeer(MotifView& view, ZOLDlgSeparator& separator);

protected:
    Widget Build(Widget parent) override;
};

} // namespace trellis
