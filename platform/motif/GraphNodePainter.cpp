#include "motif/GraphNodePainter.h"

#include "motif/CairoShapes.h"
#include "motif/GraphMarkPainter.h"
#include "toolkit/GraphDrawing.h"
#include "toolkit/ZOLGraphNode.h"

#include <string_view>

namespace trellis {

namespace {

constexpr double Radius = 4;
constexpr ThemeColour White{0xffffff};

ThemeColour Saturated(const GraphColour& colour) {
    return {static_cast<std::uint32_t>(colour.red << 16 | colour.green << 8 | colour.blue)};
}

bool HasSign(const GraphColour& colour) {
    return *colour.sign != '\0';
}

bool IsMarked(const ZOLGraphNode& node) {
    return node.getMark() != NodeMark::None;
}

// The pressed form of a node without mark.
bool IsPressed(const ZOLGraphNode& node) {
    return node.isShadowIn() && !IsMarked(node);
}

// Indexes of the palette.
constexpr int Plain = 1;
constexpr int Found = 112; // by a search, which no mark tells

// The colour whose sign says what a mark says; that of one without says nothing.
int SignColourOf(NodeMark mark) {
    switch (mark) {
    case NodeMark::Decided:
        return 46;
    case NodeMark::Missing:
        return 7;
    case NodeMark::Ignored:
        return 66;
    default:
        return Plain;
    }
}

// The index of the strip at the right end. What is wrong comes first; a mark that has a box needs no sign.
int StripOf(const ZOLGraphNode& node) {
    if (node.getAlert() != NodeAlert::None)
        return node.getAlert() == NodeAlert::Conflict ? 4 : 2;
    if (!IsMarked(node) || node.getColor() == Found)
        return node.getColor();
    return node.HasPixmap() ? SignColourOf(node.getMark()) : Plain;
}

// Behind a text a colour that means a state is lighter, so that the text reads well on each of them.
ThemeColour Body(const ZOLGraphNode& node) {
    const GraphColour& colour = GraphPalette::At(node.getColor());
    const ThemeColour body = HasSign(colour) ? Saturated(colour).Mixed(White, 0.6) : Saturated(colour);
    if (IsMarked(node))
        return node.getHighlight() ? body.Mixed(Theme::Selection, 0.8) : body;
    return node.isShadowIn() ? body.Mixed(ThemeColour{0}, 0.1) : body;
}

int BorderOf(const ZOLGraphNode& node) {
    return node.getDecorationVisibility() ? GraphDrawing::Frame : GraphDrawing::Bare;
}

// Where icon and text begin: what no sign needs of the room for it is halved, so that they stand clear of the edge.
int LeftOf(const ZOLGraphNode& node) {
    return BorderOf(node) + (node.getDecorationVisibility() ? GraphDrawing::SignGap / 2 : 0);
}

void PathOf(cairo_t* context, const LayoutRectangle& place) {
    CairoShapes::RoundRectangle(context, place.x + 0.5, place.y + 0.5, place.width - 1, place.height - 1,
                                Radius);
}

// Light falls from the top left: what is pressed in has its shadow there, inside of its frame.
void PaintInnerShadow(cairo_t* context, const LayoutRectangle& place, int frame) {
    cairo_save(context);
    PathOf(context, place);
    cairo_clip(context);
    cairo_set_source_rgba(context, 0, 0, 0, 0.4);
    cairo_rectangle(context, place.x + frame, place.y + frame, place.width - 2 * frame, 2);
    cairo_rectangle(context, place.x + frame, place.y + frame + 2, 2, place.height - 2 * frame - 2);
    cairo_fill(context);
    cairo_restore(context);
}

void PaintDropShadow(cairo_t* context, const LayoutRectangle& place) {
    cairo_set_source_rgba(context, 0, 0, 0, 0.16);
    CairoShapes::RoundRectangle(context, place.x + 0.5, place.y + 1.5, place.width - 0.5, place.height - 1,
                                Radius);
    cairo_fill(context);
}

} // namespace

void GraphNodePainter::Paint(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place,
                             Detail detail) {
    if (node.getDecorationVisibility())
        PaintBody(context, node, place, detail);
    if (const GraphColour& strip = GraphPalette::At(StripOf(node)); HasSign(strip))
        PaintSign(context, node, place, strip, detail);
    if (detail == WithoutText)
        return;
    PaintLead(context, node, place);
    PaintText(context, node, place);
}

void GraphNodePainter::PaintLead(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place) {
    const LayoutRectangle lead = LeadPlace(node, place);
    const int inset = lead.width / 10;
    if (node.HasPixmap())
        _icons.Draw(context, PixmapBaseName(node.getPixmap()), lead.x, lead.y, lead.width);
    else
        GraphMarkPainter::Draw(context, node.getMark(), lead.x + inset, lead.y + inset,
                               lead.width - 2 * inset);
}

void GraphNodePainter::PaintBody(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place,
                                 Detail detail) {
    const ThemeColour body = Body(node);
    if (detail == WithoutText) {
        CairoShapes::Fill(context, place, body.Mixed(Theme::Text, node.getHighlight() ? 0.5 : 0.1));
        return;
    }
    const bool isIgnored = node.getMark() == NodeMark::Ignored;
    if (!node.isShadowIn() && !isIgnored)
        PaintDropShadow(context, place);
    PathOf(context, place);
    CairoShapes::SetColour(context, body);
    cairo_fill(context);
    const bool isHighlighted = node.getHighlight() != 0;
    if (IsPressed(node))
        PaintInnerShadow(context, place, isHighlighted ? 2 : 1);
    const double inset = isHighlighted ? 1 : 0.5;
    CairoShapes::RoundRectangle(context, place.x + inset, place.y + inset, place.width - 2 * inset,
                                place.height - 2 * inset, Radius - inset + 0.5);
    CairoShapes::SetColour(
        context,
        isHighlighted ? Theme::Text : Saturated(GraphPalette::At(node.getColor())).Mixed(Theme::Text, 0.35));
    cairo_set_line_width(context, 2 * inset);
    constexpr double dashes[] = {4, 3};
    cairo_set_dash(context, dashes, isIgnored ? 2 : 0, 0);
    cairo_stroke(context);
    cairo_set_dash(context, nullptr, 0, 0);
    if (!node.getCurrent())
        return;
    cairo_save(context);
    PathOf(context, place);
    cairo_clip(context);
    CairoShapes::Fill(context, {place.x, place.y, 4, place.height}, Theme::Text);
    cairo_restore(context);
}

void GraphNodePainter::PaintSign(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place,
                                 const GraphColour& colour, Detail detail) {
    const ThemeColour full = Saturated(colour);
    const int width = _text.CharacterWidth() + BorderOf(node) + 1;
    const int inset = !node.getDecorationVisibility() ? 0 : node.getHighlight() ? 2 : 1;
    cairo_save(context);
    PathOf(context, place);
    cairo_clip(context);
    CairoShapes::Fill(
        context, {place.x + place.width - width, place.y + inset, width - inset, place.height - 2 * inset},
        full);
    cairo_restore(context);
    if (detail == WithoutText)
        return;
    CairoShapes::SetColour(context, full.Luminance() > 0.3 ? Theme::Text : White);
    const int y = place.y + (place.height - _text.LineHeight()) / 2;
    const double x =
        place.x + place.width - width + (width - inset - _text.Width(colour.sign, TextPainter::Bold)) / 2.0;
    _text.Draw(context, colour.sign, x, y, TextPainter::Bold);
}

void GraphNodePainter::PaintText(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place) {
    const std::string_view text = node.getText().Bytes();
    const int border = BorderOf(node);
    const bool hasLead = node.HasPixmap() || IsMarked(node);
    const int x = place.x + LeftOf(node) + (hasLead ? _text.LineHeight() + GraphDrawing::IconGap : 0);
    int y = place.y + border;
    const bool isOut = node.getMark() == NodeMark::RejectedByRule;
    CairoShapes::SetColour(context,
                           isOut || node.getMark() == NodeMark::Ignored ? Theme::HeaderText : Theme::Text);
    for (std::size_t begin = 0, end = 0; end != std::string_view::npos; begin = end + 1) {
        end = text.find('\n', begin);
        const std::string_view line = text.substr(begin, end - begin);
        _text.Draw(context, line, x, y);
        if (isOut) {
            cairo_rectangle(context, x, y + _text.LineHeight() / 2, _text.Width(line), 1);
            cairo_fill(context);
        }
        y += _text.LineHeight();
    }
}

LayoutRectangle GraphNodePainter::LeadPlace(const ZOLGraphNode& node, const LayoutRectangle& place) const {
    return {place.x + LeftOf(node), place.y + BorderOf(node), _text.LineHeight(), _text.LineHeight()};
}

LayoutRectangle GraphNodePainter::IconPlace(const ZOLGraphNode& node, const LayoutRectangle& place) const {
    return node.HasPixmap() ? LeadPlace(node, place) : LayoutRectangle{};
}

} // namespace trellis
