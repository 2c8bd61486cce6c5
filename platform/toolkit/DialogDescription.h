#pragma once

#include "values/ZOLUnicodeString.h"

#include <string>
#include <string_view>

class ZOLDialog;

namespace trellis {

// DialogDescription: the text in which a dialog is described: one line per thing a user sees, two blanks of
// indentation per level. Line feeds inside a text are written as "\n", so that a line stays a line.
class DialogDescription {
public:
    // A level of indentation for what is written while it lives.
    class Indent {
    public:
        explicit Indent(DialogDescription& description) : _description(description) { ++_description._level; }
        ~Indent() { --_description._level; }
        Indent(const Indent&) = delete;
        Indent& operator=(const Indent&) = delete;

    private:
        DialogDescription& _description;
    };

    void Line(std::string_view text);
    // One line for a widget: its kind, its text in quotes when it has one, its marks, and "greyed" when it
    // is.
    void Widget(const ZOLDialog& dialog);
    // The children that a user sees, one level deeper.
    void Children(const ZOLDialog& dialog);

    static std::string Quoted(const ZOLUnicodeString& text);

    const std::string& Text() const { return _text; }

private:
    std::string _text;
    int _level = 0;
};

} // namespace trellis
