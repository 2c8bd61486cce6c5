#include "service/StoredConfigItem.h"

#include "service/DictionaryRights.h"
#include "service/ItemEditor.h"
#include "service/StoredEffectivity.h"
#include "site/RightTable.h"
#include "values/FailureTrace.h"

namespace trellis {

namespace {

constexpr int IsADictionary = 60403;

} // namespace

bool StoredConfigItem::MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const {
    return RightTable::Permits("ChangeModifMode", memory.SiteOf(Row().designUuid), error);
}

void StoredConfigItem::GetEffectivities(ZOLListValZOLIQrdEffectivity_var& effectivities) const {
    effectivities.RemoveAll();
    FailureTrace trace("ZOLIQrdConfigItem::GetEffectivities");
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    ItemContent* content = memory ? memory->Content(Record(), trace) : nullptr;
    if (!content)
        return;
    for (const auto& effectivity : content->Effectivities())
        effectivities.Append(memory->Handle(effectivity, Record()));
}

ItemContent* StoredConfigItem::OwnContent(const std::shared_ptr<ConfigurationMemory>& memory,
                                          ZOLGYRError& error) const {
    if (Row().status == ConfigItemRow::Dictionary) {
        error.Set(IsADictionary);
        return nullptr;
    }
    if (!memory || !Record()->IsAlive()) {
        RefuseDead(*Record(), error);
        return nullptr;
    }
    return memory->Content(Record(), error);
}

ZOLIQrdEffectivity_var StoredConfigItem::AddEffectivity(const ZOLQRDCfgEffectivity& term,
                                                        ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    ItemContent* content = OwnContent(memory, error);
    return content ? memory->Handle(AddEffectivityRows(*memory, *content, term), Record()) : nullptr;
}

void StoredConfigItem::RemoveEffectivity(const ZOLIQrdEffectivity_var& effectivity, ZOLGYRError& error) {
    const auto* stored = dynamic_cast<const StoredEffectivity*>(effectivity.Get());
    if (!stored)
        return;
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    ItemContent* content = OwnContent(memory, error);
    const RecordOf<EffectivityRow> record = content ? content->Effectivity(stored->Record()->Id()) : nullptr;
    if (record)
        RemoveEffectivityRows(*memory, *content, record, error);
}

void StoredConfigItem::SetActionControl(int on, ZOLGYRError& error) {
    SetMember(&ConfigItemRow::actionControlled, std::int64_t{on != 0}, error);
}

} // namespace trellis
