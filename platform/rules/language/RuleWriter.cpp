#include "rules/language/RuleWriter.h"

#include "values/ZOLParameter.h"

namespace trellis {

namespace {

// How strongly a term binds.
int Strength(const RuleTerm& term) {
    switch (term.kind) {
    case RuleTerm::Kind::Or:
        return 0;
    case RuleTerm::Kind::And:
        return 1;
    case RuleTerm::Kind::Not:
        return 2;
    default:
        return 3;
    }
}

} // namespace

ZOLUnicodeString RuleWriter::Reference(const OptionReference& reference) {
    return ZOLParameter(reference.category, reference.option, 0).GetParameterString(0);
}

std::string RuleWriter::Joined(RuleWord word) const {
    return " " + _words.Text(word) + " ";
}

std::string RuleWriter::Bound(const RuleTerm& term, int least) const {
    const std::string text = Term(term).Bytes();
    return Strength(term) >= least ? text : "(" + text + ")";
}

ZOLUnicodeString RuleWriter::Term(const RuleTerm& term) const {
    if (term.kind == RuleTerm::Kind::Reference)
        return Reference(term.reference);
    if (term.kind == RuleTerm::Kind::Not)
        return _words.Text(RuleWord::Not) + " " + Bound(term.parts.front(), Strength(term));
    const RuleWord word = term.kind == RuleTerm::Kind::And ? RuleWord::And : RuleWord::Or;
    std::string text;
    for (const RuleTerm& part : term.parts)
        text += (text.empty() ? "" : Joined(word)) + Bound(part, Strength(term) + 1);
    return text;
}

ZOLUnicodeString RuleWriter::Directive(const DirectiveTerm& rule) const {
    return _words.Text(RuleWord::If) + " (" + Term(rule.condition).Bytes() + ") " +
           _words.Text(RuleWord::Then) + " " + Term(rule.consequence).Bytes();
}

ZOLUnicodeString RuleWriter::Package(const std::vector<SignedReference>& references) const {
    std::string text;
    for (const SignedReference& part : references) {
        text += text.empty() ? "" : Joined(RuleWord::And);
        if (!part.isChosen)
            text += _words.Text(RuleWord::Not) + " ";
        text += Reference(part.reference).Bytes();
    }
    return text;
}

ZOLUnicodeString RuleWriter::Row(const std::vector<OptionReference>& cells) const {
    std::string text;
    for (const OptionReference& cell : cells)
        text += (text.empty() ? "" : Joined(RuleWord::And)) + Reference(cell).Bytes();
    return text;
}

} // namespace trellis
