#pragma once

#include "toolkit/ZOLGraph.h"
#include "toolkit/ZOLGraphContextNotification.h"
#include "toolkit/ZOLGraphSelectNotification.h"
#include "toolkit/ZOLNavigation2DViewer.h"
#include "toolkit/ZOLNodeContextNotification.h"
#include "toolkit/ZOLNodeExtSelectNotification.h"
#include "toolkit/ZOLNodePointNotification.h"

#include <memory>
#include <vector>

class ZOLDlgContextualMenu;

namespace trellis {
// Where the keyboard moves in a graph, as the user sees it.
enum class GraphStep { Left, Right, Up, Down };
} // namespace trellis

// ZOLGraphViewer: the widget that shows a graph and takes what the user does on its nodes.
//
// Each gesture sends one notification, as the viewer and to the viewer itself, so that it climbs to the
// fathers when the viewer does not take it: the selected node's own select notification; the extended select,
// context and background ones of the viewer. A refused gesture sends nothing. Pointing is no gesture: it changes
// nothing, so that a greyed viewer and a mere display tell of it, too.
class TRELLIS_API ZOLGraphViewer : public ZOLNavigation2DViewer {
    ZOL_META_OBJECT(ZOLGraphViewer, ZOLNavigation2DViewer)
public:
    // sizing  4: the area keeps its size when the window grows; 0: it grows with it
    ZOLGraphViewer(ZOLDialog* owner, const ZOLString& name, unsigned long style, int width, int height,
                   int sizing);
    ~ZOLGraphViewer() override;

    // A new, empty graph in place of the present one; nodes of the old are in no graph then. Owned by the
    // viewer, which has one from the start.
    ZOLGraph* CreateGraph();
    ZOLGraph* GetGraph() const { return _graph.get(); }
    // Puts one node into the graph, and takes it out.
    void add(ZOLGraphNode* node);
    void remove(ZOLGraphNode* node);
    // Moves the viewpoint so that the node stands in the middle of the area, once somebody looks. Nothing
    // happens for a node that is not drawn by then.
    void centre(ZOLGraphNode* node);
    // Gives a node the focus of the keyboard, and moves the viewpoint no more than it takes to bring it into sight.
    // Nothing happens for a node that is not drawn.
    void reveal(ZOLGraphNode* node);
    // Marks that places have to be computed anew; costs nothing, and may be called after every change.
    void doLayout();
    // doLayout and update in one.
    void UpdateLayout();
    // 0: a display only, on which all gestures are refused as insensitive; 1, as at first: gestures are sent.
    void defineEventManagement(int on);

    // The drawing with texts as large as the measure says, and the point of it in the top left corner of the
    // area.
    const trellis::GraphDrawing& GetDrawing(const trellis::TextMeasure& measure) const;
    trellis::LayoutPoint GetViewPoint(const trellis::TextMeasure& measure);

    // The drawn node that is reached from a root by the first lines of root, child and so on; null when there
    // is none.
    ZOLGraphNode* FindDrawn(const std::vector<ZOLUnicodeString>& firstLines) const;

    // What a user can do. Besides the results of every widget: NotThere for a node that is not in the graph,
    // Hidden for one that is not drawn.
    ZOLUserResult UserClickNode(ZOLGraphNode* node, bool extend = false);
    // Empties the contextual menu, sends, and shows the menu if it is on and anything was built into it.
    ZOLUserResult UserContextNode(ZOLGraphNode* node);
    ZOLUserResult UserClickBackground();
    ZOLUserResult UserContextBackground();
    // The pointer comes to a node, or to none of them (null); or the keyboard does. Sent when the node is another than
    // before: one that is pointed at twice is told once.
    ZOLUserResult UserPointAt(ZOLGraphNode* node);
    // The node of the last such notification; null when it is gone, or was none.
    ZOLGraphNode* GetPointedNode() const;

    // The keyboard. One node has the focus: the one that the user acted on last, else the first root.
    // NotThere when there is nothing to go to, or nothing to open or close.
    ZOLGraphNode* GetFocusNode() const;
    // Along the depth of the tree to the parent or the first child, across it to the neighbour of the same
    // depth; in an outline up and down go row by row. Points at what it comes to.
    ZOLUserResult UserMoveFocus(trellis::GraphStep step);
    // Space and Shift with Space: click and context on the focus.
    ZOLUserResult UserClickFocus();
    ZOLUserResult UserContextFocus();
    // Ctrl with Space: the extended click on the focus. Shift with an arrow: moves the focus and takes what it comes
    // to; back over a node that stands out, it gives up the one that it leaves.
    ZOLUserResult UserExtendFocus();
    ZOLUserResult UserExtendTo(trellis::GraphStep step);
    // + and -: a click on the focus if its pixmap says that the branch is closed, or open.
    ZOLUserResult UserOpenFocus();
    ZOLUserResult UserCloseFocus();

    const char* GetKind() const override;
    // The drawn nodes, each on a line of its own, indented by their depth.
    void DescribeTo(trellis::DialogDescription& description) const override;

private:
    friend class ZOLGraph;

    // What keeps a user from gestures here, and from those on one node.
    ZOLUserResult GestureGate() const;
    ZOLUserResult NodeGate(const ZOLGraphNode* node) const;
    void Send(ZOLGraphNotification& notification, ZOLGraphNode* node);
    void SendContext(ZOLGraphNotification& notification, ZOLGraphNode* node);
    ZOLUserResult ClickFocusWithPixmap(const char* pixmap);
    // The node to which a step leads from the focus; null when there is none.
    ZOLGraphNode* NodeAt(trellis::GraphStep step) const;
    void SetFocus(ZOLGraphNode* node);
    void FollowFocus(const trellis::GraphDrawing& drawing);
    void MoveToWanted(const trellis::GraphDrawing& drawing);
    ZOLDlgContextualMenu* FindContextualMenu() const;

    std::unique_ptr<ZOLGraph> _graph;
    bool _takesGestures = true;
    trellis::WeakCommand _focus;
    trellis::WeakCommand _pointed;
    bool _hasPointed = false;             // a node was told last, though it may be gone
    trellis::LayoutRectangle _focusPlace; // when somebody looked or the user acted last
    trellis::WeakCommand _toCentre;       // asked for, not done yet
    trellis::WeakCommand _toReveal;       // the same for a node that shall only come into sight
    ZOLNodeExtSelectNotification _extSelectNotification;
    ZOLNodeContextNotification _contextNotification;
    ZOLNodePointNotification _pointNotification;
    ZOLGraphSelectNotification _graphSelectNotification;
    ZOLGraphContextNotification _graphContextNotification;
};
