#pragma once

#include "rules/language/RuleTerm.h"
#include "rules/language/RuleWords.h"
#include "values/ZOLUnicodeString.h"

#include <vector>

namespace trellis {

// A piece of a rule text, from the octet `begin` up to `end`.
struct RuleToken {
    enum class Kind {
        Word,
        Reference,
        Open,
        Close,
        Bare,     // a word that is no keyword, or a sign that means nothing here
        Unclosed, // a name without its closing mark; reaches to the end
        End
    };

    Kind kind = Kind::End;
    RuleWord word = RuleWord::If;   // of Word
    OptionReference reference = {}; // of Reference
    std::size_t begin = 0;
    std::size_t end = 0;
};

// RuleLexer: takes a rule text apart. Any text can be taken apart; names in quotation marks are never read as words.
class RuleLexer {
public:
    // The last token is End.
    static std::vector<RuleToken> Tokens(const ZOLUnicodeString& text, const RuleWords& words);
};

} // namespace trellis
