#include "service/ZOLQRDCfgManager.h"

#include "model/ObjectIdentifier.h"
#include "model/ZOLDMInstance.h"
#include "service/DictionaryEditor.h"
#include "service/PartConfiguration.h"
#include "service/RuleEditor.h"
#include "service/StoredConfigItem.h"
#include "values/FailureTrace.h"

using trellis::ConfigItemRow;
using trellis::ConfigurationMemory;
using trellis::DictionaryEditor;
using trellis::PartConfiguration;
using trellis::RecordOf;
using trellis::RuleEditor;
using trellis::StoredObject;

namespace {

std::string TextOf(const _SEQUENCE_octet& identifier) {
    const trellis::ObjectIdentifier valid(identifier);
    return valid.IsEmpty() ? identifier.Text() : valid.Text();
}

std::string TextOf(const ZOLDMInstance& part) {
    return TextOf(part.GetUUId());
}

RecordOf<ConfigItemRow> RecordOfItem(const ZOLIQrdConfigItem_var& item) {
    const auto* stored = dynamic_cast<const trellis::StoredConfigItem*>(item.Get());
    return stored ? stored->Record() : nullptr;
}

} // namespace

ZOLQRDCfgManager::ZOLQRDCfgManager(std::shared_ptr<ConfigurationMemory> memory)
    : _memory(std::move(memory)) {}

ZOLQRDCfgManager::~ZOLQRDCfgManager() = default;

ZOLQRDCfgManager* ZOLQRDCfgManager::CurrentCfgManager(ZOLGYRError& error) {
    return ConfigurationMemory::CurrentManager(error);
}

void ZOLQRDCfgManager::Save(ZOLGYRError& error) {
    ZOLGYRError saving;
    _memory->Store().Save(saving);
    _memory->End();
    if (error.GetCode() == 0 && saving.GetCode() != 0)
        error = saving;
}

void ZOLQRDCfgManager::DiscardUnsaved(const ZOLIQrdConfigItem_var& item, ZOLGYRError& error) {
    const RecordOf<ConfigItemRow> record = RecordOfItem(item);
    trellis::ItemContent* content = record ? _memory->Content(record, error) : nullptr;
    if (!content)
        return;
    std::vector<std::shared_ptr<StoredObject>> objects = _memory->RecordsOf(*content);
    objects.push_back(record);
    for (const std::shared_ptr<StoredObject>& object : objects)
        if (object->GetState() != StoredObject::State::Clean)
            _memory->Store().DiscardUnsaved(*object, error);
    _memory->Begin();
}

void ZOLQRDCfgManager::GetConfigurableObject(const ZOLDMInstance& part, ZOLQRDConfigurableObject& object,
                                             ZOLGYRError& error) const {
    GetConfigurableObject(part.GetUUId(), object, error);
}

void ZOLQRDCfgManager::GetConfigurableObject(const _SEQUENCE_octet& part, ZOLQRDConfigurableObject& object,
                                             ZOLGYRError& error) const {
    // Lists ask this once per row, so the usual answer comes before the identifier is brought into its one form.
    if (_memory->HasPartAtHand(part.Text()) || PartConfiguration(*_memory).Find(TextOf(part), error))
        object = ZOLQRDConfigurableObject(part);
}

void ZOLQRDCfgManager::SetConfigurable(const ZOLDMInstance& part, ZOLGYRError& error) {
    PartConfiguration(*_memory).Set(TextOf(part), error);
}

void ZOLQRDCfgManager::ModifyEffTypeForPart(const ZOLDMInstance& part, long mask, ZOLGYRError& error) {
    PartConfiguration(*_memory).SetTypeMask(TextOf(part), mask, error);
}

void ZOLQRDCfgManager::AddDictionary(const ZOLDMInstance& part, ZOLGYRError& error) {
    AddDictionary(part.GetUUId(), error);
}

void ZOLQRDCfgManager::AddDictionary(const _SEQUENCE_octet& part, ZOLGYRError& error) {
    PartConfiguration(*_memory).AddDictionary(TextOf(part), error);
}

void ZOLQRDCfgManager::GetDictionary(const _SEQUENCE_octet& part, ZOLIQrdConfigItem_var& dictionary) const {
    dictionary =
        _memory->Handle(PartConfiguration(*_memory).FindItem(TextOf(part), ConfigItemRow::Dictionary));
}

ZOLIQrdConfigItem_var ZOLQRDCfgManager::GetCorporateDictionary() const {
    return _memory->Handle(_memory->Corporate());
}

