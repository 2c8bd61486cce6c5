#include "graph/CategoryFile.h"

#include "widgets/KeptFile.h"

#include <optional>

namespace trellis {

namespace {

constexpr char Hidden = '0';
constexpr char Shown = '1';

void AppendLines(std::string& content, char mark, const ZOLListValZOLUnicodeString& names) {
    for (const ZOLUnicodeString& name : names)
        if (name.SearchSubString("\n") < 0)
            content += std::string{mark, ' '} + name.Bytes() + '\n';
}

// One line as it is read character by character.
struct Line {
    std::optional<char> mark;
    std::string name;

    void Take(char character) {
        if (!mark && (character == Hidden || character == Shown))
            mark = character;
        else if (character != ' ' || !name.empty())
            name += character;
    }
};

} // namespace

std::string CategoryFile::PathOf(const ZOLDMInstance& product) {
    return KeptFile::PathOf(product, ".Categories");
}

void CategoryFile::Write(const std::string& path, const ZOLListValZOLUnicodeString& shown,
                         const ZOLListValZOLUnicodeString& hidden) {
    if (path.empty())
        return;
    std::string content;
    AppendLines(content, Hidden, hidden);
    AppendLines(content, Shown, shown);
    KeptFile::Replace(path, content);
}

ZOLListValZOLUnicodeString CategoryFile::ReadHidden(const std::string& path) {
    ZOLListValZOLUnicodeString names;
    Line line;
    for (const char character : KeptFile::Content(path)) {
        if (character != '\n') {
            line.Take(character);
            continue;
        }
        if (!line.name.empty() && line.mark == Hidden)
            names.Append(line.name);
        line = {};
    }
    return names;
}

} // namespace trellis
