#pragma once

#include "toolkit/NodeMark.h"
#include "toolkit/ZOLGraphElem.h"
#include "toolkit/ZOLNodeSelectNotification.h"

#include <list>
#include <string_view>

class ZOLGraphArc;

namespace trellis {
// The part of a pixmap's name by which a reader knows it: what stands behind the last "/". Valid as long as
// the text.
TRELLIS_API std::string_view PixmapBaseName(const ZOLUnicodeString& pixmap);
} // namespace trellis

// ZOLGraphNode: one node of a graph: a text of one or more lines with a pixmap. Arcs tie it to its children
// and parents; their order is that in which the arcs were made. A node does not own its children, and no
// graph owns its nodes: they end by RequestDelayedDestruction, or are deleted by whoever made them, outside
// their own notification. From then on it is out of its graph, and all its arcs are gone at both ends.
class TRELLIS_API ZOLGraphNode : public ZOLGraphElem {
    ZOL_META_OBJECT(ZOLGraphNode, ZOLGraphElem)
public:
    ZOLGraphNode(const ZOLUnicodeString& text, const ZOLUnicodeString& pixmap);
    ~ZOLGraphNode() override;

    ZOLGraph* graph() const override { return _graph; }
    int manipulate() const override;
    void insert(ZOLGraph* graph) override;
    void remove() override;
    using ZOLGraphElem::toCompose;
    ZOLUnicodeString toCompose() const override;

    // Lines are parted by line feeds; a null pointer makes an empty text.
    void setText(const char* utf8);
    const ZOLUnicodeString& getText() const { return _text; }
    // The text up to the first line feed.
    ZOLUnicodeString firstLine() const;

    // Any text is kept and read back as it was set, perhaps a path. What names no image draws nothing.
    void setPixmap(const char* name);
    const ZOLUnicodeString& getPixmap() const { return _pixmap; }
    // Whether there is something to draw: the part behind the last "/" is more than blanks and an extension.
    bool HasPixmap() const;

    // Shadow: drawn as if pressed in, or standing out as at first.
    void setShadowIn();
    void setShadowOut();
    int isShadowIn() const { return _isShadowIn ? 1 : 0; }
    // The frame around text and pixmap, on at first.
    void setDecorationVisibility(int on);
    int getDecorationVisibility() const { return _hasDecoration ? 1 : 0; }
    // A mark for the node that others are compared with.
    void setCurrent(int on);
    int getCurrent() const { return _isCurrent ? 1 : 0; }

    // What the node says of a choice; nothing at first. A marked node without a pixmap has its mark before the text,
    // one with a pixmap behind it. A shadow adds nothing to the look of a marked node.
    void setMark(trellis::NodeMark mark, trellis::NodeAlert alert = trellis::NodeAlert::None);
    trellis::NodeMark getMark() const { return _mark; }
    trellis::NodeAlert getAlert() const { return _alert; }

    // Walking the children: the first, then one after the other until null. A node that is destroyed during
    // the walk does not disturb it; two walks over the children of one node at a time do.
    ZOLGraphNode* firstChild();
    ZOLGraphNode* nextChild();
    ZOLGraphNode* firstParent() const;
    ZOLGraphArc* firstArcParent() const;
    int nParent() const { return static_cast<int>(_parentArcs.size()); }
    int nChild() const { return static_cast<int>(_childArcs.size()); }
    // The arcs to the children and from the parents, in the order in which they were made.
    const std::list<ZOLGraphArc*>& ChildArcs() const { return _childArcs; }
    const std::list<ZOLGraphArc*>& ParentArcs() const { return _parentArcs; }

    // The notification that the viewer sends when the user selects this node; owned by the node.
    ZOLNodeSelectNotification* GetSelectNotification() { return &_selectNotification; }

protected:
    void GiveUp() override;

private:
    friend class ZOLGraph;
    friend class ZOLGraphArc;

    void DeleteArcs();

    ZOLUnicodeString _text;
    ZOLUnicodeString _pixmap;
    bool _isShadowIn = false;
    bool _hasDecoration = true;
    bool _isCurrent = false;
    trellis::NodeMark _mark = trellis::NodeMark::None;
    trellis::NodeAlert _alert = trellis::NodeAlert::None;
    std::list<ZOLGraphArc*> _childArcs;
    std::list<ZOLGraphArc*> _parentArcs;
    std::list<ZOLGraphArc*>::iterator _nextChildArc;
    ZOLGraph* _graph = nullptr;
    std::list<ZOLGraphNode*>::iterator _placeInGraph;
    ZOLNodeSelectNotification _selectNotification;
};
