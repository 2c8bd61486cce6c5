#include "service/ZOLDirectiveRule.h"

#include "rules/language/RuleParser.h"

ZOLDirectiveRule::ZOLDirectiveRule(const ZOLUnicodeString& text, const ZOLUnicodeString& name,
                                   const ZOLUnicodeString& description)
    : ZOLTextRule(text, name, description) {}

bool ZOLDirectiveRule::IsReadable(ZOLUnicodeString& verdict) const {
    trellis::RuleParser parser(GetRuleString());
    if (parser.Directive())
        return true;
    verdict = parser.GetFault().Verdict(GetRuleString());
    return false;
}
