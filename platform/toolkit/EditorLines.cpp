#include "toolkit/EditorLines.h"

namespace trellis {

std::vector<ZOLUnicodeString> SplitLines(const ZOLUnicodeString& text) {
    const std::string& bytes = text.Bytes();
    std::vector<ZOLUnicodeString> lines;
    std::size_t begin = 0;
    for (std::size_t end = bytes.find('\n'); end != std::string::npos; end = bytes.find('\n', begin)) {
        lines.emplace_back(bytes.substr(begin, end - begin));
        begin = end + 1;
    }
    lines.emplace_back(bytes.substr(begin));
    return lines;
}

ZOLUnicodeString JoinLines(const std::vector<ZOLUnicodeString>& lines, const char* between) {
    ZOLUnicodeString text;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0)
            text += between;
        text += lines[i];
    }
    return text;
}

} // namespace trellis
