#include "service/ZOLQRDConfigurableObject.h"

#include "model/ObjectIdentifier.h"
#include "service/PartConfiguration.h"
#include "values/FailureTrace.h"

namespace {

ZOLIQrdConfigItem_var ItemOf(const _SEQUENCE_octet& part, const char* status) {
    trellis::FailureTrace trace("ZOLQRDConfigurableObject::ItemOf");
    const auto memory = part.length() > 0 ? trellis::ConfigurationMemory::Current(trace) : nullptr;
    if (!memory)
        return nullptr;
    return memory->Handle(
        trellis::PartConfiguration(*memory).FindItem(trellis::ObjectIdentifier(part).Text(), status));
}

} // namespace

ZOLIQrdConfigItem_var ZOLQRDConfigurableObject::GetDictionary() const {
    return ItemOf(_part, trellis::ConfigItemRow::Dictionary);
}

ZOLIQrdConfigItem_var ZOLQRDConfigurableObject::GetConfigItem() const {
    return ItemOf(_part, trellis::ConfigItemRow::OwnItem);
}
