#include "service/ItemContent.h"

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

void ItemContent::MakeIndex() {
    if (_indexed)
        return;
    _categoriesByName.clear();
    _optionsByName.clear();
    _categoriesById.clear();
    _effectivitiesById.clear();
    _optionsByCategory.clear();
    for (const auto& record : Categories())
        Index(record);
    for (const auto& record : Effectivities())
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
    return all;
}

} // namespace trellis
