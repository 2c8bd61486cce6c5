#pragma once

#include "toolkit/ZOLGraphElem.h"

#include <list>

class ZOLGraphNode;

// ZOLGraphArc: the line from a node to one of its children. It belongs to its two ends: the end of either
// deletes it, and so may whoever made it. It is drawn when it is visible and both ends are drawn. Making,
// hiding or ending an arc marks the graph of its ends.
class TRELLIS_API ZOLGraphArc : public ZOLGraphElem {
    ZOL_META_OBJECT(ZOLGraphArc, ZOLGraphElem)
public:
    // The child becomes the last child of the parent, and the parent the last parent of the child. A missing
    // end is a breach; so is one that is being given up.
    ZOLGraphArc(ZOLGraphNode* parent, ZOLGraphNode* child);
    ~ZOLGraphArc() override;

    // The graph that holds both ends, or null.
    ZOLGraph* graph() const override;
    using ZOLGraphElem::toCompose;
    ZOLUnicodeString toCompose() const override;

    // 1 plain, as at first; 2 rejected. Other numbers are kept and drawn as 1.
    void setLineType(int type);
    int getLineType() const { return _lineType; }

    // Whether it looks as at first: plain line, plain colour, no highlight.
    bool IsPlain() const;

    // Null for an arc that was given up.
    ZOLGraphNode* GetParent() const { return _parent; }
    ZOLGraphNode* GetChild() const { return _child; }

protected:
    void GiveUp() override;

private:
    void Untie();

    ZOLGraphNode* _parent;
    ZOLGraphNode* _child;
    std::list<ZOLGraphArc*>::iterator _placeInParent;
    std::list<ZOLGraphArc*>::iterator _placeInChild;
    int _lineType = 1;
};
