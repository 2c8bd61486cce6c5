#include "toolkit/TreeLayout.h"

#include <algorithm>
#include <cstddef>

namespace trellis {

namespace {

constexpr int OutlineIndent = 16; // of a child behind its parent, besides the depth margin
constexpr int OutlineStem = 8;    // where the line leaves an outline's parent, from its left edge

// A node on its way: "across" runs along the nodes of one level, "along" with the depth.
struct Span {
    int across = 0;  // place, before the shifts of the ancestors
    int breadth = 0; // size across
    int length = 0;  // size along
    int shift = 0;   // of all descendants
    int depth = 0;
    int firstChild = -1;
    int lastChild = -1;
    int bandStart = 0;
};

// Lays out level by level. Nodes are closed in the order of a walk that visits children before their parent,
// which the order of the nodes gives without recursion: a node is closed when one follows that is not deeper.
class LevelLayout {
public:
    LevelLayout(const std::vector<TreeLayoutNode>& nodes, const TreeLayoutStyle& style)
        : _nodes(nodes),
          _style(style),
          _margin(std::max(style.widthMargin, 0)),
          _isVertical(style.shape == TreeShape::VerticalCentred),
          _spans(nodes.size()) {}

    std::vector<LayoutRectangle> Rectangles() {
        Measure();
        CloseAll();
        ApplyShifts();
        return Write();
    }

private:
    Span& At(int node) { return _spans[static_cast<std::size_t>(node)]; }

    void Measure() {
        for (std::size_t i = 0; i < _nodes.size(); ++i) {
            Span& span = _spans[i];
            const LayoutSize size = _nodes[i].size;
            span.breadth = _isVertical ? size.width : size.height;
            span.length = _isVertical ? size.height : size.width;
            const int parent = _nodes[i].parent;
            span.depth = parent < 0 ? 0 : At(parent).depth + 1;
            if (static_cast<std::size_t>(span.depth) == _levels.size())
                _levels.emplace_back();
            Level& level = _levels[static_cast<std::size_t>(span.depth)];
            level.length = std::max(level.length, span.length);
            if (parent < 0)
                continue;
            At(parent).lastChild = static_cast<int>(i);
            if (At(parent).firstChild < 0)
                At(parent).firstChild = static_cast<int>(i);
        }
    }

    void CloseAll() {
        std::vector<int> open;
        for (int i = 0; i < static_cast<int>(_spans.size()); ++i) {
            CloseDownTo(open, At(i).depth);
            At(i).bandStart = _bandEnd;
            open.push_back(i);
        }
        CloseDownTo(open, 0);
    }

    void CloseDownTo(std::vector<int>& open, int depth) {
        while (!open.empty() && At(open.back()).depth >= depth) {
            if (_style.packed)
                ClosePacked(At(open.back()));
            else
                CloseInBand(At(open.back()));
            open.pop_back();
        }
    }

    // Where a parent would like to stand, seen from its children.
    int Wanted(const Span& span) {
        const Span& last = At(span.lastChild);
        const int end = last.across + last.breadth;
        if (_style.shape == TreeShape::HorizontalBottom)
            return end - span.breadth;
        return (At(span.firstChild).across + end - span.breadth) / 2;
    }

    // The shifts of one level never shrink, so a later subtree is shifted at least as far as an earlier one:
    // what did not overlap before the shifts does not overlap after them.
    void ClosePacked(Span& span) {
        Level& level = _levels[static_cast<std::size_t>(span.depth)];
        if (span.firstChild < 0) {
            span.across = level.nextFree;
        } else {
            const int wanted = Wanted(span);
            level.shift = std::max(level.shift, level.nextFree - wanted);
            span.shift = level.shift;
            span.across = wanted + span.shift;
        }
        level.nextFree = span.across + span.breadth + _margin;
    }

    void CloseInBand(Span& span) {
        const int band = span.firstChild < 0 ? 0 : _bandEnd - _margin - span.bandStart;
        if (span.breadth >= band) {
            const int left = span.breadth - band;
            span.shift = _style.shape == TreeShape::HorizontalBottom ? left : left / 2;
            span.across = span.bandStart;
            _bandEnd = span.bandStart + span.breadth + _margin;
            return;
        }
        span.across = std::clamp(Wanted(span), span.bandStart, span.bandStart + band - span.breadth);
    }

