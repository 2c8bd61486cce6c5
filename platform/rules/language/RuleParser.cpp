#include "rules/language/RuleParser.h"

#include "values/ZOLMsgCatalog.h"

#include <algorithm>
#include <cctype>

namespace trellis {

namespace {

// Keys of the phrases in which a verdict speaks of what it expected.
constexpr const char* AnOption = "option";
constexpr const char* ClosingBracket = "closing-bracket";
constexpr const char* TheEnd = "end";
constexpr const char* OrPhrase = "or";

ZOLUnicodeString Phrase(const char* key) {
    return ZOLMsgCatalog("RulePhrases").GetMsg(key);
}

// What people write who know other languages.
struct ForeignWord {
    const char* written;
    RuleWord meant;
};

constexpr ForeignWord ForeignWords[] = {
    {"&", RuleWord::And},  {"&&", RuleWord::And},       {"+", RuleWord::And},   {",", RuleWord::And},
    {"|", RuleWord::Or},   {"||", RuleWord::Or},        {"/", RuleWord::Or},    {"!", RuleWord::Not},
    {"~", RuleWord::Not},  {"-", RuleWord::Not},        {"=>", RuleWord::Then}, {"->", RuleWord::Then},
    {":", RuleWord::Then}, {"implies", RuleWord::Then}, {"when", RuleWord::If}, {"without", RuleWord::Not},
};

// Letters of any script, and digits.
bool HasLetter(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char octet) {
        const auto value = static_cast<unsigned char>(octet);
        return value >= 0x80 || std::isalnum(value);
    });
}

bool BeginsRoundMark(std::string_view text) {
    constexpr std::string_view marks[] = {"\u201c", "\u201d", "\u201e", "\u2018", "\u2019", "\u00ab", "'"};
    return std::any_of(std::begin(marks), std::end(marks),
                       [&](std::string_view mark) { return text.starts_with(mark); });
}

} // namespace

RuleParser::RuleParser(const ZOLUnicodeString& text, const RuleWords& words)
    : _text(text), _words(words), _tokens(RuleLexer::Tokens(text, words)) {}

void RuleParser::Start() {
    _at = 0;
    _depth = 0;
    _fault = {};
}

bool RuleParser::IsWord(RuleWord word) const {
    return Now().kind == RuleToken::Kind::Word && Now().word == word;
}

bool RuleParser::Take(RuleWord word) {
    if (!IsWord(word))
        return false;
    ++_at;
    return true;
}

bool RuleParser::TakeKind(RuleToken::Kind kind) {
    if (Now().kind != kind)
        return false;
    ++_at;
    return true;
}

std::optional<DirectiveTerm> RuleParser::Directive() {
    Start();
    if (!Take(RuleWord::If)) {
        FailExpected({Quoted(RuleWord::If)});
        return std::nullopt;
    }
    DirectiveTerm rule;
    rule.condition = Or();
    if (!IsFaulty() && Now().kind == RuleToken::Kind::Close)
        Fail(RuleFault::NoPartner);
    if (!IsFaulty() && !Take(RuleWord::Then))
        FailExpected({Quoted(RuleWord::And), Quoted(RuleWord::Or), Quoted(RuleWord::Then)});
    if (!IsFaulty())
        rule.consequence = Or();
    if (!ExpectEnd({Quoted(RuleWord::And), Quoted(RuleWord::Or), Phrase(TheEnd)}))
        return std::nullopt;
    return rule;
}

std::optional<std::vector<SignedReference>> RuleParser::Package() {
    Start();
    std::vector<SignedReference> references;
    do {
        const bool isChosen = !Take(RuleWord::Not);
        references.push_back({Reference(false), isChosen});
    } while (!IsFaulty() && Take(RuleWord::And));
    if (!IsFaulty() && (Now().kind == RuleToken::Kind::Word || Now().kind == RuleToken::Kind::Close))
        Fail(RuleFault::NotInPackage, {Found()});
    if (!ExpectEnd({Quoted(RuleWord::And), Phrase(TheEnd)}))
        return std::nullopt;
    return references;
}

std::optional<std::vector<OptionReference>> RuleParser::Row() {
    Start();
    std::vector<OptionReference> cells;
    do {
        const std::size_t place = _at;
        cells.push_back(Reference(true));
        const auto sameColumn = [&](const OptionReference& other) {
            return other.category == cells.back().category;
        };
        if (!IsFaulty() && std::any_of(cells.begin(), cells.end() - 1, sameColumn)) {
            _at = place;
            Fail(RuleFault::ColumnTwice, {cells.back().category});
        }
    } while (!IsFaulty() && Take(RuleWord::And));
    if (!IsFaulty() && (Now().kind == RuleToken::Kind::Word || Now().kind == RuleToken::Kind::Close))
        Fail(RuleFault::NotInRow, {Found()});
    if (!ExpectEnd({Quoted(RuleWord::And), Phrase(TheEnd)}))
        return std::nullopt;
    return cells;
}

