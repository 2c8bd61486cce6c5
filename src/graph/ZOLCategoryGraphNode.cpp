#include "graph/ZOLCategoryGraphNode.h"

#include "toolkit/ZOLGraphArc.h"

namespace {

constexpr int LongestDescription = 25;
constexpr int CutDescription = 22;

} // namespace

ZOLCategoryGraphNode::ZOLCategoryGraphNode(const ZOLUnicodeString& text, const ZOLUnicodeString& pixmap)
    : ZOLGraphNode(text, pixmap) {}

void ZOLCategoryGraphNode::Hide() {
    hide();
    if (ZOLGraphArc* arc = firstArcParent())
        arc->hide();
}

void ZOLCategoryGraphNode::Show() {
    show();
    if (ZOLGraphArc* arc = firstArcParent())
        arc->show();
}

ZOLUnicodeString ZOLCategoryGraphNode::TextOf(const ZOLUnicodeString& name,
                                              const ZOLUnicodeString& description, int withDescription) {
    if (!withDescription || description.IsEmpty())
        return name;
    const bool isLong = description.GetLengthInChar() > LongestDescription;
    return name + " (" + (isLong ? description.SubString(0, CutDescription) + "..." : description) + ")";
}
