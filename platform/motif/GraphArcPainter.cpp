#include "motif/GraphArcPainter.h"

#include "motif/CairoShapes.h"
#include "toolkit/GraphPalette.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"

#include <algorithm>
#include <array>

namespace trellis {

namespace {

constexpr int RejectedLine = 2;
constexpr int Irresolution = 2;
constexpr int PlainColour = 3;
constexpr double Dashes[3][2] = {{1, 0}, {6, 4}, {1.5, 3}};
constexpr int Reach = 4; // units by which a line may be broader than its path

bool Touches(const LayoutRectangle& sight, int left, int top, int right, int bottom) {
    return right >= sight.x - Reach && left <= sight.x + sight.width + Reach && bottom >= sight.y - Reach &&
           top <= sight.y + sight.height + Reach;
}

} // namespace

GraphArcPainter::Line GraphArcPainter::LineOf(const ZOLGraphArc& arc) {
    const GraphColour& colour = GraphPalette::At(arc.getColor());
    const bool isPlain = arc.getColor() == PlainColour;
    Line line{isPlain ? 1.0 : 2.5,
              0,
              {static_cast<std::uint32_t>(colour.red << 16 | colour.green << 8 | colour.blue)}};
    if (arc.getHighlight())
        line.width += 1;
    if (arc.getLineType() == RejectedLine)
        line.dash = 1;
    else if (arc.getColor() == Irresolution)
        line.dash = 2;
    return line;
}

void GraphArcPainter::Paint(cairo_t* context) {
    cairo_save(context);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    const std::vector<DrawnNode>& nodes = _drawing.Nodes();
    for (const DrawnNode& drawn : nodes) {
        if (drawn.arc && drawn.arc->isVisible())
            PaintArc(context, *drawn.arc, nodes[static_cast<std::size_t>(drawn.parent)].place, drawn.place);
        if (drawn.node->nParent() > 1)
            PaintMoreParents(context, drawn);
    }
    Stroke(context);
    cairo_restore(context);
}

void GraphArcPainter::PaintMoreParents(cairo_t* context, const DrawnNode& drawn) {
    for (const ZOLGraphArc* arc : drawn.node->ParentArcs()) {
        const int parent = _drawing.Position(arc->GetParent());
        if (arc != drawn.arc && arc->isVisible() && parent >= 0)
            PaintArc(context, *arc, _drawing.Nodes()[static_cast<std::size_t>(parent)].place, drawn.place);
    }
}

void GraphArcPainter::PaintArc(cairo_t* context, const ZOLGraphArc& arc, const LayoutRectangle& parent,
                               const LayoutRectangle& child) {
    if (!Touches(_inSight, std::min(parent.x, child.x), std::min(parent.y, child.y),
                 std::max(parent.x + parent.width, child.x + child.width),
                 std::max(parent.y + parent.height, child.y + child.height)))
        return;
    Begin(context, LineOf(arc));
    const std::array<LayoutPoint, 4> corners = ArcCorners(parent, child, _style);
    for (std::size_t i = 0; i + 1 < corners.size(); ++i)
        AddPiece(context, corners[i], corners[i + 1]);
}

void GraphArcPainter::Begin(cairo_t* context, const Line& line) {
    if (line == _line)
        return;
    Stroke(context);
    _line = line;
    _lastFrom = _lastTo = {-1, -1};
}

void GraphArcPainter::Stroke(cairo_t* context) {
    if (!cairo_has_current_point(context))
        return;
    CairoShapes::SetColour(context, _line.colour);
    cairo_set_line_width(context, _line.width);
    cairo_set_dash(context, Dashes[_line.dash], _line.dash == 0 ? 0 : 2, 0);
    cairo_stroke(context);
}

// Adds one straight piece if it can be seen, cut to what is in sight where it runs along the grid.
void GraphArcPainter::AddPiece(cairo_t* context, LayoutPoint from, LayoutPoint to) {
    if (from == to || !Touches(_inSight, std::min(from.x, to.x), std::min(from.y, to.y),
                               std::max(from.x, to.x), std::max(from.y, to.y)))
        return;
    if (from.x == to.x) {
        const int top = _inSight.y - Reach;
        const int bottom = _inSight.y + _inSight.height + Reach;
        from.y = std::clamp(from.y, top, bottom);
        to.y = std::clamp(to.y, top, bottom);
    } else if (from.y == to.y) {
        const int left = _inSight.x - Reach;
        const int right = _inSight.x + _inSight.width + Reach;
        from.x = std::clamp(from.x, left, right);
        to.x = std::clamp(to.x, left, right);
    }
    const bool isUpright = from.x == to.x;
    if (isUpright && from == _lastFrom && to == _lastTo)
        return;
    if (isUpright) {
        _lastFrom = from;
        _lastTo = to;
    }
    cairo_move_to(context, from.x + 0.5, from.y + 0.5);
    cairo_line_to(context, to.x + 0.5, to.y + 0.5);
}

} // namespace trellis
