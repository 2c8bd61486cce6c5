#pragma once

#include "navigator/NavigatorNode.h"
#include "toolkit/ZOLGraphViewer.h"

#include <unordered_set>
#include <vector>

namespace trellis {

// StructureGraph: the product structure as an outline that opens level by level, with the parts that the user chose.
// A click chooses a part and opens its branch; a click on the only chosen part closes or opens it; an extended click
// adds a part to the choice or takes it out.
class StructureGraph : public ZOLGraphViewer {
    ZOL_META_OBJECT(StructureGraph, ZOLGraphViewer)
public:
    using Nodes = std::vector<NavigatorNode*>;

    // The edits, whose marks are shown, must outlive it.
    StructureGraph(ZOLDialog* father, const ZOLString& name, const StructureEdit& edit);
    ~StructureGraph() override;

    // Shows these parts as roots in place of the present ones; those that stay keep their branches.
    void ShowRoots(const ZOLListValZOLDMInstance& roots);
    // Nothing known where nothing is shown.
    ZOLDMInstance FirstRoot() const;
    // Reads everything that was opened anew: links that came or went, texts and marks. A node that is gone leaves the
    // choice.
    void Synchronise();

    // In the order in which they were chosen.
    const Nodes& ChosenNodes() const { return _chosen; }
    // The chosen parts, each once.
    std::vector<ZOLDMInstance> Chosen() const;
    // Chooses a node of each of these links, and brings the last into sight; nothing when none has a node.
    void ChooseLinks(const std::vector<SdaiAppInstance*>& links);
    // Sent to the fathers when the choice changed.
    ZOLNotification* GetChoiceNotification() { return &_choiceNotification; }

    // Opens so many levels below the chosen nodes, but stops when so many nodes are drawn that a reader is lost. True
    // when all that hangs below them is open.
    bool OpenChosen(int levels);
    void CloseChosen();

    enum class Direction { Forth, Back };
    // Chooses the next node behind or before the chosen one, in the order of the outline, whose text holds `text`,
    // whatever the case of letters; goes on at the other end. False when no drawn node has it.
    bool ChooseNext(const ZOLUnicodeString& text, Direction direction);

private:
    void SelectCB(ZOLCommand*, ZOLNotification* notification, void*);
    void ExtendCB(ZOLCommand*, ZOLNotification* notification, void*);
    void ContextCB(ZOLCommand*, ZOLNotification* notification, void*);

    void Adopt(NavigatorNode* node);
    void Choose(const Nodes& nodes);
    void Toggle(NavigatorNode* node);
    void Open(const Nodes& nodes);
    void Close(NavigatorNode* node);
    // Brings the children of nodes that were read to the present links, makes those of the others.
    void ReadBranches(const Nodes& nodes);
    void SynchroniseBranch(NavigatorNode* node, const std::vector<SdaiAppInstance*>& links);
    void Refresh(const Nodes& nodes);
    void Drop(const Nodes& tops);
    Nodes Roots() const;
    Nodes Outline() const;

    const StructureEdit& _edit;
    Nodes _nodes; // owned; parents before children that came with them
    Nodes _chosen;
    std::unordered_set<const NavigatorNode*> _dropped; // during one change of the structure
    ZOLNotification _choiceNotification;
};

} // namespace trellis
