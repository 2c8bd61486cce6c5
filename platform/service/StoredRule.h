#pragma once

#include "service/StoredPart.h"
#include "service/ZOLIQrdConfigRule.h"

namespace trellis {

// StoredRule: a rule over its row, and over the rows of what it names.
class StoredRule final : public StoredPart<ZOLIQrdConfigRule, ConfigRuleRow> {
public:
    using StoredPart::StoredPart;

    ZOLUnicodeString GetName() const override { return Row().name; }
    void SetName(const ZOLUnicodeString& name, ZOLGYRError& error) override;
    ZOLUnicodeString GetRuleString() const override;
    void SetRuleString(const ZOLUnicodeString& text, ZOLGYRError& error) override;
    ZOLConfigRuleType GetType() const override { return static_cast<ZOLConfigRuleType>(Row().type); }
    ZOLUnicodeString GetOwner() const override;
    ZOLUnicodeString GetOrganization() const override;
    ZOLUnicodeString GetDescription() const override { return Row().description; }
    void SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) override;
    void SetOwner(const ZOLUnicodeString& owner, ZOLGYRError& error) override;
    void SetOrganization(const ZOLUnicodeString& organization, ZOLGYRError& error) override;

private:
    bool MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const override;
    // The row of the matrix in which it stands, or null.
    RecordOf<CompatibilityMatrixRow> Matrix() const;
    void NamesChanged(ZOLGYRError& error);
};

} // namespace trellis
