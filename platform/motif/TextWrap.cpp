#include "motif/TextWrap.h"

#include "toolkit/TextMeasure.h"

#include <algorithm>

namespace trellis {

namespace {

// How many of the characters from the start fit; at least one.
int CountFitting(const ZOLUnicodeString& text, const TextMeasure& measure, int width) {
    int fits = 1;
    int tooMany = text.GetLengthInChar() + 1;
    while (tooMany - fits > 1) {
        const int middle = (fits + tooMany) / 2;
        if (measure.GetTextWidth(text.SubString(0, middle)) <= width)
            fits = middle;
        else
            tooMany = middle;
    }
    return fits;
}

void WrapParagraph(ZOLUnicodeString rest, const TextMeasure& measure, int width,
                   std::vector<ZOLUnicodeString>& lines) {
    // What is surely too long for one line need not be measured as a whole.
    const int longest = std::max(80, width);
    while (!rest.IsEmpty()) {
        const int fitting = CountFitting(rest.SubString(0, longest), measure, width);
        if (fitting >= rest.GetLengthInChar())
            break;
        const int blank = rest.SearchSubString(" ", fitting, ZOLUnicodeString::Backward);
        lines.push_back(rest.SubString(0, blank > 0 ? blank : fitting));
        rest = rest.SubString(blank > 0 ? blank + 1 : fitting);
    }
    lines.push_back(rest);
}

} // namespace

std::vector<ZOLUnicodeString> WrapText(const ZOLUnicodeString& text, const TextMeasure& measure, int width) {
    std::vector<ZOLUnicodeString> lines;
    const std::string& bytes = text.Bytes();
    std::size_t begin = 0;
    for (std::size_t end = 0; end != std::string::npos; begin = end + 1) {
        end = bytes.find('\n', begin);
        WrapParagraph(bytes.substr(begin, end == std::string::npos ? end : end - begin), measure, width,
                      lines);
    }
    return lines;
}

} // namespace trellis
