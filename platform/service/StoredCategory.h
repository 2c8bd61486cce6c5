#pragma once

#include "service/StoredHandle.h"
#include "service/ZOLIQrdCategory.h"

namespace trellis {

// StoredCategory: a category over its row and the rows of its defaults.
class StoredCategory final : public StoredHandle<ZOLIQrdCategory, CategoryRow> {
public:
    StoredCategory(std::weak_ptr<ConfigurationMemory> memory, RecordOf<CategoryRow> record,
                   RecordOf<ConfigItemRow> item);

    const RecordOf<ConfigItemRow>& Item() const { return _item; }

    ZOLIQrdConfigItem_var GetConfigItem() const override;
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
    ZOLUnicodeString GetLastModifierId() const override { return LastModifier(); }
    ZOLUnicodeString GetLastUpdateDate() const override { return LastUpdateDay(); }

private:
    bool MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const override;
    // Ids of the living default options, in order.
    std::vector<std::int64_t> DefaultIds(ItemContent& content) const;

    RecordOf<ConfigItemRow> _item;
};

} // namespace trellis
