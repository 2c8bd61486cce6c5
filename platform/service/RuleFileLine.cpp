#include "service/RuleFileLine.h"

#include "values/ZOLUnicodeString.h"

namespace trellis {

namespace {

constexpr int HeadExpected = 60742;
constexpr int WrongBackslash = 60745;
constexpr int CellExpected = 60746;

constexpr std::string_view Blanks = " \t";
constexpr std::string_view Written = "nrt \\";
constexpr std::string_view Meant = "\n\r\t \\";

} // namespace

void RuleFileLine::SkipBlanks() {
    _at = std::min(_line.find_first_not_of(Blanks, _at), _line.size());
}

bool RuleFileLine::Take(char sign) {
    if (Next() != sign)
        return false;
    ++_at;
    SkipBlanks();
    return true;
}

std::string RuleFileLine::Place() const {
    const ZOLUnicodeString before(std::string_view(_line).substr(0, _at));
    return std::to_string(before.GetLengthInChar() + 1);
}

std::string RuleFileLine::Word() {
    const std::size_t end = std::min(_line.find_first_of(" \t\":|", _at), _line.size());
    std::string word = _line.substr(_at, end - _at);
    _at = end;
    SkipBlanks();
    return word;
}

std::optional<std::string> RuleFileLine::Plain(std::string_view written) {
    std::string plain;
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (written[i] != '\\') {
            plain += written[i];
            continue;
        }
        const std::size_t sign = ++i < written.size() ? Written.find(written[i]) : std::string_view::npos;
        if (sign == std::string_view::npos) {
            _file.Note(_number, WrongBackslash);
            return std::nullopt;
        }
        plain += Meant[sign];
    }
    return plain;
}

std::optional<RuleFileText> RuleFileLine::Quoted() {
    RuleFileText name{{}, _at};
    std::string written;
    for (std::size_t i = _at + 1; Next() == '"' && i < _line.size(); ++i) {
        const bool isMark = _line[i] == '"';
        const bool isTwice = isMark && i + 1 < _line.size() && _line[i + 1] == '"';
        if (isMark && !isTwice) {
            const auto plain = Plain(written);
            if (!plain)
                return std::nullopt;
            name.text = *plain;
            _at = i + 1;
            SkipBlanks();
            return name;
        }
        i += isTwice ? 1 : 0;
        written += _line[i];
    }
    return std::nullopt;
}

bool RuleFileLine::Head(const std::string& word, std::string* name) {
    const std::size_t before = _file.problems.size();
    if (name && Next() == '"')
        *name = Quoted().value_or(RuleFileText()).text;
    if (_file.problems.size() != before)
        return false;
    if (Take(':'))
        return true;
    _file.Note(_number, HeadExpected, {word, Place()});
    return false;
}

std::optional<RuleFileText> RuleFileLine::Rest() {
    std::size_t end = _line.find_last_not_of(Blanks);
    end = end == std::string::npos || end < _at ? _at : end + 1;
    // An escaped blank at the end belongs to the text.
    const std::size_t backslashes = end - 1 - _line.find_last_not_of('\\', end - 1);
    if (end < _line.size() && backslashes % 2 == 1)
        ++end;
    const auto plain = Plain(std::string_view(_line).substr(_at, end - _at));
    if (!plain)
        return std::nullopt;
    return RuleFileText{*plain, _at};
}

std::optional<RuleFileText> RuleFileLine::Cell(bool mayBeEmpty) {
    if (mayBeEmpty && Next() == '-') {
        RuleFileText empty{{}, _at};
        Take('-');
        return empty;
    }
    return Quoted();
}

std::optional<std::vector<RuleFileText>> RuleFileLine::Cells(bool mayBeEmpty) {
    const std::size_t before = _file.problems.size();
    std::vector<RuleFileText> cells;
    Take('|');
    while (!AtEnd()) {
        auto cell = Cell(mayBeEmpty);
        if (!cell || !(AtEnd() || Take('|'))) {
            if (_file.problems.size() == before)
                _file.Note(_number, CellExpected, {Place()});
            return std::nullopt;
        }
        cells.push_back(std::move(*cell));
    }
    return cells;
}

} // namespace trellis
