#include "service/RuleRowEditor.h"

#include "rules/language/RuleText.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr int BadName = 60400;
constexpr int LongestName = 40;

void AddReferenceRows(ConfigurationMemory& memory, const StoredRecord<ConfigRuleRow>& rule) {
    std::vector<OptionReference> references = RuleText::References(rule.Row().text);
    std::ranges::sort(references);
    references.erase(std::unique(references.begin(), references.end()), references.end());
    for (const OptionReference& reference : references) {
        RuleReferenceRow row;
        row.configItem = rule.Row().configItem;
        row.rule = rule.Id();
        row.categoryName = reference.category;
        row.optionName = reference.option;
        memory.Store().Create(std::move(row));
    }
}

// The rows of what rules name. They are not kept in memory: only changes of rules ask for them.
bool FindReferences(ConfigurationMemory& memory, const std::vector<std::int64_t>& rules,
                    std::vector<RecordOf<RuleReferenceRow>>& references, ZOLGYRError& error) {
    ZOLGYRError reading;
    references =
        memory.Store().Find(StoreQuery<RuleReferenceRow>().WhereIn(&RuleReferenceRow::rule, rules), reading);
    if (reading.GetCode() != 0)
        error = reading;
    return reading.GetCode() == 0;
}

} // namespace

bool IsRuleName(const ZOLUnicodeString& name, ZOLGYRError& error) {
    if (name.GetLengthInChar() <= LongestName)
        return true;
    error.Set(BadName, {name});
    return false;
}

RecordOf<ConfigRuleRow> AddRuleRow(ConfigurationMemory& memory, ItemContent& content, ConfigRuleRow row) {
    row.configItem = content.Item()->Id();
    const auto record = memory.Store().Create(std::move(row));
    content.Added(record);
    AddReferenceRows(memory, *record);
    memory.End();
    return record;
}

RecordOf<CompatibilityMatrixRow> AddMatrixRow(ConfigurationMemory& memory, ItemContent& content,
                                              CompatibilityMatrixRow row) {
    row.configItem = content.Item()->Id();
    const auto record = memory.Store().Create(std::move(row));
    content.Added(record);
    memory.End();
    return record;
}

void SetReferenceRows(ConfigurationMemory& memory, const StoredRecord<ConfigRuleRow>& rule,
                      ZOLGYRError& error) {
    std::vector<RecordOf<RuleReferenceRow>> references;
    if (!FindReferences(memory, {rule.Id()}, references, error))
        return;
    for (const auto& reference : references)
        memory.Store().Remove(*reference, error);
    AddReferenceRows(memory, rule);
    memory.End();
}

void SetColumnRows(ConfigurationMemory& memory, ItemContent& content, std::int64_t matrix,
                   const std::vector<std::int64_t>& categories, ZOLGYRError& error) {
    for (const auto& column : content.ColumnsOf(matrix))
        memory.Store().Remove(*column, error);
    std::int64_t position = 0;
    for (const std::int64_t category : categories) {
        MatrixColumnRow row;
        row.configItem = content.Item()->Id();
        row.matrix = matrix;
        row.position = ++position;
        row.category = category;
        content.Added(memory.Store().Create(std::move(row)));
    }
    memory.End();
}

void PutIntoMatrix(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                   const RecordOf<ConfigRuleRow>& rule, std::int64_t matrix, ZOLGYRError& error) {
    ItemContent* content = memory.Content(dictionary, error);
    if (!content)
        return;
    const auto rows = content->RowsOf(matrix);
    rule->Change(&ConfigRuleRow::position, rows.empty() ? 1 : rows.back()->Row().position + 1, error);
    rule->Change(&ConfigRuleRow::matrix, matrix, error);
    content->IndexIsStale();
    memory.End();
}

void RemoveRuleRows(ConfigurationMemory& memory, const std::vector<RecordOf<ConfigRuleRow>>& rules,
                    ZOLGYRError& error) {
    std::vector<std::int64_t> ids;
    for (const auto& rule : rules)
        ids.push_back(rule->Id());
    std::vector<RecordOf<RuleReferenceRow>> references;
    if (!FindReferences(memory, ids, references, error))
        return;
    for (const auto& reference : references)
        memory.Store().Remove(*reference, error);
    for (const auto& rule : rules)
        memory.Store().Remove(*rule, error);
    memory.End();
}

void RemoveMatrixRows(ConfigurationMemory& memory, ItemContent& content,
                      const RecordOf<CompatibilityMatrixRow>& matrix, ZOLGYRError& error) {
    RemoveRuleRows(memory, content.RowsOf(matrix->Id()), error);
    for (const auto& column : content.ColumnsOf(matrix->Id()))
        memory.Store().Remove(*column, error);
    memory.Store().Remove(*matrix, error);
    memory.End();
}

} // namespace trellis
