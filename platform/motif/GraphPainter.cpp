#include "motif/GraphPainter.h"

#include "motif/CairoShapes.h"
#include "motif/GraphArcPainter.h"
#include "toolkit/ZOLGraphNode.h"

namespace trellis {

namespace {

constexpr double SmallestText = 6;   // pixels of a line below which nobody reads
constexpr double GreyedShare = 0.55; // of the ground over a graph that takes no input

bool Meet(const LayoutRectangle& a, const LayoutRectangle& b) {
    // One unit more on all sides, for shadows.
    return a.x <= b.x + b.width && b.x <= a.x + a.width && a.y <= b.y + b.height && b.y <= a.y + a.height;
}

bool Holds(const LayoutRectangle& place, LayoutPoint point) {
    return point.x >= place.x && point.x < place.x + place.width && point.y >= place.y &&
           point.y < place.y + place.height;
}

void SetGround(cairo_t* context, int index, double share) {
    const GraphColour& colour = GraphPalette::At(index);
    cairo_set_source_rgba(context, colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0, share);
}

} // namespace

void GraphPainter::Paint(cairo_t* context, const GraphPicture& picture) {
    cairo_save(context);
    cairo_rectangle(context, 0, 0, picture.frame.area.width, picture.frame.area.height);
    cairo_clip(context);
    SetGround(context, picture.background, 1);
    cairo_paint(context);

    cairo_save(context);
    cairo_translate(context, GraphFrame::Margin, GraphFrame::Margin);
    cairo_scale(context, picture.frame.zoom, picture.frame.zoom);
    cairo_translate(context, -picture.frame.viewPoint.x, -picture.frame.viewPoint.y);
    GraphArcPainter(picture.drawing, picture.style, picture.frame.InSight()).Paint(context);
    PaintNodes(context, picture);
    PaintFocus(context, picture);
    cairo_restore(context);

    if (!picture.isSensitive) {
        SetGround(context, picture.background, GreyedShare);
        cairo_paint(context);
    }
    cairo_restore(context);
}

bool GraphPainter::ShowsTexts(const GraphFrame& frame) const {
    return _text.LineHeight() * frame.zoom >= SmallestText;
}

void GraphPainter::PaintNodes(cairo_t* context, const GraphPicture& picture) {
    const LayoutRectangle inSight = picture.frame.InSight();
    const auto detail = ShowsTexts(picture.frame) ? GraphNodePainter::Full : GraphNodePainter::WithoutText;
    for (const DrawnNode& drawn : picture.drawing.Nodes())
        if (Meet(drawn.place, inSight))
            _nodes.Paint(context, *drawn.node, drawn.place, detail);
}

void GraphPainter::PaintFocus(cairo_t* context, const GraphPicture& picture) {
    const int position = picture.drawing.Position(picture.focus);
    if (position < 0)
        return;
    const LayoutRectangle& place = picture.drawing.Nodes()[static_cast<std::size_t>(position)].place;
    CairoShapes::RoundRectangle(context, place.x - 2, place.y - 2, place.width + 4, place.height + 4, 5);
    cairo_set_line_width(context, 4);
    CairoShapes::SetColour(context, Theme::Field);
    cairo_stroke_preserve(context);
    cairo_set_line_width(context, 2);
    CairoShapes::SetColour(context, Theme::Accent);
    cairo_stroke(context);
}

GraphHit GraphPainter::HitAt(const GraphPicture& picture, LayoutPoint pixel) const {
    const LayoutPoint point = picture.frame.ToDrawing(pixel);
    ZOLGraphNode* node = picture.drawing.NodeAt(point);
    if (!node)
        return {};
    const auto position = static_cast<std::size_t>(picture.drawing.Position(node));
    const LayoutRectangle& place = picture.drawing.Nodes()[position].place;
    return {node, Holds(_nodes.IconPlace(*node, place), point)};
}

} // namespace trellis
