#include "service/ItemEditor.h"

#include "service/RuleRowEditor.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr int BadName = 60400;
constexpr int DeadObject = 60301;
constexpr int NoDictionary = 60403;
constexpr int LongestName = 40;

template <class Row>
using Records = std::vector<RecordOf<Row>>;

template <class Row>
void RemoveAll(ConfigurationMemory& memory, const Records<Row>& records, ZOLGYRError& error) {
    for (const RecordOf<Row>& record : records)
        memory.Store().Remove(*record, error);
}

// The places of effectivities on links. Asked for before anything is removed, since the store may fail.
// Options of a dictionary lie on no link.
bool FindLinks(ConfigurationMemory& memory, const ItemContent& content,
               const Records<EffectivityRow>& effectivities, Records<LinkEffectivityRow>& links,
               ZOLGYRError& error) {
    if (content.Item()->Row().status == ConfigItemRow::Dictionary || effectivities.empty())
        return true;
    std::vector<std::int64_t> ids;
    for (const auto& effectivity : effectivities)
        ids.push_back(effectivity->Id());
    ZOLGYRError reading;
    links = memory.Store().Find(
        StoreQuery<LinkEffectivityRow>().WhereIn(&LinkEffectivityRow::effectivity, ids), reading);
    if (reading.GetCode() != 0)
        error = reading;
    return reading.GetCode() == 0;
}

// An effectivity with all that hangs on it in its item.
void RemoveOwnRows(ConfigurationMemory& memory, ItemContent& content,
                   const RecordOf<EffectivityRow>& effectivity, ZOLGYRError& error) {
    const std::int64_t id = effectivity->Id();
    for (const auto& entry : content.DefaultsOf(effectivity->Row().category))
        if (entry->Row().option == id)
            memory.Store().Remove(*entry, error);
    RemoveAll(memory, content.PackOptionsOf(id), error);
    RemoveAll(memory, content.AttributesOf(id), error);
    memory.Store().Remove(*effectivity, error);
}

std::string DayText(const ZOLQRDTime& day) {
    return day.GetFormattedDate().Bytes();
}

// Sets the text and number of a milestone from what a getter of the term gives.
template <class Getter>
void TakeMilestone(const ZOLQRDCfgEffectivity& term, Getter getter, std::string& program, std::string& id,
                   std::int64_t& offset) {
    ZOLUnicodeString programText;
    ZOLUnicodeString idText;
    int offsetNumber = 0;
    (term.*getter)(programText, idText, offsetNumber);
    program = programText.Bytes();
    id = idText.Bytes();
    offset = offsetNumber;
}

EffectivityRow RowOf(const ZOLQRDCfgEffectivity& term) {
    EffectivityRow row;
    row.type = term.GetType().Bytes();
    row.optionName = term.GetOptionName().Bytes();
    row.description = term.GetDescription().Bytes();
    int first = 0;
    int last = 0;
    term.GetRange(first, last);
    row.first = first;
    row.last = last;
    ZOLQRDTime start;
    ZOLQRDTime end;
    term.GetDate(start, end);
    row.startDate = DayText(start);
    row.endDate = DayText(end);
    TakeMilestone(term, &ZOLQRDCfgEffectivity::GetMilestoneStart, row.startProgram, row.startMilestone,
                  row.startOffset);
    TakeMilestone(term, &ZOLQRDCfgEffectivity::GetMilestoneEnd, row.endProgram, row.endMilestone,
                  row.endOffset);
    return row;
}

} // namespace

bool IsDictionaryName(const ZOLUnicodeString& name, ZOLGYRError& error) {
    if (!name.IsEmpty() && name.GetLengthInChar() <= LongestName)
        return true;
    error.Set(BadName, {name});
    return false;
}

void RefuseDead(const StoredObject& object, ZOLGYRError& error) {
    error.Set(DeadObject, {ZOLUnicodeString(object.DisplayName())});
}

ItemContent* DictionaryContent(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                               ZOLGYRError& error) {
    if (!dictionary)
        return nullptr;
    if (!dictionary->IsAlive()) {
        RefuseDead(*dictionary, error);
        return nullptr;
    }
    if (dictionary->Row().status != ConfigItemRow::Dictionary) {
        error.Set(NoDictionary);
        return nullptr;
    }
    return memory.Content(dictionary, error);
}

RecordOf<CategoryRow> AddCategoryRow(ConfigurationMemory& memory, ItemContent& content, CategoryRow row) {
    row.configItem = content.Item()->Id();
    const auto record = memory.Store().Create(std::move(row));
    content.Added(record);
    memory.End();
    return record;
}

