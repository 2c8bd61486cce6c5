#include "service/StoredCategory.h"

#include "service/DictionaryRights.h"
#include "service/ItemEditor.h"
#include "service/StoredEffectivity.h"
#include "values/FailureTrace.h"

namespace trellis {

bool StoredCategory::MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const {
    return MayChangeCategory(memory, Item(), Row(), error);
}

void StoredCategory::SetName(const ZOLUnicodeString& name, ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    if (!IsDictionaryName(name, error) || !SetMember(&CategoryRow::name, name.Bytes(), error) || !memory)
        return;
    if (ItemContent* content = memory->Content(Item(), error))
        content->IndexIsStale();
}

void StoredCategory::SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) {
    SetMember(&CategoryRow::description, description.Bytes(), error);
}

void StoredCategory::SetExclusivity(int exclusivity, ZOLGYRError& error) {
    SetMember(&CategoryRow::exclusivity, std::int64_t{exclusivity}, error);
}

void StoredCategory::SetMandatory(int mandatory, ZOLGYRError& error) {
    SetMember(&CategoryRow::mandatory, std::int64_t{mandatory}, error);
}

void StoredCategory::SetDefaultMode(int mode, ZOLGYRError& error) {
    SetMember(&CategoryRow::defaultMode, std::int64_t{mode}, error);
}

void StoredCategory::SetOwner(const ZOLUnicodeString& owner, ZOLGYRError& error) {
    SetMember(&CategoryRow::owner, owner.Bytes(), error);
}

void StoredCategory::SetOrganization(const ZOLUnicodeString& organization, ZOLGYRError& error) {
    SetMember(&CategoryRow::organization, organization.Bytes(), error);
}

void StoredCategory::RemoveOption(const ZOLIQrdEffectivity_var& option, ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    const auto* stored = dynamic_cast<const StoredEffectivity*>(option.Get());
    if (!memory || !stored)
        return;
    ItemContent* content = memory->Content(Item(), error);
    const RecordOf<EffectivityRow> record = content ? content->Effectivity(stored->Record()->Id()) : nullptr;
    if (!record || record->Row().category != Record()->Id() || !MayChange(*memory, error))
        return;
    TakeOutOfCategory(*memory, *content, record, error);
}

void StoredCategory::GetOptions(ZOLListValZOLIQrdEffectivity_var& options) const {
    options.RemoveAll();
    FailureTrace trace("ZOLIQrdCategory::GetOptions");
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    ItemContent* content = memory ? memory->Content(Item(), trace) : nullptr;
    if (!content)
        return;
    for (const auto& option : content->OptionsOf(Record()->Id()))
        options.Append(memory->Handle(option, Item()));
}

std::vector<std::int64_t> StoredCategory::DefaultIds(ItemContent& content) const {
    std::vector<std::int64_t> ids;
    for (const auto& entry : content.DefaultsOf(Record()->Id()))
        if (content.Effectivity(entry->Row().option))
            ids.push_back(entry->Row().option);
    return ids;
}

void StoredCategory::GetDefaultOptions(ZOLListValZOLIQrdEffectivity_var& options) const {
    options.RemoveAll();
    FailureTrace trace("ZOLIQrdCategory::GetDefaultOptions");
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    ItemContent* content = memory ? memory->Content(Item(), trace) : nullptr;
    if (!content)
        return;
    for (const std::int64_t id : DefaultIds(*content))
        options.Append(memory->Handle(content->Effectivity(id), Item()));
}

void StoredCategory::SetDefaultOptions(const ZOLListValZOLIQrdEffectivity_var& options, ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    if (!memory || !Record()->IsAlive()) {
        RefuseDead(*Record(), error);
        return;
    }
    ItemContent* content = memory->Content(Item(), error);
    if (!content)
        return;
    std::vector<std::int64_t> wanted;
    for (const ZOLIQrdEffectivity_var& option : options) {
        const auto* stored = dynamic_cast<const StoredEffectivity*>(option.Get());
        const auto record = stored ? content->Effectivity(stored->Record()->Id()) : nullptr;
        if (record && record->Row().category == Record()->Id())
            wanted.push_back(record->Id());
    }
    if (wanted != DefaultIds(*content) && MayChange(*memory, error))
        SetDefaultRows(*memory, *content, Record()->Id(), wanted, error);
}

} // namespace trellis
