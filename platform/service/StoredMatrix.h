#pragma once

#include "service/StoredPart.h"
#include "service/ZOLIQrdCompatibilityMatrix.h"

namespace trellis {

// StoredMatrix: a compatibility matrix over its row and the rows of its columns.
class StoredMatrix final : public StoredPart<ZOLIQrdCompatibilityMatrix, CompatibilityMatrixRow> {
public:
    using StoredPart::StoredPart;

    ZOLUnicodeString GetName() const override { return Row().name; }
    void SetName(const ZOLUnicodeString& name, ZOLGYRError& error) override;
    ZOLUnicodeString GetDescription() const override { return Row().description; }
    void SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) override;
    void SetCategories(const ZOLListValZOLIQrdCategory_var& categories, ZOLGYRError& error) override;
    void GetCategories(ZOLListValZOLIQrdCategory_var& categories) const override;
    void GetRules(ZOLListValZOLIQrdConfigRule_var& rules) const override;
    void AddRule(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error) override;
    void RemoveRule(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error) override;
    ZOLUnicodeString GetOwner() const override { return Row().owner; }
    void SetOwner(const ZOLUnicodeString& owner, ZOLGYRError& error) override;
    ZOLUnicodeString GetOrganization() const override { return Row().organization; }
    void SetOrganization(const ZOLUnicodeString& organization, ZOLGYRError& error) override;

private:
    bool MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const override;
    // Ids of the living categories of the columns, in order.
    std::vector<std::int64_t> CategoryIds(ItemContent& content) const;
    // The record of a row of this matrix's dictionary that the user may put in and take out; null when it is none.
    RecordOf<ConfigRuleRow> RowToMove(ConfigurationMemory& memory, const ZOLIQrdConfigRule_var& rule,
                                      ZOLGYRError& error) const;
};

} // namespace trellis
