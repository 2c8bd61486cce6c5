#pragma once

#include "service/StoredHandle.h"
#include "service/ZOLIQrdConfigItem.h"

namespace trellis {

// StoredConfigItem: a dictionary or a part's own item over its row.
class StoredConfigItem final : public StoredHandle<ZOLIQrdConfigItem, ConfigItemRow> {
public:
    using StoredHandle::StoredHandle;

    _SEQUENCE_octet GetObjectId() const override { return _SEQUENCE_octet(Row().designUuid); }
    void GetEffectivities(ZOLListValZOLIQrdEffectivity_var& effectivities) const override;
    ZOLIQrdEffectivity_var AddEffectivity(const ZOLQRDCfgEffectivity& term, ZOLGYRError& error) override;
    void RemoveEffectivity(const ZOLIQrdEffectivity_var& effectivity, ZOLGYRError& error) override;
    int IsActionControlled() const override { return Row().actionControlled != 0; }
    void SetActionControl(int on, ZOLGYRError& error) override;
    int AcceptsParameters() const override { return !IsActionControlled(); }

private:
    bool MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const override;
    // The content of a part's own living item; null and a code for any other.
    ItemContent* OwnContent(const std::shared_ptr<ConfigurationMemory>& memory, ZOLGYRError& error) const;
};

} // namespace trellis
