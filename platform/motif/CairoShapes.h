#pragma once

#include "motif/Theme.h"
#include "toolkit/LayoutTypes.h"

#include <cairo.h>

namespace trellis {

// CairoShapes: the few shapes of which lists and graphs are made.
class CairoShapes {
public:
    static void SetColour(cairo_t* context, ThemeColour colour);
    // Fills a rectangle.
    static void Fill(cairo_t* context, const LayoutRectangle& place, ThemeColour colour);
    // Adds a rectangle with round corners to the path.
    static void RoundRectangle(cairo_t* context, double x, double y, double width, double height,
                               double radius);
    // Lines of one pixel that meet the grid: from (x, y), so long.
    static void HorizontalLine(cairo_t* context, int x, int y, int length, ThemeColour colour);
    static void VerticalLine(cairo_t* context, int x, int y, int length, ThemeColour colour);
    // A tick of that size around a point.
    static void CheckMark(cairo_t* context, double x, double y, double size, ThemeColour colour);
    // A filled triangle around a point, its tip up or down.
    static void Arrow(cairo_t* context, double x, double y, double size, bool isUp, ThemeColour colour);
    // Two strokes that meet below, so wide around a point: what opens downwards.
    static void Chevron(cairo_t* context, double x, double y, double width, ThemeColour colour);
    // What the keyboard acts on: a blue ring inside of the place, on a white one, so that it shows on any
    // ground.
    static void FocusRing(cairo_t* context, const LayoutRectangle& place);
};

} // namespace trellis
