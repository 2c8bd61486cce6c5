#include "service/DictionaryEditor.h"

#include "service/DictionaryRights.h"
#include "service/ItemEditor.h"
#include "service/StoredCategory.h"
#include "service/StoredEffectivity.h"
#include "site/ZOLIQrdSCManager.h"
#include "values/FailureTrace.h"

namespace trellis {

namespace {

constexpr int OptionExists = 50073;
constexpr int CategoryExists = 50074;
constexpr int ForeignCategory = 60401;
constexpr int NoSuchObject = 20904;

void SetMissing(const StoredObject& object, ZOLGYRError& error) {
    error.Set(NoSuchObject, {ZOLUnicodeString(object.DisplayName())});
}

} // namespace

void DictionaryEditor::GetCategories(const RecordOf<ConfigItemRow>& dictionary,
                                     ZOLListValZOLIQrdCategory_var& categories) {
    categories.RemoveAll();
    FailureTrace trace("DictionaryEditor::GetCategories");
    ItemContent* content = DictionaryContent(_memory, dictionary, trace);
    if (!content)
        return;
    for (const auto& category : content->Categories())
        categories.Append(_memory.Handle(category, dictionary));
}

void DictionaryEditor::GetOptions(const RecordOf<ConfigItemRow>& dictionary,
                                  ZOLListValZOLQRDCfgEffectivity& options, ZOLGYRError& error) {
    options.RemoveAll();
    ItemContent* content = DictionaryContent(_memory, dictionary, error);
    if (!content)
        return;
    for (const auto& option : content->Effectivities())
        options.Append(ZOLQRDCfgEffectivity(_memory.Handle(option, dictionary)));
}

ZOLIQrdCategory_var DictionaryEditor::AddCategory(const RecordOf<ConfigItemRow>& dictionary,
                                                  const ZOLUnicodeString& name,
                                                  const ZOLUnicodeString& description, int exclusivity,
                                                  int mandatory, ZOLGYRError& error) {
    ItemContent* content = DictionaryContent(_memory, dictionary, error);
    if (!content)
        return nullptr;
    if (const auto holder = content->CategoryOfName(name.Bytes())) {
        error.Set(CategoryExists);
        return _memory.Handle(holder, dictionary);
    }
    if (!IsDictionaryName(name, error) || !MayChangeDictionary(_memory, dictionary, error))
        return nullptr;
    const ZOLIQrdPEPerson_var person = GetSecurityManager()->GetCurrentPerson();
    CategoryRow row;
    row.name = name.Bytes();
    row.description = description.Bytes();
    row.exclusivity = exclusivity;
    row.mandatory = mandatory;
    row.owner = person->GetName().Bytes();
    row.organization = person->GetRole()->GetOrganization()->GetName().Bytes();
    return _memory.Handle(AddCategoryRow(_memory, *content, std::move(row)), dictionary);
}

ZOLIQrdEffectivity_var DictionaryEditor::AddOption(const RecordOf<ConfigItemRow>& dictionary,
                                                   const ZOLIQrdCategory_var& category,
                                                   const ZOLUnicodeString& name,
                                                   const ZOLUnicodeString& description, ZOLGYRError& error) {
    const auto* stored = dynamic_cast<const StoredCategory*>(category.Get());
    ItemContent* content = stored ? DictionaryContent(_memory, dictionary, error) : nullptr;
    if (!content)
        return nullptr;
    if (stored->Record()->Row().configItem != dictionary->Id()) {
        error.Set(ForeignCategory, {stored->GetName()});
        return nullptr;
    }
    const auto record = content->Category(stored->Record()->Id());
    if (!record) {
        SetMissing(*stored->Record(), error);
        return nullptr;
    }
    if (content->OptionOfName(name.Bytes())) {
        error.Set(OptionExists);
        return nullptr;
    }
    if (!IsDictionaryName(name, error) || !MayChangeCategory(_memory, dictionary, record->Row(), error))
        return nullptr;
    return _memory.Handle(AddOptionRow(_memory, *content, record->Row(), name.Bytes(), description.Bytes()),
                          dictionary);
}

void DictionaryEditor::RemoveCategory(const ZOLIQrdCategory_var& category, ZOLGYRError& error) {
    const auto* stored = dynamic_cast<const StoredCategory*>(category.Get());
    ItemContent* content = stored ? DictionaryContent(_memory, stored->Item(), error) : nullptr;
    if (!content)
        return;
    const auto record = content->Category(stored->Record()->Id());
    if (!record)
        SetMissing(*stored->Record(), error);
    else if (MayChangeCategory(_memory, stored->Item(), record->Row(), error))
        RemoveCategoryRows(_memory, *content, record, error);
}

void DictionaryEditor::RemoveOption(const ZOLIQrdEffectivity_var& option, ZOLGYRError& error) {
    const auto* stored = dynamic_cast<const StoredEffectivity*>(option.Get());
    ItemContent* content = stored ? DictionaryContent(_memory, stored->Item(), error) : nullptr;
    if (!content)
        return;
    const auto record = content->Effectivity(stored->Record()->Id());
    if (!record)
        SetMissing(*stored->Record(), error);
    else if (MayChangeEffectivity(_memory, stored->Item(), record->Row(), error))
        RemoveEffectivityRows(_memory, *content, record, error);
}

} // namespace trellis
