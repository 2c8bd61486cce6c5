#pragma once

#include "service/ZOLTextRule.h"

// ZOLPackageRule: references joined by "and", each perhaps under "not". The plain options stand or fall together;
// where they stand, the negated ones do not.
class TRELLIS_API ZOLPackageRule : public ZOLTextRule {
public:
    explicit ZOLPackageRule(const ZOLUnicodeString& text, const ZOLUnicodeString& name = {},
                            const ZOLUnicodeString& description = {});
    ZOLConfigRuleType GetType() const override { return ZOLPackageRuleType; }

protected:
    bool IsReadable(ZOLUnicodeString& verdict) const override;
};
