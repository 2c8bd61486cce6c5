#pragma once

#include "toolkit/ZOLGraphNode.h"

// ZOLCategoryGraphNode: a node of the selection graph: a category, or an option under it.
class ZOLCategoryGraphNode : public ZOLGraphNode {
    ZOL_META_OBJECT(ZOLCategoryGraphNode, ZOLGraphNode)
public:
    ZOLCategoryGraphNode(const ZOLUnicodeString& text, const ZOLUnicodeString& pixmap);

    // The node with the first arc that leads to it.
    virtual void Hide();
    virtual void Show();
    virtual int IsACategory() const = 0;
    virtual int IsAnOption() const = 0;

protected:
    // The text of a node: the name, and behind it in brackets the description, if wanted and not empty. One of 26
    // characters or more is cut to its first 22 and "...".
    static ZOLUnicodeString TextOf(const ZOLUnicodeString& name, const ZOLUnicodeString& description,
                                   int withDescription);
};
