#include "navigator/NavigatorNode.h"

#include "navigator/StructureEdit.h"
#include "session/EffectivityText.h"
#include "toolkit/ZOLGYRResource.h"
#include "toolkit/ZOLGraphArc.h"

namespace trellis {

namespace {

constexpr int PlainColour = 1;
constexpr int PendingColour = 7;
constexpr int RemovedColour = 12;
constexpr int ConfigurableColour = 46;
constexpr int ShownEffectivities = 4;

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

ZOLUnicodeString NameOf(const ZOLDMInstance& part) {
    return part.GetNameInstance(1, 1, " ", "$BOM_NAVIG");
}

// The text of a key with its parameters; without such a key the first parameter.
ZOLUnicodeString Text(const std::string& key, const ZOLListValZOLUnicodeString& parameters) {
    ZOLUnicodeString text = parameters[1];
    ZOLGYRResource("StructureText").GetValue(key.c_str(), text, parameters);
    return text;
}

// A link's name is told where it says more than the part does.
ZOLUnicodeString WithLinkName(const ZOLUnicodeString& text, const SdaiAppInstance* link) {
    const ZOLUnicodeString name = link ? link->GetName() : ZOLUnicodeString();
    return name.IsEmpty() || text.SearchSubString(name) >= 0 ? text : Text("Link", {text, name});
}

ZOLUnicodeString WithEffectivities(const ZOLUnicodeString& text,
                                   const ZOLListValZOLIQrdEffectivity_var& effectivities) {
    if (effectivities.Size() == 0)
        return text;
    ZOLUnicodeString all;
    int count = 0;
    for (const ZOLIQrdEffectivity_var& effectivity : effectivities)
        if (++count <= ShownEffectivities)
            all += (count == 1 ? "" : "; ") + EffectivityText(effectivity->GetTerm());
    const int more = effectivities.Size() - ShownEffectivities;
    return more > 0 ? Text("EffectivitiesMore", {text, all, ZOLUnicodeString::FromNumber(more)})
                    : Text("Effectivities", {text, all});
}

// What the edits make of a link's line. The other end of a move or replacement is named.
ZOLUnicodeString WithEdit(const ZOLUnicodeString& text, const SdaiAppInstance& link,
                          const StructureEdit& edit) {
    const int position = link.IsUnderEdit() ? edit.PositionOf(link) : 0;
    if (position == 0)
        return text;
    const ZOLQRDCfgModification& record = edit.Record();
    const ModificationType kind = record.GetKind(position);
    const SdaiAppInstance& now = *record.GetFirst(position);
    const SdaiAppInstance* before = record.GetSecond(position);
    ZOLUnicodeString other;
    if (kind == RenameLink)
        other = link.GetStoredName();
    else if (before) {
        const SdaiAppInstance& end = link.IsRemoved() ? now : *before;
        other = NameOf(kind == MoveLink ? end.GetParent() : end.GetChild());
    }
    return Text((link.IsRemoved() ? "Gone." : "Pending.") + std::to_string(kind), {text, other});
}

} // namespace

NavigatorNode::NavigatorNode(const ZOLDMInstance& part) : ZOLGraphNode("", " "), _part(part) {}

NavigatorNode::NavigatorNode(SdaiAppInstance& link)
    : ZOLGraphNode("", " "), _part(link.GetChild()), _link(&link) {}

void NavigatorNode::Refresh(const ZOLListValZOLIQrdEffectivity_var& effectivities,
                            const ZOLUnicodeString& state, const StructureEdit& edit) {
    ZOLUnicodeString text = WithEffectivities(WithLinkName(NameOf(_part), _link), effectivities);
    if (!state.IsEmpty())
        text = Text("Configurable", {text, state});
    if (_link)
        text = WithEdit(text, *_link, edit);
    // A name may hold line feeds; a node of the outline has one line.
    text.Replace("\n", " ");
    setText(text.ConvertToChar());
    if (_link && _link->IsUnderEdit())
        setColor(_link->IsRemoved() ? RemovedColour : PendingColour);
    else
        setColor(state.IsEmpty() ? PlainColour : ConfigurableColour);
}

std::vector<NavigatorNode*> NavigatorNode::Children() const {
    std::vector<NavigatorNode*> children;
    for (const ZOLGraphArc* arc : ChildArcs())
        children.push_back(static_cast<NavigatorNode*>(arc->GetChild()));
    return children;
}

void NavigatorNode::SetBranch(Branch branch) {
    _branch = branch;
    setPixmap(PixmapOf(branch));
}

} // namespace trellis
