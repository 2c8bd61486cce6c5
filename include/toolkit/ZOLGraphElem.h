#pragma once

#include "toolkit/ZOLCommand.h"

class ZOLGraph;

namespace trellis {
class DialogDescription;
}

// ZOLGraphElem: what a graph draws: a node or an arc. It holds how it looks; colours are indexes of
// trellis::GraphPalette, and any index is kept and read back as it was set. Every change marks the graph that
// holds the element; nothing is drawn or laid out by a change.
class TRELLIS_API ZOLGraphElem : public ZOLCommand {
    ZOL_META_OBJECT(ZOLGraphElem, ZOLCommand)
public:
    ~ZOLGraphElem() override;

    // The own flag, on at first. A hidden element keeps its place among the others but takes no room.
    virtual void show();
    virtual void hide();
    // 1 or 0: the own flag, whether in a graph or not.
    virtual int isVisible() const;
    // The graph that holds this element, or null. An element is in one graph at most.
    virtual ZOLGraph* graph() const = 0;
    // How many graphs hold it (0 or 1), and which place a graph has among them: 0, or -1 for one that does
    // not.
    virtual int graphCount() const;
    virtual int graphIndex(const ZOLGraph* graph) const;
    virtual int getColor() const;
    virtual void setColor(int index);
    // 0 or 1: whether the element stands out from the others of its colour.
    virtual int getHighlight() const;
    virtual void setHighlight(int on);
    // 1 when a user can act on elements of this class.
    virtual int manipulate() const;
    virtual const char* className() const;
    // The colour of that name in the palette; an unknown name changes nothing. The name of an index that the
    // palette does not know is that of the plain colour.
    virtual void setColor(const char* name);
    virtual const char* getColorName() const;
    // Puts this element alone into a graph, taking it out of the one that held it; takes it out. Both are
    // harmless when there is nothing to do. An arc follows its ends and does nothing here.
    virtual void insert(ZOLGraph* graph);
    virtual void remove();
    // What a user sees of this element, as one line; and the same written into a description.
    virtual ZOLUnicodeString toCompose() const;
    virtual void toCompose(trellis::DialogDescription& description) const;
    // What a view keeps for this element; null without a view.
    virtual void* CreateGraphRep();

protected:
    explicit ZOLGraphElem(int color);

    // What changed: only how the element looks, or also the room that it takes.
    enum class Change { Look, Room };
    void MarkChanged(Change change);

private:
    int _color;
    bool _isVisible = true;
    bool _isHighlighted = false;
};
