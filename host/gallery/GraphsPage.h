#pragma once

#include "gallery/GalleryPage.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

namespace trellis {

// GraphsPage: a graph as an outline whose branches open and close, and one with all that nodes and arcs can show.
class GraphsPage : public GalleryPage {
    ZOL_META_OBJECT(GraphsPage, GalleryPage)
public:
    using GalleryPage::GalleryPage;

protected:
    void Build(ZOLDlgFrame* holder) override;

private:
    ZOLGraphViewer* AddViewer(ZOLDialog* frame, const char* name);
    ZOLGraphNode* AddNode(ZOLGraphNode* parent, const ZOLUnicodeString& text);
    void BuildOutline(ZOLGraphViewer& viewer);
    ZOLGraphNode* BuildColours();
    ZOLGraphNode* BuildLooks();
    ZOLGraphNode* BuildMarks();
    ZOLGraphNode* BuildArcs();

    void BranchCB(ZOLCommand*, ZOLNotification* notification, void*);
    void MenuCB(ZOLCommand* viewer, ZOLNotification* notification, void*);

    std::vector<std::unique_ptr<ZOLGraphNode>> _nodes;
};

} // namespace trellis
