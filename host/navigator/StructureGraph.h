#pragma once

#include "navigator/NavigatorNode.h"
#include "toolkit/ZOLGraphViewer.h"

#include <vector>

namespace trellis {

// StructureGraph: the product structure as an outline that opens level by level, with the parts that the user chose.
// A click chooses a part and opens its branch; a click on the only chosen part closes or opens it; an extended click
// adds a part to the choice or takes it out.
class StructureGraph : public ZOLGraphViewer {
    ZOL_META_OBJECT(StructureGraph, ZOLGraphViewer)
public:
    StructureGraph(ZOLDialog* father, const ZOLString& name);
    ~StructureGraph() override;

    // Shows these parts as roots, closed, in place of what there was; nothing is chosen then.
    void ShowRoots(const ZOLListValZOLDMInstance& roots);
    // Reads texts and colours of all nodes anew; the structure stays.
    void RefreshNodes();

    // The chosen parts, each once, in the order in which they were chosen.
    std::vector<ZOLDMInstance> Chosen() const;
    // Sent to the fathers when the choice changed.
    ZOLNotification* GetChoiceNotification() { return &_choiceNotification; }

    // Chooses the next node behind the chosen one, in the order of the outline, whose text holds `text`, whatever
    // the case of letters; goes on at the top behind the last. False when no drawn node has it.
    bool ChooseNext(const ZOLUnicodeString& text);

private:
    void SelectCB(ZOLCommand*, ZOLNotification* notification, void*);
    void ExtendCB(ZOLCommand*, ZOLNotification* notification, void*);
    void ContextCB(ZOLCommand*, ZOLNotification* notification, void*);

    void Clear();
    NavigatorNode* AddNode(const ZOLDMInstance& part);
    void Choose(NavigatorNode* node);
    void Toggle(NavigatorNode* node);
    void Open(NavigatorNode* node);
    void ReadBranch(NavigatorNode* node);
    void SetBranchShown(NavigatorNode* node, bool shown);
    std::vector<NavigatorNode*> Outline();

    std::vector<NavigatorNode*> _nodes; // owned
    std::vector<NavigatorNode*> _chosen;
    ZOLNotification _choiceNotification;
};

} // namespace trellis
