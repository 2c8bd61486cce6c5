#include "service/ZOLPackageRule.h"

#include "rules/language/RuleParser.h"

ZOLPackageRule::ZOLPackageRule(const ZOLUnicodeString& text, const ZOLUnicodeString& name,
                               const ZOLUnicodeString& description)
    : ZOLTextRule(text, name, description) {}

bool ZOLPackageRule::IsReadable(ZOLUnicodeString& verdict) const {
    trellis::RuleParser parser(GetRuleString());
    if (parser.Package())
        return true;
    verdict = parser.GetFault().Verdict(GetRuleString());
    return false;
}
