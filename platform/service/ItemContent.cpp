#include "service/ItemContent.h"

#include "rules/language/RuleText.h"
#include "rules/language/RuleWriter.h"

#include <algorithm>

namespace trellis {

namespace {

template <class Row>
StoreQuery<Row> OfItem(const RecordOf<ConfigItemRow>& item) {
    return StoreQuery<Row>().Where(&Row::configItem, item->Id());
}

template <class Row>
void SortByPosition(std::vector<RecordOf<Row>>& records) {
    std::ranges::stable_sort(records, {}, [](const RecordOf<Row>& record) { return record->Row().position; });
}

template <class Key, class Row>
RecordOf<Row> FindLiving(const std::unordered_map<Key, RecordOf<Row>>& index, const Key& key) {
    const auto found = index.find(key);
    return found != index.end() && found->second->IsAlive() ? found->second : nullptr;
}

std::string RuleKey(std::int64_t type, const std::string& name) {
    return std::to_string(type) + name;
}

// The same for rows that join the same references. References as texts hold no line feed outside quotation marks, and
// inside they are closed, so that the joined text is unambiguous.
std::string RowKey(const std::string& text) {
    std::vector<OptionReference> references = RuleText::References(text);
    std::ranges::sort(references);
    std::string key;
    for (const OptionReference& reference : references)
        key += RuleWriter::Reference(reference).Bytes() + "\n";
    return key;
}

} // namespace

std::unique_ptr<ItemContent> ItemContent::Read(Workspace& workspace, RecordOf<ConfigItemRow> item,
                                               ZOLGYRError& error) {
    ZOLGYRError reading;
    std::unique_ptr<ItemContent> content(new ItemContent(item));
    content->_categories = workspace.Find(OfItem<CategoryRow>(item), reading);
    content->_effectivities = workspace.Find(OfItem<EffectivityRow>(item), reading);
    for (const auto& record : workspace.Find(OfItem<CategoryDefaultRow>(item), reading))
        content->Added(record);
    for (const auto& record : workspace.Find(OfItem<EffectivityOptionRow>(item), reading))
        content->Added(record);
    for (const auto& record : workspace.Find(OfItem<EffectivityAttributeRow>(item), reading))
        content->Added(record);
    content->_matrices = workspace.Find(OfItem<CompatibilityMatrixRow>(item), reading);
    content->_rules = workspace.Find(OfItem<ConfigRuleRow>(item), reading);
    for (const auto& record : workspace.Find(OfItem<MatrixColumnRow>(item), reading))
        content->Added(record);
    if (reading.GetCode() == 0)
        return content;
    error = reading;
    return nullptr;
}

template <class Row>
ItemContent::Records<Row> ItemContent::Group(Groups<Row>& groups, std::int64_t key) {
    const auto found = groups.find(key);
    return found == groups.end() ? Records<Row>() : Living(found->second);
}

std::vector<RecordOf<EffectivityRow>> ItemContent::OptionsOf(std::int64_t category) {
    MakeIndex();
    return Group(_optionsByCategory, category);
}

std::vector<RecordOf<CategoryDefaultRow>> ItemContent::DefaultsOf(std::int64_t category) {
    auto records = Group(_defaults, category);
    SortByPosition(records);
    return records;
}

std::vector<RecordOf<EffectivityOptionRow>> ItemContent::PackOptionsOf(std::int64_t effectivity) {
    auto records = Group(_packOptions, effectivity);
    SortByPosition(records);
    return records;
}

std::vector<RecordOf<EffectivityAttributeRow>> ItemContent::AttributesOf(std::int64_t effectivity) {
    auto records = Group(_attributes, effectivity);
    SortByPosition(records);
    return records;
}

std::vector<RecordOf<MatrixColumnRow>> ItemContent::ColumnsOf(std::int64_t matrix) {
    auto records = Group(_columns, matrix);
    SortByPosition(records);
    return records;
}

std::vector<RecordOf<ConfigRuleRow>> ItemContent::RowsOf(std::int64_t matrix) {
    MakeIndex();
    auto records = Group(_rowsByMatrix, matrix);
    SortByPosition(records);
    return records;
}

RecordOf<CategoryRow> ItemContent::CategoryOfName(const std::string& name) {
    MakeIndex();
    return FindLiving(_categoriesByName, name);
}

RecordOf<EffectivityRow> ItemContent::OptionOfName(const std::string& name) {
    MakeIndex();
    return FindLiving(_optionsByName, name);
}

RecordOf<CategoryRow> ItemContent::Category(std::int64_t id) {
    MakeIndex();
    return FindLiving(_categoriesById, id);
}

RecordOf<EffectivityRow> ItemContent::Effectivity(std::int64_t id) {
    MakeIndex();
    return FindLiving(_effectivitiesById, id);
}

RecordOf<ConfigRuleRow> ItemContent::RuleOfName(std::int64_t type, const std::string& name) {
    MakeIndex();
    return name.empty() ? nullptr : FindLiving(_rulesByName, RuleKey(type, name));
}

RecordOf<ConfigRuleRow> ItemContent::Rule(std::int64_t id) {
    MakeIndex();
    return FindLiving(_rulesById, id);
}

RecordOf<CompatibilityMatrixRow> ItemContent::MatrixOfName(const std::string& name) {
    MakeIndex();
    return FindLiving(_matricesByName, name);
}

RecordOf<CompatibilityMatrixRow> ItemContent::Matrix(std::int64_t id) {
    MakeIndex();
    return FindLiving(_matricesById, id);
}

RecordOf<ConfigRuleRow> ItemContent::RowLike(const std::string& text) {
    MakeIndex();
    return FindLiving(_rowsByContent, RowKey(text));
}

void ItemContent::Added(const RecordOf<CategoryRow>& record) {
    _categories.push_back(record);
    if (_indexed)
        Index(record);
}

void ItemContent::Added(const RecordOf<EffectivityRow>& record) {
    _effectivities.push_back(record);
    if (_indexed)
        Index(record);
}

void ItemContent::Added(const RecordOf<CategoryDefaultRow>& record) {
    _defaults[record->Row().category].push_back(record);
}

void ItemContent::Added(const RecordOf<EffectivityOptionRow>& record) {
    _packOptions[record->Row().effectivity].push_back(record);
}

void ItemContent::Added(const RecordOf<EffectivityAttributeRow>& record) {
    _attributes[record->Row().effectivity].push_back(record);
}

void ItemContent::Added(const RecordOf<ConfigRuleRow>& record) {
    _rules.push_back(record);
    if (_indexed)
        Index(record);
}

void ItemContent::Added(const RecordOf<CompatibilityMatrixRow>& record) {
    _matrices.push_back(record);
    if (_indexed)
        Index(record);
}

void ItemContent::Added(const RecordOf<MatrixColumnRow>& record) {
    _columns[record->Row().matrix].push_back(record);
}

void ItemContent::MakeIndex() {
    if (_indexed)
        return;
    _categoriesByName.clear();
    _optionsByName.clear();
    _categoriesById.clear();
    _effectivitiesById.clear();
    _optionsByCategory.clear();
    _rulesByName.clear();
    _rulesById.clear();
    _rowsByContent.clear();
    _matricesByName.clear();
    _matricesById.clear();
    _rowsByMatrix.clear();
    for (const auto& record : Categories())
        Index(record);
    for (const auto& record : Effectivities())
        Index(record);
    for (const auto& record : Rules())
        Index(record);
    for (const auto& record : Matrices())
        Index(record);
    _indexed = true;
}

// A holder that died gives its name to the new one.
void ItemContent::Index(const RecordOf<CategoryRow>& record) {
    _categoriesByName.insert_or_assign(record->Row().name, record);
    _categoriesById.insert_or_assign(record->Id(), record);
}

void ItemContent::Index(const RecordOf<EffectivityRow>& record) {
    _optionsByName.insert_or_assign(record->Row().optionName, record);
    _effectivitiesById.insert_or_assign(record->Id(), record);
    if (record->Row().category != 0)
        _optionsByCategory[record->Row().category].push_back(record);
}

void ItemContent::Index(const RecordOf<ConfigRuleRow>& record) {
    const ConfigRuleRow& row = record->Row();
    _rulesById.insert_or_assign(record->Id(), record);
    if (!row.name.empty())
        _rulesByName.insert_or_assign(RuleKey(row.type, row.name), record);
    if (row.type == ConfigRuleRow::MatrixRow)
        _rowsByContent.insert_or_assign(RowKey(row.text), record);
    if (row.matrix != 0)
        _rowsByMatrix[row.matrix].push_back(record);
}

void ItemContent::Index(const RecordOf<CompatibilityMatrixRow>& record) {
    _matricesByName.insert_or_assign(record->Row().name, record);
    _matricesById.insert_or_assign(record->Id(), record);
}

std::vector<std::shared_ptr<StoredObject>> ItemContent::AllRecords() const {
    std::vector<std::shared_ptr<StoredObject>> all(_categories.begin(), _categories.end());
    all.insert(all.end(), _effectivities.begin(), _effectivities.end());
    const auto append = [&all](const auto& groups) {
        for (const auto& [key, records] : groups)
            all.insert(all.end(), records.begin(), records.end());
    };
    append(_defaults);
    append(_packOptions);
    append(_attributes);
    all.insert(all.end(), _rules.begin(), _rules.end());
    all.insert(all.end(), _matrices.begin(), _matrices.end());
    append(_columns);
    return all;
}

} // namespace trellis