RecordOf<EffectivityRow> AddOptionRow(ConfigurationMemory& memory, ItemContent& content,
                                      const CategoryRow& category, const std::string& name,
                                      const std::string& description) {
    EffectivityRow row;
    row.configItem = content.Item()->Id();
    row.type = ZOLQRDCfgEffectivityType::Option;
    row.optionName = name;
    row.category = category.id;
    row.categoryName = category.name;
    row.description = description;
    const auto record = memory.Store().Create(std::move(row));
    content.Added(record);
    memory.End();
    return record;
}

RecordOf<EffectivityRow> AddEffectivityRows(ConfigurationMemory& memory, ItemContent& content,
                                            const ZOLQRDCfgEffectivity& term) {
    EffectivityRow row = RowOf(term);
    row.configItem = content.Item()->Id();
    const auto record = memory.Store().Create(std::move(row));
    content.Added(record);

    ZOLListValZOLUnicodeString names;
    ZOLListValZOLUnicodeString values;
    term.GetAttrList(names, values);
    for (int i = 1; i <= std::min(names.Size(), values.Size()); ++i) {
        EffectivityAttributeRow attribute;
        attribute.configItem = content.Item()->Id();
        attribute.effectivity = record->Id();
        attribute.position = i;
        attribute.name = names[i].Bytes();
        attribute.value = values[i].Bytes();
        content.Added(memory.Store().Create(std::move(attribute)));
    }
    ZOLListValZOLUnicodeString options;
    term.GetOptList(options);
    ZOLGYRError nothingToRemove;
    SetPackOptionRows(memory, content, record->Id(), options, nothingToRemove);
    return record;
}

void SetDefaultRows(ConfigurationMemory& memory, ItemContent& content, std::int64_t category,
                    const std::vector<std::int64_t>& options, ZOLGYRError& error) {
    RemoveAll(memory, content.DefaultsOf(category), error);
    std::int64_t position = 0;
    for (const std::int64_t option : options) {
        CategoryDefaultRow row;
        row.configItem = content.Item()->Id();
        row.category = category;
        row.position = ++position;
        row.option = option;
        content.Added(memory.Store().Create(std::move(row)));
    }
    memory.End();
}

void SetPackOptionRows(ConfigurationMemory& memory, ItemContent& content, std::int64_t effectivity,
                       const ZOLListValZOLUnicodeString& options, ZOLGYRError& error) {
    RemoveAll(memory, content.PackOptionsOf(effectivity), error);
    std::int64_t position = 0;
    for (const ZOLUnicodeString& option : options) {
        EffectivityOptionRow row;
        row.configItem = content.Item()->Id();
        row.effectivity = effectivity;
        row.position = ++position;
        row.optionName = option.Bytes();
        content.Added(memory.Store().Create(std::move(row)));
    }
    memory.End();
}

void TakeOutOfCategory(ConfigurationMemory& memory, ItemContent& content,
                       const RecordOf<EffectivityRow>& option, ZOLGYRError& error) {
    for (const auto& entry : content.DefaultsOf(option->Row().category))
        if (entry->Row().option == option->Id())
            memory.Store().Remove(*entry, error);
    option->Change(&EffectivityRow::category, 0, error);
    content.IndexIsStale();
    memory.End();
}

void RemoveEffectivityRows(ConfigurationMemory& memory, ItemContent& content,
                           const RecordOf<EffectivityRow>& effectivity, ZOLGYRError& error) {
    Records<LinkEffectivityRow> links;
    if (!FindLinks(memory, content, {effectivity}, links, error))
        return;
    RemoveAll(memory, links, error);
    RemoveOwnRows(memory, content, effectivity, error);
    memory.End();
}

void RemoveCategoryRows(ConfigurationMemory& memory, ItemContent& content,
                        const RecordOf<CategoryRow>& category, ZOLGYRError& error) {
    for (const auto& option : content.OptionsOf(category->Id()))
        RemoveOwnRows(memory, content, option, error);
    for (const auto& matrix : content.Matrices())
        for (const auto& column : content.ColumnsOf(matrix->Id()))
            if (column->Row().category == category->Id())
                memory.Store().Remove(*column, error);
    RemoveAll(memory, content.DefaultsOf(category->Id()), error);
    memory.Store().Remove(*category, error);
    memory.End();
}

void RemoveItemRows(ConfigurationMemory& memory, ItemContent& content, ZOLGYRError& error) {
    Records<LinkEffectivityRow> links;
    if (!FindLinks(memory, content, content.Effectivities(), links, error))
        return;
    RemoveAll(memory, links, error);
    RemoveRuleRows(memory, content.Rules(), error);
    for (const auto& matrix : content.Matrices())
        RemoveMatrixRows(memory, content, matrix, error);
    for (const auto& category : content.Categories())
        RemoveCategoryRows(memory, content, category, error);
    for (const auto& effectivity : content.Effectivities())
        RemoveOwnRows(memory, content, effectivity, error);
    memory.Store().Remove(*content.Item(), error);
    memory.End();
}

} // namespace trellis
