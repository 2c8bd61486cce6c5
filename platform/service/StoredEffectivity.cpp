#include "service/StoredEffectivity.h"

#include "service/DictionaryRights.h"
#include "service/EffectivityTerm.h"
#include "service/ItemEditor.h"
#include "values/FailureTrace.h"

#include <algorithm>

namespace trellis {

bool StoredEffectivity::MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const {
    return MayChangeEffectivity(memory, Item(), Row(), error);
}

void StoredEffectivity::SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) {
    SetMember(&EffectivityRow::description, description.Bytes(), error);
}

void StoredEffectivity::SetUsed(int used, ZOLGYRError& error) {
    SetMember(&EffectivityRow::used, std::int64_t{used != 0}, error);
}

void StoredEffectivity::SetOption(const ZOLUnicodeString& name, ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    if (!IsDictionaryName(name, error) || !SetMember(&EffectivityRow::optionName, name.Bytes(), error) ||
        !memory)
        return;
    if (ItemContent* content = memory->Content(Item(), error))
        content->IndexIsStale();
}

void StoredEffectivity::SetCategory(const ZOLUnicodeString& category, ZOLGYRError& error) {
    SetMember(&EffectivityRow::categoryName, category.Bytes(), error);
}

void StoredEffectivity::GetPackOptions(ZOLListValZOLUnicodeString& options) const {
    options.RemoveAll();
    FailureTrace trace("ZOLIQrdEffectivity::GetPackOptions");
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    ItemContent* content = memory ? memory->Content(Item(), trace) : nullptr;
    if (!content)
        return;
    for (const auto& option : content->PackOptionsOf(Record()->Id()))
        options.Append(ZOLUnicodeString(option->Row().optionName));
}

void StoredEffectivity::SetPackOptions(const ZOLListValZOLUnicodeString& options, ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    if (!memory || !Record()->IsAlive()) {
        RefuseDead(*Record(), error);
        return;
    }
    ZOLListValZOLUnicodeString present;
    GetPackOptions(present);
    if (std::ranges::equal(present, options) || !MayChange(*memory, error))
        return;
    if (ItemContent* content = memory->Content(Item(), error))
        SetPackOptionRows(*memory, *content, Record()->Id(), options, error);
}

ZOLQRDCfgEffectivity StoredEffectivity::GetTerm() const {
    const EffectivityRow& row = Row();
    ZOLListValZOLUnicodeString options;
    if (ZOLQRDCfgEffectivityType::IsPackKind(row.type))
        GetPackOptions(options);
    ZOLQRDCfgEffectivity term = TermOfRow(row, options);

    FailureTrace trace("ZOLIQrdEffectivity::GetTerm");
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    ItemContent* content = memory ? memory->Content(Item(), trace) : nullptr;
    if (!content)
        return term;
    ZOLListValZOLUnicodeString names;
    ZOLListValZOLUnicodeString values;
    for (const auto& attribute : content->AttributesOf(row.id)) {
        names.Append(ZOLUnicodeString(attribute->Row().name));
        values.Append(ZOLUnicodeString(attribute->Row().value));
    }
    term.SetAttrList(names, values);
    return term;
}

} // namespace trellis

ZOLQRDCfgEffectivity::ZOLQRDCfgEffectivity(const ZOLVar<ZOLIQrdEffectivity>& stored) {
    if (stored)
        *this = stored->GetTerm();
}
