#pragma once

#include "service/ZOLTextRule.h"

// ZOLDirectiveRule: "if (condition) then consequence". Both are built of references, "not", "and", "or" and brackets;
// "not" binds most, "or" least.
class TRELLIS_API ZOLDirectiveRule : public ZOLTextRule {
public:
    explicit ZOLDirectiveRule(const ZOLUnicodeString& text, const ZOLUnicodeString& name = {},
                              const ZOLUnicodeString& description = {});
    ZOLConfigRuleType GetType() const override { return ZOLDirectiveRuleType; }

protected:
    bool IsReadable(ZOLUnicodeString& verdict) const override;
};
