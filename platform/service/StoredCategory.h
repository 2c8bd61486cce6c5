#pragma once

#include "service/StoredPart.h"
#include "service/ZOLIQrdCategory.h"

namespace trellis {

// StoredCategory: a category over its row and the rows of its defaults.
class StoredCategory final : public StoredPart<ZOLIQrdCategory, CategoryRow> {
public:
    using StoredPart::StoredPart;

    ZOLUnicodeString GetName() const override { return Row().name; }
    void SetName(const ZOLUnicodeString& name, ZOLGYRError& error) override;
    ZOLUnicodeString GetDescription() const override { return Row().description; }
    void SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) override;
    int GetExclusivity() const override { return static_cast<int>(Row().exclusivity); }
    void SetExclusivity(int exclusivity, ZOLGYRError& error) override;
    void RemoveOption(const ZOLIQrdEffectivity_var& option, ZOLGYRError& error) override;
    void GetOptions(ZOLListValZOLIQrdEffectivity_var& options) const override;
    int GetMandatory() const override { return static_cast<int>(Row().mandatory); }
    void SetMandatory(int mandatory, ZOLGYRError& error) override;
    void GetDefaultOptions(ZOLListValZOLIQrdEffectivity_var& options) const override;
    void SetDefaultOptions(const ZOLListValZOLIQrdEffectivity_var& options, ZOLGYRError& error) override;
    int GetDefaultMode() const override { return static_cast<int>(Row().defaultMode); }
    void SetDefaultMode(int mode, ZOLGYRError& error) override;
    ZOLUnicodeString GetOwner() const override { return Row().owner; }
    void SetOwner(const ZOLUnicodeString& owner, ZOLGYRError& error) override;
    ZOLUnicodeString GetOrganization() const override { return Row().organization; }
    void SetOrganization(const ZOLUnicodeString& organization, ZOLGYRError& error) override;

private:
    bool MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const override;
    // Ids of the living default options, in order.
    std::vector<std::int64_t> DefaultIds(ItemContent& content) const;
};

} // namespace trellis
