#include "motif/TextPainter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace trellis {

namespace {

constexpr std::size_t KeptLayouts = 8192;
constexpr std::size_t KeptWidths = 65536;
constexpr int LongestText = 1024; // code points that can ever be seen beside each other

// The text as it can be shaped: valid, in one line, not endless.
std::string Drawable(std::string_view text) {
    gchar* valid =
        g_utf8_make_valid(text.data(), static_cast<gssize>(std::min<std::size_t>(text.size(), 8192)));
    std::string result;
    int length = 0;
    for (const gchar* at = valid; *at && length < LongestText; at = g_utf8_next_char(at), ++length) {
        const gunichar character = g_utf8_get_char(at);
        if (character == '\n' || character == '\t' || character == '\r')
            result += ' ';
        else if (character < 0x20 || character == 0x7f || character == 0x2028 || character == 0x2029)
            result += "\xef\xbf\xbd";
        else
            result.append(at, static_cast<std::size_t>(g_utf8_next_char(at) - at));
    }
    g_free(valid);
    return result;
}

PangoFontDescription* MakeFont(const Theme& theme, PangoWeight weight) {
    PangoFontDescription* font = pango_font_description_new();
    pango_font_description_set_family(font, theme.FontFamily().c_str());
    pango_font_description_set_absolute_size(font, theme.FontPixels() * PANGO_SCALE);
    pango_font_description_set_weight(font, weight);
    return font;
}

int Ceiling(int pangoUnits) {
    return PANGO_PIXELS_CEIL(pangoUnits);
}

} // namespace

TextPainter::TextPainter(const Theme& theme)
    : _context(pango_font_map_create_context(pango_cairo_font_map_get_default())),
      _fonts{MakeFont(theme, PANGO_WEIGHT_NORMAL), MakeFont(theme, PANGO_WEIGHT_BOLD)} {
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_ON);
    pango_cairo_context_set_font_options(_context.get(), options);
    cairo_font_options_destroy(options);

    PangoFontMetrics* metrics = pango_context_get_metrics(_context.get(), _fonts[Plain], nullptr);
    _lineHeight = Ceiling(pango_font_metrics_get_ascent(metrics) + pango_font_metrics_get_descent(metrics));
    _characterWidth = std::max(1, Ceiling(pango_font_metrics_get_approximate_char_width(metrics)));
    pango_font_metrics_unref(metrics);
    _baseLine = pango_layout_get_baseline(MakeLayout("x", Plain).get());
}

TextPainter::~TextPainter() {
    _layouts.clear();
    for (PangoFontDescription* font : _fonts)
        pango_font_description_free(font);
}

TextPainter::Layout TextPainter::MakeLayout(std::string_view text, Weight weight) const {
    Layout layout(pango_layout_new(_context.get()));
    const std::string drawable = Drawable(text);
    pango_layout_set_text(layout.get(), drawable.data(), static_cast<int>(drawable.size()));
    pango_layout_set_font_description(layout.get(), _fonts[weight]);
    pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
    return layout;
}

PangoLayout* TextPainter::LayoutOf(std::string_view text, int width, Weight weight, Alignment alignment) {
    std::string key(text);
    key += '\0';
    key += static_cast<char>('0' + 2 * weight + alignment);
    key += std::to_string(width);
    if (const auto found = _layouts.find(key); found != _layouts.end())
        return found->second.get();

    if (_layouts.size() >= KeptLayouts)
        _layouts.clear();
    Layout layout = MakeLayout(text, weight);
    if (alignment == Centred)
        pango_layout_set_alignment(layout.get(), PANGO_ALIGN_CENTER);
    if (width > 0) {
        pango_layout_set_width(layout.get(), width * PANGO_SCALE);
        pango_layout_set_ellipsize(layout.get(), PANGO_ELLIPSIZE_END);
    }
    return _layouts.emplace(std::move(key), std::move(layout)).first->second.get();
}

int TextPainter::Width(std::string_view text, Weight weight) {
    auto& widths = _widths[weight];
    const auto [entry, isNew] = widths.try_emplace(std::string(text), 0);
    if (!isNew)
        return entry->second;
    int width = 0;
    pango_layout_get_size(MakeLayout(text, weight).get(), &width, nullptr);
    width = Ceiling(width);
    entry->second = width;
    if (widths.size() >= KeptWidths)
        widths.clear();
    return width;
}

// Other fonts stand in for missing characters, and are higher or lower: the base line stays where it is.
void TextPainter::Show(cairo_t* context, PangoLayout* layout, double x, double y) const {
    const int shift = _baseLine - pango_layout_get_baseline(layout);
    cairo_move_to(context, x, y + static_cast<double>(shift) / PANGO_SCALE);
    pango_cairo_show_layout(context, layout);
}

void TextPainter::Draw(cairo_t* context, std::string_view text, double x, double y, Weight weight) {
    if (!text.empty())
        Show(context, LayoutOf(text, -1, weight, Leading), x, y);
}

void TextPainter::DrawWithin(cairo_t* context, std::string_view text, double x, double y, int width,
                             Weight weight, Alignment alignment) {
    if (width > 0 && !text.empty())
        Show(context, LayoutOf(text, width, weight, alignment), x, y);
}

void TextPainter::Underline(cairo_t* context, std::string_view text, std::size_t byte, double x, double y,
                            int width, Weight weight, Alignment alignment) {
    if (width <= 0 || text.empty())
        return;
    PangoRectangle place;
    pango_layout_index_to_pos(LayoutOf(text, width, weight, alignment), static_cast<int>(byte), &place);
    const double left = x + std::floor(static_cast<double>(place.x) / PANGO_SCALE);
    const double wide = std::ceil(static_cast<double>(std::abs(place.width)) / PANGO_SCALE);
    const double line = std::floor(y + static_cast<double>(_baseLine) / PANGO_SCALE) + 2;
    cairo_rectangle(context, left, line, wide, 1);
    cairo_fill(context);
}

} // namespace trellis
