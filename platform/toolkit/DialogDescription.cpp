#include "toolkit/DialogDescription.h"

#include "toolkit/ZOLDialog.h"

namespace trellis {

void DialogDescription::Line(std::string_view text) {
    _text.append(static_cast<std::size_t>(_level) * 2, ' ');
    _text.append(text);
    _text.push_back('\n');
}

void DialogDescription::Widget(const ZOLDialog& dialog) {
    std::string line = dialog.GetKind();
    if (const ZOLUnicodeString title = dialog.GetTitle(); !title.IsEmpty())
        line += ' ' + Quoted(title);
    if (const std::string marks = dialog.GetMarks(); !marks.empty())
        line += ' ' + marks;
    if (!dialog.IsSensitive())
        line += " greyed";
    Line(line);
}

void DialogDescription::Children(const ZOLDialog& dialog) {
    const Indent indent(*this);
    for (const ZOLDialog* child : dialog.GetChildren())
        if (child->IsLaidOut() && child->IsOnScreen())
            child->DescribeTo(*this);
}

std::string DialogDescription::Quoted(const ZOLUnicodeString& text) {
    std::string quoted = "\"";
    for (const char byte : text.Bytes()) {
        if (byte == '\n')
            quoted += "\\n";
        else if (byte == '"' || byte == '\\')
            quoted += std::string("\\") + byte;
        else
            quoted += byte;
    }
    return quoted + '"';
}

} // namespace trellis