void ZOLQRDCfgManager::DeleteDictionary(const ZOLDMInstance& part, ZOLGYRError& error) {
    PartConfiguration(*_memory).DeleteDictionary(TextOf(part), error);
}

void ZOLQRDCfgManager::UnloadDictionary(const ZOLIQrdConfigItem_var& dictionary, int) {
    if (const RecordOf<ConfigItemRow> record = RecordOfItem(dictionary))
        _memory->Unload(record);
}

void ZOLQRDCfgManager::GetCategoriesFromDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                   ZOLListValZOLIQrdCategory_var& categories) const {
    DictionaryEditor(*_memory).GetCategories(RecordOfItem(dictionary), categories);
}

void ZOLQRDCfgManager::GetOptionsFromDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                ZOLListValZOLQRDCfgEffectivity& options) const {
    trellis::FailureTrace trace("ZOLQRDCfgManager::GetOptionsFromDictionary");
    DictionaryEditor(*_memory).GetOptions(RecordOfItem(dictionary), options, trace);
}

ZOLIQrdCategory_var ZOLQRDCfgManager::AddCategoryToDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                              const ZOLUnicodeString& name,
                                                              const ZOLUnicodeString& description,
                                                              int exclusivity, int mandatory,
                                                              ZOLGYRError& error) {
    return DictionaryEditor(*_memory).AddCategory(RecordOfItem(dictionary), name, description, exclusivity,
                                                  mandatory, error);
}

ZOLIQrdEffectivity_var ZOLQRDCfgManager::AddOptionToDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                               const ZOLIQrdCategory_var& category,
                                                               const ZOLUnicodeString& name,
                                                               const ZOLUnicodeString& description,
                                                               ZOLGYRError& error) {
    return DictionaryEditor(*_memory).AddOption(RecordOfItem(dictionary), category, name, description, error);
}

void ZOLQRDCfgManager::RemoveCategoryFromDictionary(const ZOLIQrdCategory_var& category, ZOLGYRError& error) {
    DictionaryEditor(*_memory).RemoveCategory(category, error);
}

void ZOLQRDCfgManager::RemoveOptionFromDictionary(const ZOLIQrdEffectivity_var& option, ZOLGYRError& error) {
    DictionaryEditor(*_memory).RemoveOption(option, error);
}

ZOLIQrdConfigRule_var ZOLQRDCfgManager::AddConfigRuleToDictionary(
    const ZOLIQrdConfigItem_var& dictionary, const ZOLUnicodeString& name, const ZOLUnicodeString& text,
    ZOLConfigRuleType type, const ZOLUnicodeString& description, ZOLGYRError& error) {
    return RuleEditor(*_memory).AddRule(RecordOfItem(dictionary), name, text, type, description, true, error);
}

ZOLIQrdConfigRule_var ZOLQRDCfgManager::CreateConfigRuleToDictionary(
    const ZOLIQrdConfigItem_var& dictionary, const ZOLUnicodeString& name, const ZOLUnicodeString& text,
    ZOLConfigRuleType type, const ZOLUnicodeString& description, ZOLGYRError& error) {
    return RuleEditor(*_memory).AddRule(RecordOfItem(dictionary), name, text, type, description, false,
                                        error);
}

void ZOLQRDCfgManager::RemoveConfigRuleFromDictionary(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error) {
    RuleEditor(*_memory).RemoveRule(rule, error);
}

void ZOLQRDCfgManager::GetConfigRulesFromDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                    ZOLListValZOLIQrdConfigRule_var& rules, int) const {
    RuleEditor(*_memory).GetRules(RecordOfItem(dictionary), rules);
}

ZOLIQrdCompatibilityMatrix_var ZOLQRDCfgManager::AddCompatibilityMatrixToDictionary(
    const ZOLIQrdConfigItem_var& dictionary, const ZOLUnicodeString& name,
    const ZOLUnicodeString& description, ZOLGYRError& error) {
    return RuleEditor(*_memory).AddMatrix(RecordOfItem(dictionary), name, description, error);
}

void ZOLQRDCfgManager::RemoveCompatibilityMatrixFromDictionary(const ZOLIQrdCompatibilityMatrix_var& matrix,
                                                               ZOLGYRError& error) {
    RuleEditor(*_memory).RemoveMatrix(matrix, error);
}

void ZOLQRDCfgManager::GetCompatibilityMatricesFromDictionary(
    const ZOLIQrdConfigItem_var& dictionary, ZOLListValZOLIQrdCompatibilityMatrix_var& matrices) const {
    RuleEditor(*_memory).GetMatrices(RecordOfItem(dictionary), matrices);
}
