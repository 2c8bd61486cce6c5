#include "service/ZOLCompatibilityRule.h"

#include "rules/language/RuleParser.h"

ZOLCompatibilityRule::ZOLCompatibilityRule(const ZOLUnicodeString& text, const ZOLUnicodeString& name,
                                           const ZOLUnicodeString& description)
    : ZOLTextRule(text, name, description) {}

ZOLCompatibilityRule::ZOLCompatibilityRule(const ZOLIQrdConfigRule_var& row)
    : ZOLTextRule(row ? row->GetRuleString() : ZOLUnicodeString(), row ? row->GetName() : ZOLUnicodeString(),
                  row ? row->GetDescription() : ZOLUnicodeString()) {}

ZOLListPtrZOLParameter ZOLCompatibilityRule::GetParameters() const {
    ZOLListPtrZOLParameter parameters;
    trellis::RuleParser parser(GetRuleString());
    if (const auto cells = parser.Row())
        for (const trellis::OptionReference& cell : *cells)
            parameters.Append(new ZOLParameter(cell.category, cell.option, 0));
    return parameters;
}

bool ZOLCompatibilityRule::IsReadable(ZOLUnicodeString& verdict) const {
    trellis::RuleParser parser(GetRuleString());
    if (parser.Row())
        return true;
    verdict = parser.GetFault().Verdict(GetRuleString());
    return false;
}
