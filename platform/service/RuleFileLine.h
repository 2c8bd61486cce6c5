#pragma once

#include "service/RuleFile.h"

namespace trellis {

// RuleFileLine: one line of a rule file, taken apart from left to right.
class RuleFileLine {
public:
    RuleFileLine(const std::string& line, int number, RuleFile& file)
        : _line(line), _number(number), _file(file) {
        SkipBlanks();
    }

    bool AtEnd() const { return _at >= _line.size(); }
    char Next() const { return AtEnd() ? '\0' : _line[_at]; }
    // The letters that stand here.
    std::string Word();
    // Behind the word: a colon, and before it perhaps a name in quotation marks, unless `name` is null. False, noted,
    // when that is not so.
    bool Head(const std::string& word, std::string* name);
    // The rest of the line.
    std::optional<RuleFileText> Rest();
    // Names in quotation marks, divided by bars, up to the end; a hyphen stands for no name where `mayBeEmpty`. Bars
    // at the ends do not matter.
    std::optional<std::vector<RuleFileText>> Cells(bool mayBeEmpty);

private:
    void SkipBlanks();
    bool Take(char sign);
    // Nothing when none begins here or it is not closed.
    std::optional<RuleFileText> Quoted();
    std::optional<RuleFileText> Cell(bool mayBeEmpty);
    // The text that is written with backslashes; nothing, noted, when one is wrong.
    std::optional<std::string> Plain(std::string_view written);
    std::string Place() const;

    const std::string& _line;
    int _number;
    RuleFile& _file;
    std::size_t _at = 0;
};

} // namespace trellis
