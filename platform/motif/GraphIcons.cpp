#include "motif/GraphIcons.h"

#include "motif/CairoShapes.h"

namespace trellis {

namespace {

// A folder with a plus: there is more to open.
void DrawClosed(cairo_t* context) {
    cairo_move_to(context, 1.5, 3.5);
    cairo_line_to(context, 6, 3.5);
    cairo_line_to(context, 7.5, 5.5);
    cairo_line_to(context, 14.5, 5.5);
    cairo_line_to(context, 14.5, 13.5);
    cairo_line_to(context, 1.5, 13.5);
    cairo_close_path(context);
    CairoShapes::SetColour(context, ThemeColour{0xf6c95c});
    cairo_fill_preserve(context);
    CairoShapes::SetColour(context, ThemeColour{0x8a6414});
    cairo_stroke(context);
    CairoShapes::SetColour(context, Theme::Text);
    cairo_move_to(context, 5, 9.5);
    cairo_line_to(context, 11, 9.5);
    cairo_move_to(context, 8, 6.5);
    cairo_line_to(context, 8, 12.5);
    cairo_stroke(context);
}

// An open folder: its content is shown.
void DrawOpen(cairo_t* context) {
    cairo_move_to(context, 1.5, 13.5);
    cairo_line_to(context, 1.5, 3.5);
    cairo_line_to(context, 6, 3.5);
    cairo_line_to(context, 7.5, 5.5);
    cairo_line_to(context, 12.5, 5.5);
    cairo_line_to(context, 12.5, 7.5);
    CairoShapes::SetColour(context, ThemeColour{0xd9a93a});
    cairo_fill_preserve(context);
    CairoShapes::SetColour(context, ThemeColour{0x8a6414});
    cairo_stroke(context);
    cairo_move_to(context, 1.5, 13.5);
    cairo_line_to(context, 4.5, 7.5);
    cairo_line_to(context, 15.5, 7.5);
    cairo_line_to(context, 12.5, 13.5);
    cairo_close_path(context);
    CairoShapes::SetColour(context, ThemeColour{0xfbe3a3});
    cairo_fill_preserve(context);
    CairoShapes::SetColour(context, ThemeColour{0x8a6414});
    cairo_stroke(context);
}

struct Icon {
    std::string_view name;
    void (*draw)(cairo_t*);
};

constexpr Icon Icons[] = {
    {"dirclose.rgb", DrawClosed},
    {"diropen.rgb", DrawOpen},
};

} // namespace

void GraphIcons::Draw(cairo_t* context, std::string_view name, double x, double y) {
    for (const Icon& icon : Icons) {
        if (icon.name != name)
            continue;
        cairo_save(context);
        cairo_translate(context, x, y);
        cairo_set_line_width(context, 1);
        cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
        icon.draw(context);
        cairo_restore(context);
        return;
    }
}

} // namespace trellis
