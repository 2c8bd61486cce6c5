#pragma once

#include "motif/MotifNative.h"

#include <memory>
#include <unordered_map>

class ZOLDialog;

namespace trellis {

class MotifPeer;
class MotifView;

// MotifPeerTable: the peers of all dialogs that stand on the screen or did, by the numbers of the dialogs.
class MotifPeerTable {
public:
    static MotifPeerTable& Instance();

    MotifPeer* Find(long number) const;
    // The one whose outermost widget, or whose widget with the keyboard, this is; null when there is none.
    MotifPeer* FindByWidget(Widget widget) const;
    // A peer of the right class for the dialog, without a widget yet; it replaces an older one.
    MotifPeer& Make(MotifView& view, ZOLDialog& dialog);
    void Drop(long number);
    void Clear();

private:
    std::unordered_map<long, std::unique_ptr<MotifPeer>> _peers;
};

} // namespace trellis
