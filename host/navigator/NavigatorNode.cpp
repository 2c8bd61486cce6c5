#include "navigator/NavigatorNode.h"

#include "session/StructureTree.h"

namespace trellis {

namespace {

constexpr int PlainColour = 1;
constexpr int ConfigurableColour = 46;

const char* PixmapOf(NavigatorNode::Branch branch) {
    switch (branch) {
    case NavigatorNode::Branch::Open:
        return "diropen.rgb";
    case NavigatorNode::Branch::Leaf:
        return " ";
    default:
        return "dirclose.rgb";
    }
}

} // namespace

NavigatorNode::NavigatorNode(const ZOLDMInstance& part)
    : ZOLGraphNode("", PixmapOf(Branch::NeverOpened)), _part(part) {
    Refresh();
}

void NavigatorNode::Refresh() {
    const ZOLUnicodeString state = StructureTree::State(_part);
    ZOLUnicodeString text = _part.GetNameInstance(1, 1, " ", "$BOM_NAVIG");
    if (!state.IsEmpty())
        text += ZOLUnicodeString(" [") + state + "]";
    // A name may hold line feeds; a node of the tree has one line.
    text.Replace("\n", " ");
    setText(text.ConvertToChar());
    setColor(state.IsEmpty() ? PlainColour : ConfigurableColour);
}

void NavigatorNode::SetBranch(Branch branch) {
    _branch = branch;
    setPixmap(PixmapOf(branch));
}

} // namespace trellis
