#pragma once

#include "service/StoredHandle.h"
#include "service/ZOLIQrdEffectivity.h"

namespace trellis {

// StoredEffectivity: an option or effectivity over its row and, for a package, the rows of its options.
class StoredEffectivity final : public StoredHandle<ZOLIQrdEffectivity, EffectivityRow> {
public:
    StoredEffectivity(std::weak_ptr<ConfigurationMemory> memory, RecordOf<EffectivityRow> record,
                      RecordOf<ConfigItemRow> item);

    const RecordOf<ConfigItemRow>& Item() const { return _item; }

    ZOLIQrdConfigItem_var GetConfigItem() const override;
    ZOLUnicodeString GetDescription() const override { return Row().description; }
    void SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) override;
    int IsUsed() const override { return Row().used != 0; }
    void SetUsed(int used, ZOLGYRError& error) override;
    void SetOption(const ZOLUnicodeString& name, ZOLGYRError& error) override;
    ZOLUnicodeString GetOption() const override { return Row().optionName; }
    ZOLUnicodeString GetOptionId() const override { return Row().optionName; }
    ZOLUnicodeString GetCategory() const override { return Row().categoryName; }
    void SetCategory(const ZOLUnicodeString& category, ZOLGYRError& error) override;
    void GetPackOptions(ZOLListValZOLUnicodeString& options) const override;
    void SetPackOptions(const ZOLListValZOLUnicodeString& options, ZOLGYRError& error) override;
    ZOLUnicodeString GetLastModifierId() const override { return LastModifier(); }
    ZOLUnicodeString GetLastUpdateDate() const override { return LastUpdateDay(); }
    ZOLQRDCfgEffectivity GetTerm() const override;

private:
    bool MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const override;

    RecordOf<ConfigItemRow> _item;
};

} // namespace trellis
