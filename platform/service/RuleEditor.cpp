#include "service/RuleEditor.h"

#include "rules/language/RuleText.h"
#include "service/DictionaryEditor.h"
#include "service/DictionaryRights.h"
#include "service/ItemEditor.h"
#include "service/RuleRowEditor.h"
#include "service/StoredMatrix.h"
#include "service/StoredRule.h"
#include "site/ZOLIQrdSCManager.h"
#include "values/FailureTrace.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr int RuleExists = 50075;
constexpr int MatrixExists = 50076;
constexpr int RowExists = 50082;
constexpr int NoSuchObject = 20904;

void SetMissing(const StoredObject& object, ZOLGYRError& error) {
    error.Set(NoSuchObject, {ZOLUnicodeString(object.DisplayName())});
}

// What is made belongs to the current user.
template <class Row>
void SetOwner(Row& row) {
    const ZOLIQrdPEPerson_var person = GetSecurityManager()->GetCurrentPerson();
    row.owner = person->GetName().Bytes();
    row.organization = person->GetRole()->GetOrganization()->GetName().Bytes();
}

} // namespace

void RuleEditor::GetRules(const RecordOf<ConfigItemRow>& dictionary, ZOLListValZOLIQrdConfigRule_var& rules) {
    rules.RemoveAll();
    FailureTrace trace("RuleEditor::GetRules");
    ItemContent* content = DictionaryContent(_memory, dictionary, trace);
    if (!content)
        return;
    for (const auto& rule : content->Rules())
        rules.Append(_memory.Handle(rule, dictionary));
}

void RuleEditor::GetMatrices(const RecordOf<ConfigItemRow>& dictionary,
                             ZOLListValZOLIQrdCompatibilityMatrix_var& matrices) {
    matrices.RemoveAll();
    FailureTrace trace("RuleEditor::GetMatrices");
    ItemContent* content = DictionaryContent(_memory, dictionary, trace);
    if (!content)
        return;
    for (const auto& matrix : content->Matrices())
        matrices.Append(_memory.Handle(matrix, dictionary));
}

ZOLIQrdConfigRule_var RuleEditor::AddRule(const RecordOf<ConfigItemRow>& dictionary,
                                          const ZOLUnicodeString& name, const ZOLUnicodeString& text,
                                          ZOLConfigRuleType type, const ZOLUnicodeString& description,
                                          bool judgesName, ZOLGYRError& error) {
    ItemContent* content = DictionaryContent(_memory, dictionary, error);
    if (!content)
        return nullptr;
    if (const auto holder = judgesName ? content->RuleOfName(type, name.Bytes()) : nullptr) {
        error.Set(RuleExists);
        return _memory.Handle(holder, dictionary);
    }
    ConfigRuleRow row;
    row.type = type;
    row.name = name.Bytes();
    row.text = RuleText::Translate(text, RuleWords::Catalogue(), RuleWords::Neutral()).Bytes();
    row.description = description.Bytes();
    if (judgesName && type == ZOLCompatibilityRuleType && content->RowLike(row.text)) {
        error.Set(RowExists);
        return nullptr;
    }
    if (!IsRuleName(name, error) || !MayChangeRules(_memory, dictionary, error))
        return nullptr;
    SetOwner(row);
    return _memory.Handle(AddRuleRow(_memory, *content, std::move(row)), dictionary);
}

void RuleEditor::RemoveRule(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error) {
    const auto* stored = dynamic_cast<const StoredRule*>(rule.Get());
    ItemContent* content = stored ? DictionaryContent(_memory, stored->Item(), error) : nullptr;
    if (!content)
        return;
    const auto record = content->Rule(stored->Record()->Id());
    if (!record)
        SetMissing(*stored->Record(), error);
    else if (MayChangeRule(_memory, stored->Item(), record->Row(), error))
        RemoveRuleRows(_memory, {record}, error);
}

ZOLIQrdCompatibilityMatrix_var RuleEditor::AddMatrix(const RecordOf<ConfigItemRow>& dictionary,
                                                     const ZOLUnicodeString& name,
                                                     const ZOLUnicodeString& description,
                                                     ZOLGYRError& error) {
    ItemContent* content = DictionaryContent(_memory, dictionary, error);
    if (!content)
        return nullptr;
    if (const auto holder = content->MatrixOfName(name.Bytes())) {
        error.Set(MatrixExists);
        return _memory.Handle(holder, dictionary);
    }
    if (!IsDictionaryName(name, error) || !MayChangeRules(_memory, dictionary, error))
        return nullptr;
    CompatibilityMatrixRow row;
    row.name = name.Bytes();
    row.description = description.Bytes();
    SetOwner(row);
    return _memory.Handle(AddMatrixRow(_memory, *content, std::move(row)), dictionary);
}

void RuleEditor::RemoveMatrix(const ZOLIQrdCompatibilityMatrix_var& matrix, ZOLGYRError& error) {
    const auto* stored = dynamic_cast<const StoredMatrix*>(matrix.Get());
    ItemContent* content = stored ? DictionaryContent(_memory, stored->Item(), error) : nullptr;
    if (!content)
        return;
    const auto record = content->Matrix(stored->Record()->Id());
    if (!record)
        SetMissing(*stored->Record(), error);
    else if (MayChangeMatrix(_memory, stored->Item(), record->Row(), error))
        RemoveMatrixRows(_memory, *content, record, error);
}

void RuleEditor::GetRulesNaming(std::string RuleReferenceRow::*part, const std::string& name,
                                ZOLListValZOLIQrdConfigRule_var& rules) {
    rules.RemoveAll();
    FailureTrace trace("RuleEditor::GetRulesNaming");
    std::vector<std::int64_t> ids;
    for (const auto& reference :
         _memory.Store().Find(StoreQuery<RuleReferenceRow>().Where(part, name), trace))
        ids.push_back(reference->Row().rule);
    std::ranges::sort(ids);
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    for (const auto& rule : _memory.Store().GetAll<ConfigRuleRow>(ids, trace))
        if (const auto item = rule ? _memory.ItemOfId(rule->Row().configItem, trace) : nullptr)
            rules.Append(_memory.Handle(rule, item));
    _memory.End();
}

} // namespace trellis
