#include "rules/language/RuleText.h"

#include "rules/language/RuleWriter.h"

namespace trellis {

ZOLUnicodeString RuleText::Rewritten(const ZOLUnicodeString& text, const RuleWords& words,
                                     const Replacement& replace) {
    const std::string& bytes = text.Bytes();
    std::string result;
    std::size_t copied = 0;
    for (const RuleToken& token : RuleLexer::Tokens(text, words)) {
        std::string replacement;
        if (!replace(token, replacement))
            continue;
        result.append(bytes, copied, token.begin - copied);
        result += replacement;
        copied = token.end;
    }
    return result.append(bytes, copied);
}

ZOLUnicodeString RuleText::Translate(const ZOLUnicodeString& text, const RuleWords& from,
                                     const RuleWords& to) {
    return Rewritten(text, from, [&](const RuleToken& token, std::string& replacement) {
        if (token.kind != RuleToken::Kind::Word)
            return false;
        replacement = to.Text(token.word);
        return true;
    });
}

ZOLUnicodeString RuleText::RenameOption(const ZOLUnicodeString& text, const ZOLUnicodeString& from,
                                        const ZOLUnicodeString& to) {
    return Rewritten(text, RuleWords::Neutral(), [&](const RuleToken& token, std::string& replacement) {
        if (token.kind != RuleToken::Kind::Reference || token.reference.option != from.Bytes())
            return false;
        replacement = RuleWriter::Reference({token.reference.category, to.Bytes()}).Bytes();
        return true;
    });
}

ZOLUnicodeString RuleText::RenameCategory(const ZOLUnicodeString& text, const ZOLUnicodeString& from,
                                          const ZOLUnicodeString& to) {
    return Rewritten(text, RuleWords::Neutral(), [&](const RuleToken& token, std::string& replacement) {
        if (token.kind != RuleToken::Kind::Reference || token.reference.category != from.Bytes() ||
            from.IsEmpty())
            return false;
        replacement = RuleWriter::Reference({to.Bytes(), token.reference.option}).Bytes();
        return true;
    });
}

std::vector<OptionReference> RuleText::References(const ZOLUnicodeString& text) {
    std::vector<OptionReference> references;
    for (const RuleToken& token : RuleLexer::Tokens(text, RuleWords::Neutral()))
        if (token.kind == RuleToken::Kind::Reference)
            references.push_back(token.reference);
    return references;
}

} // namespace trellis
