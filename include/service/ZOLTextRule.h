#pragma once

#include "service/ZOLConfigRule.h"

// ZOLTextRule: what all kinds of rules share: the text, and what can be asked and changed without knowing the kind.
class TRELLIS_API ZOLTextRule : public ZOLConfigRule {
public:
    ZOLUnicodeString GetName() const override { return _name; }
    ZOLUnicodeString GetRuleString() const override { return _text; }
    ZOLUnicodeString GetDescription() const override { return _description; }
    int Check(const ZOLListPtrZOLParameter& parameters, ZOLUnicodeString& message) const override;
    void GetCategories(ZOLListValZOLUnicodeString& names) const override;
    void GetOptions(ZOLListValZOLUnicodeString& names, const ZOLUnicodeString& category) const override;
    int HasCategory(const ZOLUnicodeString& name) const override;
    int HasOption(const ZOLUnicodeString& name) const override;
    void RenameOption(const ZOLUnicodeString& from, const ZOLUnicodeString& to) override;
    void RenameCategory(const ZOLUnicodeString& from, const ZOLUnicodeString& to) override;

protected:
    ZOLTextRule(const ZOLUnicodeString& text, const ZOLUnicodeString& name,
                const ZOLUnicodeString& description);
    // Whether the text is a rule of the kind; else sets the verdict.
    virtual bool IsReadable(ZOLUnicodeString& verdict) const = 0;

private:
    ZOLUnicodeString _text;
    ZOLUnicodeString _name;
    ZOLUnicodeString _description;
};
