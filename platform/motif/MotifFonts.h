#pragma once

#include "motif/MotifNative.h"
#include "motif/Theme.h"

#include <fontconfig/fontconfig.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace trellis {

// MotifFonts: fonts for the texts that native widgets write themselves, in editors and the lists of combos. These
// take no other font for a letter that theirs lacks; so each text, or each part of one, gets a font that has it.
class MotifFonts {
public:
    explicit MotifFonts(const Theme& theme);
    ~MotifFonts();
    MotifFonts(const MotifFonts&) = delete;
    MotifFonts& operator=(const MotifFonts&) = delete;

    static constexpr int MainFont = 0;
    // The font that has most letters of the text: that of the theme when it has all.
    int FontFor(std::string_view text);
    // Whether native widgets can write the text rightly with the font of the theme: it has all letters, and none of
    // them is to be joined or read from right to left.
    bool CanWrite(std::string_view text) const;
    // Lets a native editor write with a font.
    void Dress(Widget editor, int font);
    // The text with the fonts of its parts named; the caller frees it. Valid in widgets that know all fonts.
    XmString Compose(std::string_view text);
    // Makes all fonts that were named so far known to a native list.
    void TeachAll(Widget list);

private:
    struct PatternSet {
        void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
    };
    using Letters = std::vector<FcChar32>;

    static Letters LettersOf(std::string_view text);
    // With one font, for a widget that takes it alone or for a list that takes many.
    XmRenderTable TableOf(Widget widget, int font, bool isAlone);
    static std::string TagOf(int font);
    bool Has(int font, FcChar32 letter) const;

    const Theme& _theme;
    std::unique_ptr<FcFontSet, PatternSet> _sorted; // best first; the first is that of the theme
    std::vector<int> _named{MainFont};
    std::map<std::pair<int, bool>, XmRenderTable> _tables;
};

} // namespace trellis
