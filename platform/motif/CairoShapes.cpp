#include "motif/CairoShapes.h"

#include <numbers>

namespace trellis {

void CairoShapes::SetColour(cairo_t* context, ThemeColour colour) {
    cairo_set_source_rgb(context, colour.Red(), colour.Green(), colour.Blue());
}

void CairoShapes::Fill(cairo_t* context, const LayoutRectangle& place, ThemeColour colour) {
    SetColour(context, colour);
    cairo_rectangle(context, place.x, place.y, place.width, place.height);
    cairo_fill(context);
}

void CairoShapes::RoundRectangle(cairo_t* context, double x, double y, double width, double height,
                                 double radius) {
    constexpr double quarter = std::numbers::pi / 2;
    cairo_new_sub_path(context);
    cairo_arc(context, x + width - radius, y + radius, radius, -quarter, 0);
    cairo_arc(context, x + width - radius, y + height - radius, radius, 0, quarter);
    cairo_arc(context, x + radius, y + height - radius, radius, quarter, 2 * quarter);
    cairo_arc(context, x + radius, y + radius, radius, 2 * quarter, 3 * quarter);
    cairo_close_path(context);
}

void CairoShapes::HorizontalLine(cairo_t* context, int x, int y, int length, ThemeColour colour) {
    Fill(context, {x, y, length, 1}, colour);
}

void CairoShapes::VerticalLine(cairo_t* context, int x, int y, int length, ThemeColour colour) {
    Fill(context, {x, y, 1, length}, colour);
}

void CairoShapes::CheckMark(cairo_t* context, double x, double y, double size, ThemeColour colour) {
    SetColour(context, colour);
    cairo_set_line_width(context, size / 6);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    cairo_move_to(context, x - size * 0.42, y + size * 0.04);
    cairo_line_to(context, x - size * 0.12, y + size * 0.34);
    cairo_line_to(context, x + size * 0.42, y - size * 0.34);
    cairo_stroke(context);
}

void CairoShapes::Arrow(cairo_t* context, double x, double y, double size, bool isUp, ThemeColour colour) {
    const double tip = isUp ? -size * 0.3 : size * 0.3;
    SetColour(context, colour);
    cairo_move_to(context, x, y + tip);
    cairo_line_to(context, x - size / 2, y - tip);
    cairo_line_to(context, x + size / 2, y - tip);
    cairo_close_path(context);
    cairo_fill(context);
}

void CairoShapes::Chevron(cairo_t* context, double x, double y, double width, ThemeColour colour) {
    SetColour(context, colour);
    cairo_set_line_width(context, width / 6);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    cairo_move_to(context, x - width / 2, y - width / 4);
    cairo_line_to(context, x, y + width / 4);
    cairo_line_to(context, x + width / 2, y - width / 4);
    cairo_stroke(context);
}

void CairoShapes::FocusRing(cairo_t* context, const LayoutRectangle& place) {
    cairo_set_line_width(context, 1);
    SetColour(context, Theme::Field);
    RoundRectangle(context, place.x + 1.5, place.y + 1.5, place.width - 3, place.height - 3, 2);
    cairo_stroke(context);
    SetColour(context, Theme::Accent);
    RoundRectangle(context, place.x + 0.5, place.y + 0.5, place.width - 1, place.height - 1, 3);
    cairo_stroke(context);
}

} // namespace trellis
