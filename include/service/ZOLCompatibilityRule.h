#pragma once

#include "service/ZOLIQrdConfigRule.h"
#include "service/ZOLTextRule.h"

// ZOLCompatibilityRule: a row of a compatibility matrix: one reference per category, joined by "and". A cell with an
// empty option fits anything.
class TRELLIS_API ZOLCompatibilityRule : public ZOLTextRule {
public:
    explicit ZOLCompatibilityRule(const ZOLUnicodeString& text, const ZOLUnicodeString& name = {},
                                  const ZOLUnicodeString& description = {});
    // A null handle gives the row of an empty text.
    explicit ZOLCompatibilityRule(const ZOLIQrdConfigRule_var& row);
    ZOLConfigRuleType GetType() const override { return ZOLCompatibilityRuleType; }
    // The cells in the order of the text; none when it cannot be read. The caller deletes them.
    ZOLListPtrZOLParameter GetParameters() const;

protected:
    bool IsReadable(ZOLUnicodeString& verdict) const override;
};
