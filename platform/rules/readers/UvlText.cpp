#include "rules/readers/UvlText.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr int UnclosedQuote = 60704;
constexpr int UnclosedBracket = 60705;
constexpr int UnclosedComment = 60706;

constexpr int TabWidth = 8;
// In octets, more than a rule can have. A bracket that stays open longer over line ends was forgotten;
// without a bound each such line would be sought through the rest of the file.
constexpr std::size_t LongestJoined = 100'000;
constexpr std::string_view Blanks = " \t\r\n\f\v";
constexpr std::string_view NoNameSigns = "!&|=<>(){}[],\"";
constexpr std::string_view LongSymbols[] = {"<=>", "=>"};

bool IsComment(std::string_view text, std::size_t at) {
    return text.substr(at, 2) == "//" || text.substr(at, 2) == "/*";
}

// Behind the comment that begins here.
std::size_t BehindComment(std::string_view text, std::size_t at) {
    if (text[at + 1] == '/')
        return std::min(text.find('\n', at), text.size());
    const std::size_t close = text.find("*/", at + 2);
    return close == std::string_view::npos ? text.size() : close + 2;
}

// Behind the closing quote of what is quoted here, or at the end of the line.
std::size_t BehindQuote(std::string_view text, std::size_t at) {
    const char stops[] = {text[at], '\n'};
    const std::size_t close = text.find_first_of(std::string_view(stops, 2), at + 1);
    if (close == std::string_view::npos)
        return text.size();
    return text[close] == '\n' ? close : close + 1;
}

// Behind the comment, the quoted text or the one octet that stands here. Texts in single quotes are values;
// they stand in braces only, elsewhere such a quote may be part of a name.
std::size_t BehindPiece(std::string_view text, std::size_t at, bool isInBraces) {
    if (IsComment(text, at))
        return BehindComment(text, at);
    if (text[at] == '"' || (text[at] == '\'' && isInBraces))
        return BehindQuote(text, at);
    return at + 1;
}

std::size_t BehindBlanks(std::string_view text, std::size_t at) {
    while (at < text.size()) {
        if (IsComment(text, at))
            at = BehindComment(text, at);
        else if (Blanks.find(text[at]) != std::string_view::npos)
            ++at;
        else
            return at;
    }
    return at;
}

bool EndsName(std::string_view text, std::size_t at) {
    return (Blanks.find(text[at]) != std::string_view::npos) ||
           NoNameSigns.find(text[at]) != std::string_view::npos || IsComment(text, at);
}

int CountLines(std::string_view text) {
    return static_cast<int>(std::ranges::count(text, '\n'));
}

} // namespace

void UvlLines::BeginLine() {
    _lineStart = _at;
    _indentation = 0;
    for (; _at < _text.size() && (_text[_at] == ' ' || _text[_at] == '\t'); ++_at)
        _indentation += _text[_at] == '\t' ? TabWidth - _indentation % TabWidth : 1;
}

void UvlLines::PassOver(std::size_t end) {
    const int lines = CountLines(_text.substr(_at, end - _at));
    _number += lines;
    _at = end;
    if (lines > 0 && _text[end - 1] == '\n')
        BeginLine();
}

bool UvlLines::IsCommentOpen(std::size_t at) const {
    return _text.substr(at, 2) == "/*" && _text.find("*/", at + 2) == std::string_view::npos;
}

bool UvlLines::Next(UvlLine& line) {
    if (_at == 0)
        BeginLine();
    while (_at < _text.size() && !_problems.IsFull()) {
        if (IsCommentOpen(_at))
            _problems.Note(_number, UnclosedComment);
        const bool isComment = IsComment(_text, _at);
        if (isComment || Blanks.find(_text[_at]) != std::string_view::npos) {
            PassOver(isComment ? BehindComment(_text, _at) : _at + 1);
            continue;
        }
        const std::size_t end = EndOfText();
        line = {_number, _indentation, static_cast<int>(_at - _lineStart), _text.substr(_at, end - _at)};
        PassOver(end);
        return true;
    }
    return false;
}

// A bracket that is never closed does not make one line of all the rest: the line then ends where it ends in
// the file.
std::size_t UvlLines::EndOfText() const {
    int braces = 0;
    int brackets = 0;
    std::size_t firstEnd = _text.size();
    for (std::size_t at = _at; at < _text.size(); at = BehindPiece(_text, at, braces > 0)) {
        const char sign = _text[at];
        braces += (sign == '{') - (sign == '}');
        brackets += (sign == '(') - (sign == ')');
        if (IsCommentOpen(at))
            _problems.Note(_number + CountLines(_text.substr(_at, at - _at)), UnclosedComment);
        if (sign != '\n')
            continue;
        if (braces <= 0 && brackets <= 0)
            return at;
        firstEnd = std::min(firstEnd, at);
        if (at - _at > LongestJoined)
            break;
    }
    if (braces <= 0 && brackets <= 0)
        return _text.size();
    _problems.Note(_number, UnclosedBracket, {braces > 0 ? "{" : "("});
    return firstEnd;
}

UvlTokens::UvlTokens(const UvlLine& line, ModelProblems& problems) : _line(line), _problems(problems) {
    Advance();
}

void UvlTokens::Advance() {
    const std::string_view text = _line.text;
    _start = BehindBlanks(text, _at);
    _at = _start;
    if (_start == text.size()) {
        _token = {};
        return;
    }
    if (text[_start] == '"') {
        _at = BehindQuote(text, _start);
        const bool isClosed = _at > _start + 1 && text[_at - 1] == '"';
        _token = {isClosed ? UvlToken::Kind::QuotedName : UvlToken::Kind::OpenQuote,
                  text.substr(_start + 1, _at - _start - (isClosed ? 2 : 1))};
        return;
    }
    while (_at < text.size() && !EndsName(text, _at))
        ++_at;
    if (_at > _start) {
        _token = {UvlToken::Kind::Name, text.substr(_start, _at - _start)};
        return;
    }
    const auto* symbol = std::ranges::find_if(
        LongSymbols, [&](std::string_view candidate) { return text.substr(_start).starts_with(candidate); });
    _at += symbol == std::end(LongSymbols) ? 1 : symbol->size();
    _token = {UvlToken::Kind::Symbol, text.substr(_start, _at - _start)};
}

bool UvlTokens::Take(std::string_view symbol) {
    if (!_token.Is(symbol))
        return false;
    Advance();
    return true;
}

void UvlTokens::SkipBraces() {
    int depth = 1;
    while (_at < _line.text.size() && depth > 0) {
        depth += (_line.text[_at] == '{') - (_line.text[_at] == '}');
        _at = BehindPiece(_line.text, _at, true);
    }
    Advance();
}

void UvlTokens::Fail(int number) {
    const std::string_view before = _line.text.substr(0, _start);
    const std::size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0
    const int column = ZOLUnicodeString(before.substr(lineStart)).GetLengthInChar() + 1 +
                       (lineStart == 0 ? _line.offset : 0);
    std::vector<std::string> parameters{std::to_string(column)};
    if (_token.kind != UvlToken::Kind::End)
        parameters.push_back(std::string(_token.text));
    Fail(number, parameters);
}

void UvlTokens::Fail(int number, const std::vector<std::string>& parameters) {
    const int line = _line.number + CountLines(_line.text.substr(0, _start));
    if (_token.kind == UvlToken::Kind::OpenQuote)
        _problems.Note(line, UnclosedQuote, {std::string(_token.text)});
    else
        _problems.Note(line, number, parameters);
    _at = _line.text.size();
    _token = {};
}

} // namespace trellis
