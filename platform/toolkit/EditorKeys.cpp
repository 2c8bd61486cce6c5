#include "toolkit/EditorKeys.h"

#include "toolkit/EditorLines.h"
#include "toolkit/ZOLDlgEditor.h"

#include <algorithm>

namespace trellis {

namespace {

// The caret as a place in the lines of the text. Positions count code points.
struct CaretPlace {
    int line = 0;
    int column = 0;
};

CaretPlace PlaceOf(const std::vector<ZOLUnicodeString>& lines, int position) {
    CaretPlace place{0, position};
    while (place.line + 1 < static_cast<int>(lines.size())) {
        const int length = lines[static_cast<std::size_t>(place.line)].GetLengthInChar();
        if (place.column <= length)
            break;
        place.column -= length + 1;
        ++place.line;
    }
    return place;
}

int PositionOf(const std::vector<ZOLUnicodeString>& lines, CaretPlace place) {
    place.line = std::clamp(place.line, 0, static_cast<int>(lines.size()) - 1);
    int position = 0;
    for (int line = 0; line < place.line; ++line)
        position += lines[static_cast<std::size_t>(line)].GetLengthInChar() + 1;
    const int length = lines[static_cast<std::size_t>(place.line)].GetLengthInChar();
    return position + std::clamp(place.column, 0, length);
}

// An arrow collapses a selection to the end that it points to.
int Sideways(const ZOLDlgEditor& editor, int direction) {
    int start = 0;
    int end = 0;
    editor.GetSelection(start, end);
    if (end != -1)
        return direction < 0 ? start : end;
    return std::clamp(start + direction, 0, editor.GetText().GetLengthInChar());
}

int Caret(const ZOLDlgEditor& editor) {
    int start = 0;
    int end = 0;
    editor.GetSelection(start, end);
    return end == -1 ? start : end;
}

int ToEndOfLine(const ZOLDlgEditor& editor, int direction) {
    const std::vector<ZOLUnicodeString> lines = SplitLines(editor.GetText());
    CaretPlace place = PlaceOf(lines, Caret(editor));
    place.column = direction < 0 ? 0 : lines[static_cast<std::size_t>(place.line)].GetLengthInChar();
    return PositionOf(lines, place);
}

int DownLines(const ZOLDlgEditor& editor, int count) {
    const std::vector<ZOLUnicodeString> lines = SplitLines(editor.GetText());
    CaretPlace place = PlaceOf(lines, Caret(editor));
    place.line += count;
    return PositionOf(lines, place);
}

// Erases the selection, or one character beside the caret: before it for -1, behind it for 1.
ZOLUserResult Erase(ZOLDlgEditor& editor, int side) {
    int start = 0;
    int end = 0;
    editor.GetSelection(start, end);
    if (end != -1)
        return editor.UserInsert({});
    const int from = side < 0 ? start - 1 : start;
    if (from < 0 || from >= editor.GetText().GetLengthInChar())
        return editor.UserGate();
    if (const ZOLUserResult selected = editor.UserSelectText(from, from + 1); selected != ZOLUserResult::Done)
        return selected;
    const ZOLUserResult erased = editor.UserInsert({});
    if (erased != ZOLUserResult::Done)
        editor.UserSelectText(start, -1);
    return erased;
}

struct CaretKey {
    ZOLUserKey key;
    bool goesFromLineToLine;
    int (*target)(const ZOLDlgEditor& editor);
};

constexpr CaretKey caretKeys[] = {
    {ZOLUserKey::Left, false, [](const ZOLDlgEditor& editor) { return Sideways(editor, -1); }},
    {ZOLUserKey::Right, false, [](const ZOLDlgEditor& editor) { return Sideways(editor, 1); }},
    {ZOLUserKey::Home, false, [](const ZOLDlgEditor& editor) { return ToEndOfLine(editor, -1); }},
    {ZOLUserKey::End, false, [](const ZOLDlgEditor& editor) { return ToEndOfLine(editor, 1); }},
    {ZOLUserKey::Up, true, [](const ZOLDlgEditor& editor) { return DownLines(editor, -1); }},
    {ZOLUserKey::Down, true, [](const ZOLDlgEditor& editor) { return DownLines(editor, 1); }},
    {ZOLUserKey::PageUp, true,
     [](const ZOLDlgEditor& editor) { return DownLines(editor, -editor.GetVisibleTextHeight()); }},
    {ZOLUserKey::PageDown, true,
     [](const ZOLDlgEditor& editor) { return DownLines(editor, editor.GetVisibleTextHeight()); }},
};

} // namespace

ZOLUserResult PressEditorKey(ZOLDlgEditor& editor, ZOLUserKey key) {
    if (key == ZOLUserKey::Backspace || key == ZOLUserKey::Delete)
        return Erase(editor, key == ZOLUserKey::Backspace ? -1 : 1);
    for (const CaretKey& caretKey : caretKeys)
        if (caretKey.key == key && (editor.HasSeveralLines() || !caretKey.goesFromLineToLine))
            return editor.UserSelectText(caretKey.target(editor), -1);
    return ZOLUserResult::NotThere;
}

} // namespace trellis
