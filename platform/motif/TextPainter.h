#pragma once

#include "motif/Theme.h"

#include <pango/pangocairo.h>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace trellis {

// TextPainter: writes single lines with the font of the theme. Knows no window: texts are shaped once, kept,
// and drawn on any Cairo surface. Bytes that are no UTF-8 and control characters are drawn as replacement
// characters, over-long texts only as far as anybody could see.
class TextPainter {
public:
    enum Weight { Plain, Bold };
    enum Alignment { Leading, Centred };

    explicit TextPainter(const Theme& theme);
    ~TextPainter();
    TextPainter(const TextPainter&) = delete;
    TextPainter& operator=(const TextPainter&) = delete;

    // In pixels, rounded up.
    int Width(std::string_view text, Weight weight = Plain);
    int LineHeight() const { return _lineHeight; }
    int CharacterWidth() const { return _characterWidth; }

    // Writes with the present source of the context, the line's top left corner at (x, y).
    void Draw(cairo_t* context, std::string_view text, double x, double y, Weight weight = Plain);
    // The same within a width; what is longer ends in an ellipsis. Lines that read from right to left stand
    // at the right end. A width of 0 or less draws nothing.
    void DrawWithin(cairo_t* context, std::string_view text, double x, double y, int width,
                    Weight weight = Plain, Alignment alignment = Leading);

    // A line below the one-byte character at that byte of a text that DrawWithin has drawn there.
    void Underline(cairo_t* context, std::string_view text, std::size_t byte, double x, double y, int width,
                   Weight weight = Plain, Alignment alignment = Leading);

private:
    template <class Type>
    struct Unref {
        void operator()(Type* object) const { g_object_unref(object); }
    };
    using Layout = std::unique_ptr<PangoLayout, Unref<PangoLayout>>;

    Layout MakeLayout(std::string_view text, Weight weight) const;
    void Show(cairo_t* context, PangoLayout* layout, double x, double y) const;
    // Shaped once and kept; valid until the next call.
    PangoLayout* LayoutOf(std::string_view text, int width, Weight weight, Alignment alignment);

    std::unique_ptr<PangoContext, Unref<PangoContext>> _context;
    PangoFontDescription* _fonts[2];
    std::unordered_map<std::string, Layout> _layouts;
    std::unordered_map<std::string, int> _widths[2];
    int _lineHeight;
    int _characterWidth;
    int _baseLine = 0; // of the font itself, in units of Pango
};

} // namespace trellis
