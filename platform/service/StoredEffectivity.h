#pragma once

#include "service/StoredPart.h"
#include "service/ZOLIQrdEffectivity.h"

namespace trellis {

// StoredEffectivity: an option or effectivity over its row and, for a package, the rows of its options.
class StoredEffectivity final : public StoredPart<ZOLIQrdEffectivity, EffectivityRow> {
public:
    using StoredPart::StoredPart;

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
    ZOLQRDCfgEffectivity GetTerm() const override;

private:
    bool MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const override;
};

} // namespace trellis