template <typename Next>
RuleTerm RuleParser::Chain(RuleTerm::Kind kind, RuleWord word, Next next) {
    RuleTerm first = (this->*next)();
    if (IsFaulty() || !IsWord(word))
        return first;
    RuleTerm chain{kind, {}, {}};
    chain.parts.push_back(std::move(first));
    while (!IsFaulty() && Take(word))
        chain.parts.push_back((this->*next)());
    return chain;
}

RuleTerm RuleParser::Or() {
    return Chain(RuleTerm::Kind::Or, RuleWord::Or, &RuleParser::And);
}

RuleTerm RuleParser::And() {
    return Chain(RuleTerm::Kind::And, RuleWord::And, &RuleParser::Not);
}

RuleTerm RuleParser::Not() {
    if (!IsWord(RuleWord::Not))
        return Primary();
    if (++_depth > MostNested)
        Fail(RuleFault::TooDeep, {ZOLUnicodeString::FromNumber(MostNested)});
    if (IsFaulty())
        return {};
    ++_at;
    RuleTerm part = Not();
    --_depth;
    return RuleTerm::Not(std::move(part));
}

RuleTerm RuleParser::Primary() {
    if (Now().kind != RuleToken::Kind::Open)
        return RuleTerm::Of(Reference(false));
    if (++_depth > MostNested)
        Fail(RuleFault::TooDeep, {ZOLUnicodeString::FromNumber(MostNested)});
    if (IsFaulty())
        return {};
    ++_at;
    RuleTerm inner = Or();
    if (!IsFaulty() && !TakeKind(RuleToken::Kind::Close))
        FailExpected({Quoted(RuleWord::And), Quoted(RuleWord::Or), Phrase(ClosingBracket)});
    --_depth;
    return inner;
}

OptionReference RuleParser::Reference(bool mayBeEmpty) {
    if (IsFaulty())
        return {};
    if (Now().kind != RuleToken::Kind::Reference) {
        FailExpected({Phrase(AnOption)});
        return {};
    }
    OptionReference reference = Now().reference;
    // The category counts as empty both when it is left out and when it stands as "".
    if (reference.option.empty() && !(mayBeEmpty && !reference.category.empty())) {
        Fail(RuleFault::EmptyName);
        return {};
    }
    ++_at;
    return reference;
}

bool RuleParser::ExpectEnd(const std::vector<ZOLUnicodeString>& expected) {
    if (IsFaulty())
        return false;
    if (Now().kind == RuleToken::Kind::End)
        return true;
    if (Now().kind == RuleToken::Kind::Close)
        Fail(RuleFault::NoPartner);
    else
        FailExpected(expected);
    return false;
}

void RuleParser::Fail(int number, std::vector<ZOLUnicodeString> texts) {
    if (!IsFaulty())
        _fault = {number, Now().begin, std::move(texts)};
}

ZOLUnicodeString RuleParser::Quoted(RuleWord word) const {
    return "\"" + _words.Text(word) + "\"";
}

ZOLUnicodeString RuleParser::Found() const {
    const RuleToken& token = Now();
    const ZOLUnicodeString text(std::string_view(_text.Bytes()).substr(token.begin, token.end - token.begin));
    return token.kind == RuleToken::Kind::Reference ? text : "\"" + text + "\"";
}

void RuleParser::FailExpected(const std::vector<ZOLUnicodeString>& expected) {
    if (FailKnownMistake())
        return;
    ZOLUnicodeString list = expected.front();
    for (std::size_t i = 1; i < expected.size(); ++i)
        list +=
            (i + 1 == expected.size() ? " " + Phrase(OrPhrase) + " " : ZOLUnicodeString(", ")) + expected[i];
    if (Now().kind == RuleToken::Kind::End)
        Fail(RuleFault::EndsEarly, {list});
    else
        Fail(RuleFault::Unexpected, {list, Found()});
}

bool RuleParser::FailKnownMistake() {
    if (Now().kind == RuleToken::Kind::Unclosed) {
        Fail(RuleFault::Unclosed);
        return true;
    }
    if (Now().kind != RuleToken::Kind::Bare)
        return false;
    const std::string word = _text.Bytes().substr(Now().begin, Now().end - Now().begin);
    if (word.starts_with('.'))
        Fail(RuleFault::LoosePoint);
    else if (BeginsRoundMark(word))
        Fail(RuleFault::RoundMarks);
    else if (word == "else")
        Fail(RuleFault::NoElse, {_words.Text(RuleWord::If), _words.Text(RuleWord::Not)});
    if (IsFaulty())
        return true;
    const bool followsName =
        _at > 0 && _tokens[_at - 1].kind == RuleToken::Kind::Reference && _tokens[_at - 1].end == Now().begin;
    const auto foreign = std::find_if(std::begin(ForeignWords), std::end(ForeignWords),
                                      [&](const ForeignWord& known) { return word == known.written; });
    if (foreign != std::end(ForeignWords))
        Fail(RuleFault::ForeignWord, {word, _words.Text(foreign->meant)});
    else if (HasLetter(word))
        Fail(followsName ? RuleFault::RightBehindName : RuleFault::BareName, {word});
    return IsFaulty();
}

} // namespace trellis
