#pragma once

#include "toolkit/LayoutTypes.h"
#include "values/TrellisApi.h"

#include <array>
#include <vector>

namespace trellis {

// The shapes in which a tree may be laid out.
//   Horizontal          depth runs to the right in columns; a parent stands at the middle of its children
//   HorizontalBottom    the same, but a parent stands level with the bottom of its last child
//   HorizontalIndented  one node per row, children below their parent and indented, as in an outline
//   VerticalCentred     depth runs downwards in rows; a parent stands over the middle of its children
enum class TreeShape { Horizontal, HorizontalBottom, HorizontalIndented, VerticalCentred };

struct TreeLayoutStyle {
    TreeShape shape = TreeShape::Horizontal;
    // Packed: neighbouring subtrees move into each other's gaps, level by level. Else each subtree has a band
    // of its own, as broad as its broadest part. An outline is always packed.
    bool packed = false;
    int widthMargin = 4;  // pixels between neighbours of one level
    int depthMargin = 20; // pixels between one level and the next
    bool squareArcs = false;

    friend bool operator==(const TreeLayoutStyle&, const TreeLayoutStyle&) = default;
};

struct LayoutPoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const LayoutPoint&, const LayoutPoint&) = default;
};

// One node to lay out. Nodes stand in the order of a walk from the roots, parents before children and a whole
// subtree before the next.
struct TreeLayoutNode {
    LayoutSize size;
    int parent = -1; // position of the parent, below the own one; -1 for a root
};

// TreeLayout: places the nodes of some trees, given their sizes. Pure: knows neither graph nor view. Linear
// in the number of nodes, and not recursive, so that depth does not matter.
//
// No two nodes overlap; the origin is the top left corner; siblings keep their order; the roots stand as
// siblings.
class TRELLIS_API TreeLayout {
public:
    TreeLayout(const std::vector<TreeLayoutNode>& nodes, const TreeLayoutStyle& style);

    // One rectangle for each node, in the order of the nodes.
    const std::vector<LayoutRectangle>& Rectangles() const { return _rectangles; }
    // Right and bottom end of all of them.
    LayoutSize Size() const { return _size; }

private:
    std::vector<LayoutRectangle> _rectangles;
    LayoutSize _size;
};

// The corners of the line from a parent to a child, from end to end: in the middle two corners of right
// angles when arcs are square, else a straight line of which all four points lie on its ends.
TRELLIS_API std::array<LayoutPoint, 4> ArcCorners(const LayoutRectangle& parent, const LayoutRectangle& child,
                                                  const TreeLayoutStyle& style);

} // namespace trellis
