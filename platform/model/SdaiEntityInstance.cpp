#include "model/SdaiEntityInstance.h"

SdaiEntityInstance::~SdaiEntityInstance() = default;

ZOLUnicodeString SdaiEntityInstance::FindEntityInstanceModel() const {
    return "SdaiProductModel";
}

SdaiEntityInstance* SdaiEntityInstance::GetEntity(const ZOLUnicodeString&) const {
    return nullptr;
}

std::vector<SdaiEntityInstance*> SdaiEntityInstance::GetAggregate(const ZOLUnicodeString&) const {
    return {};
}
