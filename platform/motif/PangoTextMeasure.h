#pragma once

#include "motif/TextPainter.h"
#include "toolkit/TextMeasure.h"

namespace trellis {

// PangoTextMeasure: sizes of texts as TextPainter draws them, for the layout of dialogs and graphs.
class PangoTextMeasure : public TextMeasure {
public:
    explicit PangoTextMeasure(const Theme& theme) : _theme(theme), _text(theme) {}

    int GetTextWidth(const ZOLUnicodeString& line) const override;
    int GetCharacterWidth() const override { return _text.CharacterWidth(); }
    // The painter with which it measures, for whoever draws such texts.
    TextPainter& GetPainter() const { return _text; }
    int GetLineHeight() const override { return _text.LineHeight(); }
    int GetPixels(int plain) const override { return _theme.Pixels(plain); }
    int GetRowHeight() const override { return GetLineHeight() + 2 * _theme.Pixels(Theme::RowPadding); }

private:
    const Theme _theme;
    mutable TextPainter _text; // remembers what it has shaped
};

} // namespace trellis
