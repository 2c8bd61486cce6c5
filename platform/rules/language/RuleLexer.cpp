#include "rules/language/RuleLexer.h"

#include "values/ZOLParameter.h"

#include <cstring>

namespace trellis {

namespace {

constexpr char Mark = '"';
constexpr const char* Blanks = " \t\r\n";
constexpr const char* Limits = " \t\r\n()\""; // of a bare word

// Behind the mark that closes the name which begins at `begin`; npos when none does.
std::size_t EndOfName(const std::string& text, std::size_t begin) {
    for (std::size_t at = text.find(Mark, begin + 1); at < text.size(); at = text.find(Mark, at + 2))
        if (at + 1 == text.size() || text[at + 1] != Mark)
            return at + 1;
    return std::string::npos;
}

RuleToken ReadReference(const ZOLUnicodeString& text, std::size_t begin) {
    using Kind = RuleToken::Kind;
    ZOLParameter parameter("", "", 0);
    int end = static_cast<int>(begin);
    if (ZOLParameter::ReadParameterString(text, end, parameter))
        return {Kind::Reference,
                RuleWord::If,
                {parameter.GetCategory().Bytes(), parameter.GetOption().Bytes()},
                begin,
                static_cast<std::size_t>(end)};
    // The name is not closed, or its point leads to none: then the name stands for itself, and the point alone.
    const std::string& bytes = text.Bytes();
    const std::size_t behind = EndOfName(bytes, begin);
    if (behind == std::string::npos)
        return {Kind::Unclosed, RuleWord::If, {}, begin, bytes.size()};
    if (bytes.compare(behind, 2, ".\"") == 0)
        return {Kind::Unclosed, RuleWord::If, {}, behind + 1, bytes.size()};
    const ZOLUnicodeString name(std::string_view(bytes).substr(begin, behind - begin));
    end = 0;
    ZOLParameter::ReadParameterString(name, end, parameter);
    return {Kind::Reference, RuleWord::If, {"", parameter.GetOption().Bytes()}, begin, behind};
}

RuleToken ReadWord(const std::string& text, std::size_t begin, const RuleWords& words) {
    const std::size_t limit = std::min(text.find_first_of(Limits, begin), text.size());
    const auto word = words.Find(std::string_view(text).substr(begin, limit - begin));
    if (word)
        return {RuleToken::Kind::Word, *word, {}, begin, limit};
    return {RuleToken::Kind::Bare, RuleWord::If, {}, begin, limit};
}

} // namespace

std::vector<RuleToken> RuleLexer::Tokens(const ZOLUnicodeString& text, const RuleWords& words) {
    const std::string& bytes = text.Bytes();
    std::vector<RuleToken> tokens;
    for (std::size_t at = bytes.find_first_not_of(Blanks); at < bytes.size();
         at = bytes.find_first_not_of(Blanks, at)) {
        switch (bytes[at]) {
        case '(':
            tokens.push_back({RuleToken::Kind::Open, RuleWord::If, {}, at, at + 1});
            break;
        case ')':
            tokens.push_back({RuleToken::Kind::Close, RuleWord::If, {}, at, at + 1});
            break;
        case Mark:
            tokens.push_back(ReadReference(text, at));
            break;
        default:
            tokens.push_back(ReadWord(bytes, at, words));
        }
        at = tokens.back().end;
    }
    tokens.push_back({RuleToken::Kind::End, RuleWord::If, {}, bytes.size(), bytes.size()});
    return tokens;
}

} // namespace trellis