    // Adds to each place what all ancestors shift their descendants by.
    void ApplyShifts() {
        std::vector<int> sums(_spans.size(), 0); // what a node hands to its children
        for (std::size_t i = 0; i < _spans.size(); ++i) {
            const int parent = _nodes[i].parent;
            const int own = parent < 0 ? 0 : sums[static_cast<std::size_t>(parent)];
            sums[i] = own + _spans[i].shift;
            _spans[i].across += own;
        }
    }

    std::vector<LayoutRectangle> Write() {
        int start = 0;
        for (Level& level : _levels) {
            level.start = start;
            start += level.length + std::max(_style.depthMargin, 0);
        }
        std::vector<LayoutRectangle> rectangles;
        rectangles.reserve(_spans.size());
        for (const Span& span : _spans) {
            const int along = _levels[static_cast<std::size_t>(span.depth)].start;
            if (_isVertical)
                rectangles.push_back({span.across, along, span.breadth, span.length});
            else
                rectangles.push_back({along, span.across, span.length, span.breadth});
        }
        return rectangles;
    }

    struct Level {
        int length = 0;   // of its longest node
        int start = 0;    // along
        int nextFree = 0; // across, for packing
        int shift = 0;    // the largest so far
    };

    const std::vector<TreeLayoutNode>& _nodes;
    const TreeLayoutStyle& _style;
    const int _margin;
    const bool _isVertical;
    std::vector<Span> _spans;
    std::vector<Level> _levels;
    int _bandEnd = 0; // where the next band begins
};

std::vector<LayoutRectangle> OutlineRectangles(const std::vector<TreeLayoutNode>& nodes,
                                               const TreeLayoutStyle& style) {
    const int indent = OutlineIndent + std::max(style.depthMargin, 0);
    std::vector<LayoutRectangle> rectangles;
    rectangles.reserve(nodes.size());
    int y = 0;
    for (const TreeLayoutNode& node : nodes) {
        const int x = node.parent < 0 ? 0 : rectangles[static_cast<std::size_t>(node.parent)].x + indent;
        rectangles.push_back({x, y, node.size.width, node.size.height});
        y += node.size.height + std::max(style.widthMargin, 0);
    }
    return rectangles;
}

} // namespace

TreeLayout::TreeLayout(const std::vector<TreeLayoutNode>& nodes, const TreeLayoutStyle& style)
    : _rectangles(style.shape == TreeShape::HorizontalIndented ? OutlineRectangles(nodes, style)
                                                               : LevelLayout(nodes, style).Rectangles()) {
    for (const LayoutRectangle& place : _rectangles) {
        _size.width = std::max(_size.width, place.x + place.width);
        _size.height = std::max(_size.height, place.y + place.height);
    }
}

std::array<LayoutPoint, 4> ArcCorners(const LayoutRectangle& parent, const LayoutRectangle& child,
                                      const TreeLayoutStyle& style) {
    const LayoutPoint childSide{child.x, child.y + child.height / 2};
    const LayoutPoint childTop{child.x + child.width / 2, child.y};
    LayoutPoint from{parent.x + parent.width, parent.y + parent.height / 2};
    LayoutPoint to = childSide;
    // Square arcs turn close to the child, so that the arcs of all siblings share one line.
    const int turn = std::max(style.depthMargin, 0) / 2;
    LayoutPoint firstCorner{child.x - turn, from.y};
    LayoutPoint secondCorner{child.x - turn, to.y};
    if (style.shape == TreeShape::HorizontalIndented) {
        from = {parent.x + OutlineStem, parent.y + parent.height};
        firstCorner = secondCorner = {from.x, to.y};
    } else if (style.shape == TreeShape::VerticalCentred) {
        from = {parent.x + parent.width / 2, parent.y + parent.height};
        to = childTop;
        firstCorner = {from.x, child.y - turn};
        secondCorner = {to.x, child.y - turn};
    }
    if (!style.squareArcs)
        return {from, from, to, to};
    return {from, firstCorner, secondCorner, to};
}

} // namespace trellis
