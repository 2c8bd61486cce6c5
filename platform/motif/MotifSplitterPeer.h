#pragma once

#include "motif/MotifHolderPeer.h"

#include <unordered_map>
#include <vector>

class ZOLDlgSplitter;

namespace trellis {

// MotifSplitterPeer: shows a splitter: between two neighbours lies a bar that the user can drag,
// or move with the arrow keys.
class MotifSplitterPeer : public MotifHolderPeer {
public:
    MotifSplitterPeer(MotifView& view, ZOLDlgSplitter& splitter);
    void PlaceContent(const DialogLayout& layout, const LayoutRectangle& place) override;
    void CollectStops(std::vector<Widget>& stops) const override;

protected:
    Widget Build(Widget parent) override;

private:
    struct Part {
        ZOLDialog* dialog;
        int extent; // along the splitter
    };

    std::vector<Part> PartsOf(const DialogLayout& layout);
    void PlacePart(const Part& part, int from, const LayoutRectangle& place);
    void PlaceSash(std::size_t index, int from, const LayoutRectangle& place);
    bool IsBeside() const;
    void MakeSash();
    ZOLDialog* PartBefore(Widget sash) const;
    void Grabbed(Widget sash, XEvent* event);
    void KeyPressed(Widget sash, XEvent* event);
    void Entered(Widget sash, XEvent* event);
    void FocusMoved(Widget sash, XEvent* event);
    void Dragged(Widget sash, XEvent* event);

    std::vector<Widget> _sashes;
    // By number of the dialog in front: pixels that the user gave it, and those that it could take.
    std::unordered_map<long, int> _moved;
    std::unordered_map<long, int> _taken;
    long _grabbed = 0;
    int _grabbedAt = 0;
    int _movedBefore = 0;
};

} // namespace trellis
