#include "motif/MotifFonts.h"

#include "motif/MotifQuirks.h"

#include <algorithm>

namespace trellis {

namespace {

FcFontSet* SortedFonts(const Theme& theme) {
    FcPattern* wanted = FcPatternCreate();
    FcPatternAddString(wanted, FC_FAMILY, reinterpret_cast<const FcChar8*>(theme.FontFamily().c_str()));
    FcConfigSubstitute(nullptr, wanted, FcMatchPattern);
    FcDefaultSubstitute(wanted);
    FcResult result = FcResultMatch;
    FcFontSet* sorted = FcFontSort(nullptr, wanted, FcTrue, nullptr, &result);
    FcPatternDestroy(wanted);
    return sorted ? sorted : FcFontSetCreate();
}

} // namespace

MotifFonts::MotifFonts(const Theme& theme) : _theme(theme), _sorted(SortedFonts(theme)) {}

MotifFonts::~MotifFonts() = default;

MotifFonts::Letters MotifFonts::LettersOf(std::string_view text) {
    Letters letters;
    const auto* at = reinterpret_cast<const FcChar8*>(text.data());
    int left = static_cast<int>(text.size());
    while (left > 0) {
        FcChar32 letter = 0;
        const int length = FcUtf8ToUcs4(at, &letter, left);
        if (length <= 0)
            break;
        letters.push_back(letter);
        at += length;
        left -= length;
    }
    return letters;
}

// What controls the line is no letter that a font would have to have.
bool MotifFonts::Has(int font, FcChar32 letter) const {
    if (letter < 0x20)
        return true;
    FcCharSet* letters = nullptr;
    return font < _sorted->nfont &&
           FcPatternGetCharSet(_sorted->fonts[font], FC_CHARSET, 0, &letters) == FcResultMatch &&
           FcCharSetHasChar(letters, letter);
}

int MotifFonts::FontFor(std::string_view text) {
    Letters letters = LettersOf(text);
    std::sort(letters.begin(), letters.end());
    letters.erase(std::unique(letters.begin(), letters.end()), letters.end());
    int best = MainFont;
    long most = -1;
    for (int font = MainFont; font < std::max(_sorted->nfont, 1); ++font) {
        const auto count =
            std::count_if(letters.begin(), letters.end(), [&](FcChar32 letter) { return Has(font, letter); });
        if (count > most) {
            best = font;
            most = count;
        }
        if (most == static_cast<long>(letters.size()))
            break;
    }
    if (std::find(_named.begin(), _named.end(), best) == _named.end())
        _named.push_back(best);
    return best;
}

bool MotifFonts::CanWrite(std::string_view text) const {
    constexpr FcChar32 firstJoined = 0x0590; // Hebrew, and what comes behind it up to the phonetic signs
    constexpr FcChar32 lastJoined = 0x1cff;
    const Letters letters = LettersOf(text);
    return std::all_of(letters.begin(), letters.end(), [&](FcChar32 letter) {
        return Has(MainFont, letter) && (letter < firstJoined || letter > lastJoined);
    });
}

std::string MotifFonts::TagOf(int font) {
    return "font" + std::to_string(font);
}

// A rendition that is freed closes its font, which others may share: none is ever freed, and each made once.
XmRenderTable MotifFonts::TableOf(Widget widget, int font, bool isAlone) {
    XmRenderTable& table = _tables[{font, isAlone}];
    if (table)
        return table;
    FcChar8* family = nullptr;
    if (font == MainFont || FcPatternGetString(_sorted->fonts[font], FC_FAMILY, 0, &family) != FcResultMatch)
        family = reinterpret_cast<FcChar8*>(const_cast<char*>(_theme.FontFamily().c_str()));
    Arg arguments[] = {{MotifQuirks::Name(XmNfontName), reinterpret_cast<XtArgVal>(family)},
                       {MotifQuirks::Name(XmNfontType), XmFONT_IS_XFT},
                       {MotifQuirks::Name(XmNfontSize), static_cast<XtArgVal>(_theme.FontPoints())}};
    // An editor takes the rendition of the default tag alone.
    const std::string tag = isAlone ? XmFONTLIST_DEFAULT_TAG : TagOf(font);
    XmRendition rendition =
        XmRenditionCreate(widget, MotifQuirks::Name(tag.c_str()), arguments, XtNumber(arguments));
    table = XmRenderTableAddRenditions(nullptr, &rendition, 1, XmMERGE_NEW);
    return table;
}

void MotifFonts::Dress(Widget editor, int font) {
    XtVaSetValues(editor, XmNrenderTable, TableOf(editor, font, true), nullptr);
}

void MotifFonts::TeachAll(Widget list) {
    XmRenderTable all = nullptr;
    for (const int font : _named) {
        XmRendition rendition =
            XmRenderTableGetRendition(TableOf(list, font, false), MotifQuirks::Name(TagOf(font).c_str()));
        all = XmRenderTableAddRenditions(all, &rendition, 1, XmMERGE_NEW);
        XmRenditionFree(rendition);
    }
    XtVaSetValues(list, XmNrenderTable, all, nullptr);
    XmRenderTableFree(all);
}

// Parts are cut at blanks, so that a word is of one font.
XmString MotifFonts::Compose(std::string_view text) {
    XmString whole = nullptr;
    for (std::size_t begin = 0; begin < text.size() || !whole;) {
        const std::size_t blank = text.find(' ', begin);
        const std::size_t end = blank == std::string_view::npos ? text.size() : blank + 1;
        const std::string part(text.substr(begin, end - begin));
        const std::string tag = TagOf(FontFor(part));
        whole =
            XmStringConcatAndFree(whole, XmStringGenerate(MotifQuirks::Name(part.c_str()), nullptr,
                                                          XmCHARSET_TEXT, MotifQuirks::Name(tag.c_str())));
        begin = std::max(end, begin + 1);
    }
    return whole;
}

} // namespace trellis
