#pragma once

#include "model/ZOLDMInstance.h"
#include "toolkit/ZOLGraphNode.h"

namespace trellis {

// NavigatorNode: one part at one place of the structure. A part that is used twice has two nodes.
class NavigatorNode : public ZOLGraphNode {
    ZOL_META_OBJECT(NavigatorNode, ZOLGraphNode)
public:
    explicit NavigatorNode(const ZOLDMInstance& part);

    const ZOLDMInstance& Part() const { return _part; }
    // Text and colour by what the part is now: its name, and whether it is configurable.
    void Refresh();

    enum class Branch { NeverOpened, Open, Closed, Leaf };
    Branch GetBranch() const { return _branch; }
    void SetBranch(Branch branch);

private:
    ZOLDMInstance _part;
    Branch _branch = Branch::NeverOpened;
};

} // namespace trellis
