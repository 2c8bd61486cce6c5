#include "service/StoredMatrix.h"

#include "service/DictionaryRights.h"
#include "service/ItemEditor.h"
#include "service/RuleRowEditor.h"
#include "service/StoredCategory.h"
#include "service/StoredRule.h"
#include "values/FailureTrace.h"

#include <algorithm>

namespace trellis {

bool StoredMatrix::MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const {
    return MayChangeMatrix(memory, Item(), Row(), error);
}

void StoredMatrix::SetName(const ZOLUnicodeString& name, ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    if (!IsDictionaryName(name, error) || !SetMember(&CompatibilityMatrixRow::name, name.Bytes(), error) ||
        !memory)
        return;
    if (ItemContent* content = memory->Content(Item(), error))
        content->IndexIsStale();
}

void StoredMatrix::SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) {
    SetMember(&CompatibilityMatrixRow::description, description.Bytes(), error);
}

void StoredMatrix::SetOwner(const ZOLUnicodeString& owner, ZOLGYRError& error) {
    SetMember(&CompatibilityMatrixRow::owner, owner.Bytes(), error);
}

void StoredMatrix::SetOrganization(const ZOLUnicodeString& organization, ZOLGYRError& error) {
    SetMember(&CompatibilityMatrixRow::organization, organization.Bytes(), error);
}

std::vector<std::int64_t> StoredMatrix::CategoryIds(ItemContent& content) const {
    std::vector<std::int64_t> ids;
    for (const auto& column : content.ColumnsOf(Record()->Id()))
        if (content.Category(column->Row().category))
            ids.push_back(column->Row().category);
    return ids;
}

void StoredMatrix::SetCategories(const ZOLListValZOLIQrdCategory_var& categories, ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    if (!memory || !Record()->IsAlive()) {
        RefuseDead(*Record(), error);
        return;
    }
    ItemContent* content = memory->Content(Item(), error);
    if (!content)
        return;
    std::vector<std::int64_t> wanted;
    for (const ZOLIQrdCategory_var& category : categories) {
        const auto* stored = dynamic_cast<const StoredCategory*>(category.Get());
        const auto record = stored ? content->Category(stored->Record()->Id()) : nullptr;
        if (record && std::ranges::find(wanted, record->Id()) == wanted.end())
            wanted.push_back(record->Id());
    }
    if (wanted != CategoryIds(*content) && MayChange(*memory, error))
        SetColumnRows(*memory, *content, Record()->Id(), wanted, error);
}

void StoredMatrix::GetCategories(ZOLListValZOLIQrdCategory_var& categories) const {
    categories.RemoveAll();
    FailureTrace trace("ZOLIQrdCompatibilityMatrix::GetCategories");
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    ItemContent* content = memory ? memory->Content(Item(), trace) : nullptr;
    if (!content)
        return;
    for (const std::int64_t id : CategoryIds(*content))
        categories.Append(memory->Handle(content->Category(id), Item()));
}

void StoredMatrix::GetRules(ZOLListValZOLIQrdConfigRule_var& rules) const {
    rules.RemoveAll();
    FailureTrace trace("ZOLIQrdCompatibilityMatrix::GetRules");
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    ItemContent* content = memory ? memory->Content(Item(), trace) : nullptr;
    if (!content)
        return;
    for (const auto& row : content->RowsOf(Record()->Id()))
        rules.Append(memory->Handle(row, Item()));
}

RecordOf<ConfigRuleRow> StoredMatrix::RowToMove(ConfigurationMemory& memory,
                                                const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error) const {
    if (!Record()->IsAlive()) {
        RefuseDead(*Record(), error);
        return nullptr;
    }
    const auto* stored = dynamic_cast<const StoredRule*>(rule.Get());
    ItemContent* content = stored ? memory.Content(Item(), error) : nullptr;
    const RecordOf<ConfigRuleRow> record = content ? content->Rule(stored->Record()->Id()) : nullptr;
    if (!record || record->Row().type != ConfigRuleRow::MatrixRow || !MayChange(memory, error))
        return nullptr;
    return record;
}

void StoredMatrix::AddRule(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    const RecordOf<ConfigRuleRow> record = memory ? RowToMove(*memory, rule, error) : nullptr;
    if (record && record->Row().matrix != Record()->Id())
        PutIntoMatrix(*memory, Item(), record, Record()->Id(), error);
}

void StoredMatrix::RemoveRule(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    const RecordOf<ConfigRuleRow> record = memory ? RowToMove(*memory, rule, error) : nullptr;
    if (record && record->Row().matrix == Record()->Id())
        PutIntoMatrix(*memory, Item(), record, 0, error);
}

} // namespace trellis
