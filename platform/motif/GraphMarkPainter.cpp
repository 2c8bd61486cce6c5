#include "motif/GraphMarkPainter.h"

#include "motif/CairoShapes.h"

#include <algorithm>
#include <iterator>

namespace trellis {

namespace {

enum class Sign { None, Tick, Cross };
enum class Box { Filled, Outlined, Dashed };

struct Form {
    NodeMark mark;
    Sign sign;
    Box box;
    ThemeColour colour; // of the box
};

constexpr ThemeColour Rejected{0x9a3412};

constexpr Form Forms[] = {
    {NodeMark::Undecided, Sign::None, Box::Outlined, Theme::BottomShadow},
    {NodeMark::ChosenByUser, Sign::Tick, Box::Filled, Theme::Accent},
    {NodeMark::ChosenByRule, Sign::Tick, Box::Outlined, Theme::HeaderText},
    {NodeMark::RejectedByUser, Sign::Cross, Box::Filled, Rejected},
    {NodeMark::RejectedByRule, Sign::Cross, Box::Outlined, Theme::HeaderText},
    {NodeMark::Ignored, Sign::None, Box::Dashed, Theme::GreyedText},
};

void DrawBox(cairo_t* context, const Form& form, double x, double y, double side) {
    CairoShapes::RoundRectangle(context, x + 0.5, y + 0.5, side - 1, side - 1, side / 5);
    if (form.box == Box::Filled) {
        CairoShapes::SetColour(context, form.colour);
        cairo_fill_preserve(context);
    } else if (form.box == Box::Outlined) {
        CairoShapes::SetColour(context, Theme::Field);
        cairo_fill_preserve(context);
    }
    const double dashes[] = {2, 2};
    CairoShapes::SetColour(context, form.colour);
    cairo_set_line_width(context, 1);
    cairo_set_dash(context, dashes, form.box == Box::Dashed ? 2 : 0, 0);
    cairo_stroke(context);
}

void DrawCross(cairo_t* context, double x, double y, double size, ThemeColour colour) {
    const double reach = size * 0.3;
    CairoShapes::SetColour(context, colour);
    cairo_set_line_width(context, size / 6);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_move_to(context, x - reach, y - reach);
    cairo_line_to(context, x + reach, y + reach);
    cairo_move_to(context, x + reach, y - reach);
    cairo_line_to(context, x - reach, y + reach);
    cairo_stroke(context);
}

} // namespace

void GraphMarkPainter::Draw(cairo_t* context, NodeMark mark, double x, double y, double side) {
    const auto* form =
        std::find_if(std::begin(Forms), std::end(Forms), [mark](const Form& f) { return f.mark == mark; });
    if (form == std::end(Forms))
        return;
    cairo_save(context);
    DrawBox(context, *form, x, y, side);
    cairo_set_dash(context, nullptr, 0, 0);
    const ThemeColour ink = form->box == Box::Filled ? Theme::Field : form->colour;
    if (form->sign == Sign::Tick)
        CairoShapes::CheckMark(context, x + side / 2, y + side / 2, side * 0.66, ink);
    else if (form->sign == Sign::Cross)
        DrawCross(context, x + side / 2, y + side / 2, side * 0.8, ink);
    cairo_restore(context);
}

} // namespace trellis
