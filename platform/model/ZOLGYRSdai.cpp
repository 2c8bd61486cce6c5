#include "model/ZOLGYRSdai.h"

#include "model/LinksUnderEdit.h"
#include "values/ZOLGYRError.h"

namespace {

constexpr int NotKnown = 20904;
constexpr int NotUnderEdit = 60241;

} // namespace

void ZOLGYRSdai::Convert(const SdaiEntityInstance* entity, ZOLDMInstance& instance, ZOLGYRError& error) {
    instance = entity ? entity->GetInstance() : ZOLDMInstance();
    if (!entity)
        error.Set(NotKnown);
}

SdaiEntityInstance* ZOLGYRSdai::GetParentPart(const SdaiEntityInstance* link, ZOLGYRError& error) {
    const auto* held = dynamic_cast<const SdaiAppInstance*>(link);
    SdaiEntityInstance* part = held ? trellis::LinksUnderEdit::Part(held->GetParent()) : nullptr;
    if (!part)
        error.Set(NotKnown);
    return part;
}

void ZOLGYRSdai::PutHiddenAttr(SdaiAppInstance* link, const char* name, double value, ZOLGYRError& error) {
    if (!link || !link->IsUnderEdit())
        return error.Set(NotUnderEdit);
    link->_hidden[name] = value;
}
