#pragma once

#include "model/SdaiAppInstance.h"
#include "service/ZOLIQrdEffectivity.h"
#include "toolkit/ZOLGraphNode.h"

#include <vector>

namespace trellis {

class StructureEdit;

// NavigatorNode: one part at one place of the structure, with the link that holds it there. A part that is used twice
// has two nodes.
class NavigatorNode : public ZOLGraphNode {
    ZOL_META_OBJECT(NavigatorNode, ZOLGraphNode)
public:
    // A root.
    explicit NavigatorNode(const ZOLDMInstance& part);
    explicit NavigatorNode(SdaiAppInstance& link);

    const ZOLDMInstance& Part() const { return _part; }
    // In the order of the outline; those of a branch that was read.
    std::vector<NavigatorNode*> Children() const;
    // Null for a root.
    SdaiAppInstance* Link() const { return _link; }
    // Text and colour by what part and link are now: names, effectivities of the link, how the part stands as a
    // configurable one (nothing when it is none), and what the edits do to the link.
    void Refresh(const ZOLListValZOLIQrdEffectivity_var& effectivities, const ZOLUnicodeString& state,
                 const StructureEdit& edit);

    // Whether a branch hangs below it: Closed and Open ones have been read.
    enum class Branch { NeverOpened, Open, Closed, Leaf };
    Branch GetBranch() const { return _branch; }
    void SetBranch(Branch branch);
    bool WasRead() const { return _branch == Branch::Open || _branch == Branch::Closed; }

private:
    ZOLDMInstance _part;
    SdaiAppInstance* _link = nullptr;
    Branch _branch = Branch::Leaf;
};

} // namespace trellis
