#pragma once

#include "motif/TextPainter.h"
#include "toolkit/LayoutTypes.h"

#include <string>

namespace trellis {

// What a label or button shows at one moment.
struct Face {
    enum Kind { Nothing, Caption, Button, Check, Radio };

    Kind kind = Nothing;
    std::string text;
    LayoutSize size; // pixels
    bool isSensitive = true;
    bool isOn = false;      // of check and radio buttons
    bool isDefault = false; // the button that Return presses
    char mnemonic = 0;      // the letter of the text that is underlined; 0 for none
    friend bool operator==(const Face&, const Face&) = default;
};

// FacePainter: draws labels, push buttons, check and radio buttons, on any Cairo surface. A text that is too
// long ends in an ellipsis. What is on, default or greyed differs by form or lightness besides its colour.
class FacePainter {
public:
    FacePainter(const Theme& theme, TextPainter& text) : _theme(theme), _text(text) {}

    // Fills the whole size of the face; `isPressed` is for push buttons.
    void Paint(cairo_t* context, const Face& face, bool isPressed = false);

private:
    void PaintButton(cairo_t* context, const Face& face, bool isPressed);
    void PaintMark(cairo_t* context, const Face& face);
    void PaintText(cairo_t* context, const Face& face, int x, ThemeColour colour,
                   TextPainter::Alignment alignment);

    const Theme& _theme;
    TextPainter& _text;
};

} // namespace trellis
