#pragma once

#include "rules/language/RuleTerm.h"
#include "rules/language/RuleWords.h"
#include "values/ZOLUnicodeString.h"

#include <vector>

namespace trellis {

// RuleWriter: the text of a rule. Reading it gives the same rule: writing and parsing are inverses for terms whose
// chains are flat, that is, in which no And stands right in an And and no Or right in an Or.
class RuleWriter {
public:
    explicit RuleWriter(const RuleWords& words) : _words(words) {}

    ZOLUnicodeString Directive(const DirectiveTerm& rule) const;
    ZOLUnicodeString Term(const RuleTerm& term) const;
    ZOLUnicodeString Package(const std::vector<SignedReference>& references) const;
    ZOLUnicodeString Row(const std::vector<OptionReference>& cells) const;
    static ZOLUnicodeString Reference(const OptionReference& reference);

private:
    // Puts the term into brackets unless it binds at least as strongly as `least`.
    std::string Bound(const RuleTerm& term, int least) const;
    std::string Joined(RuleWord word) const;

    const RuleWords& _words;
};

} // namespace trellis
