#pragma once

#include "store/Workspace.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace trellis {

// ItemContent: what memory holds of one dictionary or config item: categories, options or effectivities, rules and
// matrices, and the rows that hang on them. It is read by one query per table, whatever its size, and then answers from
// memory.
//
// Its lists keep records that were removed, since a discard may bring them back; the answers leave them out.
// Names are found by an index, which is made anew after anything that the service did not do itself.
class ItemContent {
public:
    // Reads the content of an item; null and a code on a failure.
    static std::unique_ptr<ItemContent> Read(Workspace& workspace, RecordOf<ConfigItemRow> item,
                                             ZOLGYRError& error);

    const RecordOf<ConfigItemRow>& Item() const { return _item; }

    // Living records in order of creation.
    std::vector<RecordOf<CategoryRow>> Categories() const { return Living(_categories); }
    std::vector<RecordOf<EffectivityRow>> Effectivities() const { return Living(_effectivities); }
    std::vector<RecordOf<EffectivityRow>> OptionsOf(std::int64_t category);
    // In their order.
    std::vector<RecordOf<CategoryDefaultRow>> DefaultsOf(std::int64_t category);
    std::vector<RecordOf<EffectivityOptionRow>> PackOptionsOf(std::int64_t effectivity);
    std::vector<RecordOf<EffectivityAttributeRow>> AttributesOf(std::int64_t effectivity);
    // Rules of all kinds, in order of creation.
    std::vector<RecordOf<ConfigRuleRow>> Rules() const { return Living(_rules); }
    std::vector<RecordOf<CompatibilityMatrixRow>> Matrices() const { return Living(_matrices); }
    // In their order.
    std::vector<RecordOf<MatrixColumnRow>> ColumnsOf(std::int64_t matrix);
    std::vector<RecordOf<ConfigRuleRow>> RowsOf(std::int64_t matrix);

    // The living holder of a name or an id, or null.
    RecordOf<CategoryRow> CategoryOfName(const std::string& name);
    RecordOf<EffectivityRow> OptionOfName(const std::string& name);
    RecordOf<CategoryRow> Category(std::int64_t id);
    RecordOf<EffectivityRow> Effectivity(std::int64_t id);
    RecordOf<ConfigRuleRow> RuleOfName(std::int64_t type, const std::string& name);
    RecordOf<ConfigRuleRow> Rule(std::int64_t id);
    RecordOf<CompatibilityMatrixRow> MatrixOfName(const std::string& name);
    RecordOf<CompatibilityMatrixRow> Matrix(std::int64_t id);
    // A row of any matrix that joins the same references as the text, in whatever order.
    RecordOf<ConfigRuleRow> RowLike(const std::string& text);

    // A record that the service just made belongs to this content.
    void Added(const RecordOf<CategoryRow>& record);
    void Added(const RecordOf<EffectivityRow>& record);
    void Added(const RecordOf<CategoryDefaultRow>& record);
    void Added(const RecordOf<EffectivityOptionRow>& record);
    void Added(const RecordOf<EffectivityAttributeRow>& record);
    void Added(const RecordOf<ConfigRuleRow>& record);
    void Added(const RecordOf<CompatibilityMatrixRow>& record);
    void Added(const RecordOf<MatrixColumnRow>& record);
    // Names or memberships may have changed: the index is made anew at its next use.
    void IndexIsStale() { _indexed = false; }
    // Every record of the content but the item, dead ones included.
    std::vector<std::shared_ptr<StoredObject>> AllRecords() const;

private:
    template <class Row>
    using Records = std::vector<RecordOf<Row>>;
    template <class Row>
    using Groups = std::unordered_map<std::int64_t, Records<Row>>;

    explicit ItemContent(RecordOf<ConfigItemRow> item) : _item(std::move(item)) {}

    template <class Row>
    static Records<Row> Living(const Records<Row>& records) {
        Records<Row> living;
        living.reserve(records.size());
        for (const RecordOf<Row>& record : records)
            if (record->IsAlive())
                living.push_back(record);
        return living;
    }
    template <class Row>
    Records<Row> Group(Groups<Row>& groups, std::int64_t key);
    void MakeIndex();
    void Index(const RecordOf<CategoryRow>& record);
    void Index(const RecordOf<EffectivityRow>& record);
    void Index(const RecordOf<ConfigRuleRow>& record);
    void Index(const RecordOf<CompatibilityMatrixRow>& record);

    RecordOf<ConfigItemRow> _item;
    Records<CategoryRow> _categories;
    Records<EffectivityRow> _effectivities;
    Groups<CategoryDefaultRow> _defaults;
    Groups<EffectivityOptionRow> _packOptions;
    Groups<EffectivityAttributeRow> _attributes;
    Records<ConfigRuleRow> _rules;
    Records<CompatibilityMatrixRow> _matrices;
    Groups<MatrixColumnRow> _columns;

    bool _indexed = false;
    std::unordered_map<std::string, RecordOf<CategoryRow>> _categoriesByName;
    std::unordered_map<std::string, RecordOf<EffectivityRow>> _optionsByName;
    std::unordered_map<std::int64_t, RecordOf<CategoryRow>> _categoriesById;
    std::unordered_map<std::int64_t, RecordOf<EffectivityRow>> _effectivitiesById;
    Groups<EffectivityRow> _optionsByCategory;
    std::unordered_map<std::string, RecordOf<ConfigRuleRow>> _rulesByName; // by RuleKey
    std::unordered_map<std::int64_t, RecordOf<ConfigRuleRow>> _rulesById;
    std::unordered_map<std::string, RecordOf<ConfigRuleRow>> _rowsByContent; // by RowKey
    std::unordered_map<std::string, RecordOf<CompatibilityMatrixRow>> _matricesByName;
    std::unordered_map<std::int64_t, RecordOf<CompatibilityMatrixRow>> _matricesById;
    Groups<ConfigRuleRow> _rowsByMatrix;
};

} // namespace trellis
