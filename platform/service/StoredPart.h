#pragma once

#include "service/StoredHandle.h"

namespace trellis {

// StoredPart: what the handles of categories, effectivities, rules and matrices share: the dictionary or config item
// that they belong to, and who changed them last.
template <class Interface, class RowType>
class StoredPart : public StoredHandle<Interface, RowType> {
public:
    StoredPart(std::weak_ptr<ConfigurationMemory> memory, RecordOf<RowType> record,
               RecordOf<ConfigItemRow> item)
        : StoredHandle<Interface, RowType>(std::move(memory), std::move(record)), _item(std::move(item)) {}

    const RecordOf<ConfigItemRow>& Item() const { return _item; }

    ZOLIQrdConfigItem_var GetConfigItem() const override {
        const std::shared_ptr<ConfigurationMemory> memory = this->Memory();
        return memory ? memory->Handle(_item) : nullptr;
    }
    ZOLUnicodeString GetLastModifierId() const override { return this->LastModifier(); }
    ZOLUnicodeString GetLastUpdateDate() const override { return this->LastUpdateDay(); }

private:
    RecordOf<ConfigItemRow> _item;
};

} // namespace trellis
