#include "motif/MotifPeerTable.h"

#include "motif/MotifComboPeer.h"
#include "motif/MotifContainerPeer.h"
#include "motif/MotifEditorPeer.h"
#include "motif/MotifFramePeer.h"
#include "motif/MotifGraphPeer.h"
#include "motif/MotifHolderPeer.h"
#include "motif/MotifLabelPeer.h"
#include "motif/MotifListPeer.h"
#include "motif/MotifMenuBarPeer.h"
#include "motif/MotifNotifyPeer.h"
#include "motif/MotifPushButtonPeer.h"
#include "motif/MotifSeparatorPeer.h"
#include "motif/MotifSplitterPeer.h"
#include "motif/MotifTabPeer.h"
#include "motif/MotifToggleButtonPeer.h"
#include "motif/MotifWindowPeer.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContainer.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgList.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgSeparator.h"
#include "toolkit/ZOLDlgSplitter.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgToggleButton.h"
#include "toolkit/ZOLDlgWindow.h"
#include "toolkit/ZOLGraphViewer.h"

#include <array>

namespace trellis {

namespace {

using Maker = std::unique_ptr<MotifPeer> (*)(MotifView&, ZOLDialog&);

// A peer when the dialog is of that class, else null.
template <class Dialog, class Peer>
std::unique_ptr<MotifPeer> MakeFor(MotifView& view, ZOLDialog& dialog) {
    auto* own = dynamic_cast<Dialog*>(&dialog);
    return own ? std::make_unique<Peer>(view, *own) : nullptr;
}

// Sought from the top. Pages and places for native widgets are plain holders.
constexpr std::array<Maker, 15> makers = {
    &MakeFor<ZOLDlgWindow, MotifWindowPeer>,
    &MakeFor<ZOLDlgNotify, MotifNotifyPeer>,
    &MakeFor<ZOLDlgFrame, MotifFramePeer>,
    &MakeFor<ZOLDlgLabel, MotifLabelPeer>,
    &MakeFor<ZOLDlgPushButton, MotifPushButtonPeer>,
    &MakeFor<ZOLDlgToggleButton, MotifToggleButtonPeer>,
    &MakeFor<ZOLDlgCombo, MotifComboPeer>,
    &MakeFor<ZOLDlgEditor, MotifEditorPeer>,
    &MakeFor<ZOLDlgList, MotifListPeer>,
    &MakeFor<ZOLGraphViewer, MotifGraphPeer>,
    &MakeFor<ZOLDlgTabContainer, MotifTabPeer>,
    &MakeFor<ZOLDlgSplitter, MotifSplitterPeer>,
    &MakeFor<ZOLDlgContainer, MotifContainerPeer>,
    &MakeFor<ZOLDlgSeparator, MotifSeparatorPeer>,
    &MakeFor<ZOLDlgMenuBar, MotifMenuBarPeer>,
};

std::unique_ptr<MotifPeer> MakeByClass(MotifView& view, ZOLDialog& dialog) {
    for (const Maker maker : makers)
        if (auto peer = maker(view, dialog))
            return peer;
    return std::make_unique<MotifHolderPeer>(view, dialog);
}

} // namespace

MotifPeerTable& MotifPeerTable::Instance() {
    static MotifPeerTable table;
    return table;
}

MotifPeer* MotifPeerTable::Find(long number) const {
    const auto found = _peers.find(number);
    return found == _peers.end() ? nullptr : found->second.get();
}

MotifPeer* MotifPeerTable::FindByWidget(Widget widget) const {
    for (const auto& [number, peer] : _peers)
        if (peer->GetWidget() == widget || peer->GetFocusWidget() == widget)
            return peer.get();
    return nullptr;
}

MotifPeer& MotifPeerTable::Make(MotifView& view, ZOLDialog& dialog) {
    Drop(dialog.GetNumber());
    return *(_peers[dialog.GetNumber()] = MakeByClass(view, dialog));
}

// Out of the table first: destroying the widget may call back.
void MotifPeerTable::Drop(long number) {
    const auto node = _peers.extract(number);
}

void MotifPeerTable::Clear() {
    const auto peers = std::exchange(_peers, {});
}

} // namespace trellis
