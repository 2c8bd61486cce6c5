#pragma once

#include "rules/language/RuleFault.h"
#include "rules/language/RuleLexer.h"

#include <optional>

namespace trellis {

// RuleParser: reads the text of a rule.
//
//   directive   if C then D          C and D of: references, not, and, or, brackets; not binds most, or least
//   package     R and not R and ...  references, each perhaps negated
//   row         R and R and ...      one reference a column; the empty option is the empty cell
//
// Each operation reads the whole text once; nothing is given where there is a fault.
class RuleParser {
public:
    explicit RuleParser(const ZOLUnicodeString& text, const RuleWords& words = RuleWords::Catalogue());

    std::optional<DirectiveTerm> Directive();
    std::optional<std::vector<SignedReference>> Package();
    std::optional<std::vector<OptionReference>> Row();
    // What was wrong in the operation before; number 0 when nothing was.
    const RuleFault& GetFault() const { return _fault; }

private:
    // How deep brackets and `not` may be nested.
    static constexpr int MostNested = 500;

    const RuleToken& Now() const { return _tokens[_at]; }
    bool IsWord(RuleWord word) const;
    bool Take(RuleWord word);
    bool TakeKind(RuleToken::Kind kind);

    void Start();
    RuleTerm Or();
    RuleTerm And();
    RuleTerm Not();
    RuleTerm Primary();
    template <typename Next>
    RuleTerm Chain(RuleTerm::Kind kind, RuleWord word, Next next);
    OptionReference Reference(bool mayBeEmpty);
    bool ExpectEnd(const std::vector<ZOLUnicodeString>& expected);

    bool IsFaulty() const { return _fault.number != 0; }
    void Fail(int number, std::vector<ZOLUnicodeString> texts = {});
    // Says what stands here in place of what was expected, as plainly as it can be told.
    void FailExpected(const std::vector<ZOLUnicodeString>& expected);
    bool FailKnownMistake();
    ZOLUnicodeString Found() const;
    ZOLUnicodeString Quoted(RuleWord word) const;

    const ZOLUnicodeString _text;
    const RuleWords& _words;
    const std::vector<RuleToken> _tokens;
    std::size_t _at = 0;
    int _depth = 0;
    RuleFault _fault;
};

} // namespace trellis
