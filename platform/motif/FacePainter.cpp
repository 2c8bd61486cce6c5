#include "motif/FacePainter.h"

#include "motif/CairoShapes.h"

#include <algorithm>
#include <numbers>

namespace trellis {

namespace {

constexpr int Radius = 4;   // of the corners of buttons, in plain pixels
constexpr int MarkGap = 8;  // between a mark and its text
constexpr int SidePart = 8; // left and right of the title of a button, at least

struct ButtonColours {
    ThemeColour ground;
    ThemeColour border;
    ThemeColour text;
};

ButtonColours ColoursOf(const Face& face, bool isPressed) {
    if (!face.isSensitive)
        return {Theme::Background, Theme::TopShadow, Theme::GreyedText};
    if (face.isDefault)
        return {isPressed ? Theme::Accent.Mixed(Theme::Text, 0.4) : Theme::Accent, Theme::Accent,
                Theme::Field};
    return {isPressed ? Theme::Selection : Theme::Field, Theme::BottomShadow, Theme::Text};
}

// The outline of a mark: a disc for radio buttons, else a box with round corners.
void MarkPath(cairo_t* context, Face::Kind kind, double x, double y, double size) {
    if (kind == Face::Radio) {
        cairo_new_sub_path(context);
        cairo_arc(context, x + size / 2, y + size / 2, size / 2, 0, 2 * std::numbers::pi);
    } else {
        CairoShapes::RoundRectangle(context, x, y, size, size, size / 5);
    }
}

} // namespace

void FacePainter::Paint(cairo_t* context, const Face& face, bool isPressed) {
    CairoShapes::Fill(context, {0, 0, face.size.width, face.size.height}, Theme::Background);
    if (face.kind == Face::Button) {
        PaintButton(context, face, isPressed);
        return;
    }
    int x = 0;
    if (face.kind != Face::Caption) {
        PaintMark(context, face);
        x = _theme.Pixels(Theme::Indicator) + _theme.Pixels(MarkGap);
    }
    PaintText(context, face, x, face.isSensitive ? Theme::Text : Theme::GreyedText, TextPainter::Leading);
}

void FacePainter::PaintButton(cairo_t* context, const Face& face, bool isPressed) {
    const ButtonColours colours = ColoursOf(face, isPressed);
    // A pixel of ground all around keeps the ring of the focus apart from a body of its colour.
    CairoShapes::RoundRectangle(context, 1.5, 1.5, face.size.width - 3, face.size.height - 3,
                                _theme.Pixels(Radius));
    CairoShapes::SetColour(context, colours.ground);
    cairo_fill_preserve(context);
    CairoShapes::SetColour(context, colours.border);
    cairo_set_line_width(context, 1);
    cairo_stroke(context);
    const int side = std::min(_theme.Pixels(SidePart), face.size.width / 6);
    PaintText(context, face, side, colours.text, TextPainter::Centred);
}

void FacePainter::PaintMark(cairo_t* context, const Face& face) {
    const int size = std::min(_theme.Pixels(Theme::Indicator), face.size.height);
    const int y = (face.size.height - size) / 2;
    const ThemeColour full = face.isSensitive ? Theme::Accent : Theme::BottomShadow;
    const bool isFilled = face.isOn && face.kind == Face::Check;
    MarkPath(context, face.kind, 0.75, y + 0.75, size - 1.5);
    CairoShapes::SetColour(context, isFilled ? full : face.isSensitive ? Theme::Field : Theme::Background);
    cairo_fill_preserve(context);
    cairo_set_line_width(context, 1.5);
    CairoShapes::SetColour(context, face.isOn || !face.isSensitive ? full : Theme::GreyedText);
    cairo_stroke(context);
    if (!face.isOn)
        return;
    if (face.kind == Face::Check) {
        CairoShapes::CheckMark(context, size / 2.0, y + size / 2.0, size * 0.75, Theme::Field);
        return;
    }
    MarkPath(context, face.kind, size * 0.28, y + size * 0.28, size * 0.44);
    CairoShapes::SetColour(context, full);
    cairo_fill(context);
}

void FacePainter::PaintText(cairo_t* context, const Face& face, int x, ThemeColour colour,
                            TextPainter::Alignment alignment) {
    CairoShapes::SetColour(context, colour);
    const int room = face.size.width - x - (alignment == TextPainter::Centred ? x : 0);
    _text.DrawWithin(context, face.text, x, (face.size.height - _text.LineHeight()) / 2.0, room,
                     TextPainter::Plain, alignment);
    if (const std::size_t letter = face.text.find(face.mnemonic);
        face.mnemonic && letter != std::string::npos)
        _text.Underline(context, face.text, letter, x, (face.size.height - _text.LineHeight()) / 2.0, room,
                        TextPainter::Plain, alignment);
}

} // namespace trellis
