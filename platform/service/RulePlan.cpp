#include "service/RulePlan.h"

#include "rules/language/RuleText.h"
#include "rules/language/RuleWriter.h"
#include "values/ProgressCount.h"

#include <set>
#include <tuple>

namespace trellis {

namespace {

constexpr int RowExists = 50082;

using Kind = RuleFileRule::Kind;

ZOLConfigRuleType TypeOf(Kind kind) {
    return kind == Kind::Directive ? ZOLDirectiveRuleType
           : kind == Kind::Package ? ZOLPackageRuleType
                                   : ZOLCompatibilityRuleType;
}

// The text as it is stored, whatever words it is given in.
std::string Neutral(const ZOLUnicodeString& text) {
    return RuleText::Translate(text, RuleWords::Catalogue(), RuleWords::Neutral()).Bytes();
}

// A rule is known by its name, or else by its text.
using RuleKey = std::tuple<ZOLConfigRuleType, std::string, std::string>;

RuleKey KeyOf(ZOLConfigRuleType type, const std::string& name, const ZOLUnicodeString& text) {
    return {type, name, name.empty() ? Neutral(text) : std::string()};
}

std::string RowText(const RuleFileMatrix& matrix, const RuleFileRule& row) {
    if (row.cells.empty())
        return row.text.text;
    std::vector<OptionReference> cells;
    for (std::size_t i = 0; i < row.cells.size(); ++i)
        cells.push_back({matrix.columns[i].text, row.cells[i].text});
    return RuleWriter(RuleWords::Catalogue()).Row(cells).Bytes();
}

std::size_t CountOf(const RuleFile& file) {
    std::size_t count = file.rules.size();
    for (const RuleFileMatrix& matrix : file.matrices)
        count += 1 + matrix.rows.size();
    return count;
}

} // namespace

RulePlan::RulePlan(RuleFile& file, ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                   RuleImportReport& report)
    : _file(file), _manager(manager), _dictionary(dictionary), _report(report) {
    Match();
}

void RulePlan::Match() {
    std::multimap<RuleKey, ZOLIQrdConfigRule_var> stored;
    ZOLListValZOLIQrdConfigRule_var rules;
    _manager.GetConfigRulesFromDictionary(_dictionary, rules);
    for (const ZOLIQrdConfigRule_var& rule : rules)
        if (rule->GetType() != ZOLCompatibilityRuleType)
            stored.emplace(KeyOf(rule->GetType(), rule->GetName().Bytes(), rule->GetRuleString()), rule);
    for (const RuleFileRule& rule : _file.rules) {
        const auto node = stored.extract(KeyOf(TypeOf(rule.kind), rule.name, rule.text.text));
        _matches.push_back(node ? node.mapped() : ZOLIQrdConfigRule_var());
    }
    for (const auto& [key, rule] : stored)
        _otherRules.push_back(rule);

    std::set<std::string> named;
    for (const RuleFileMatrix& matrix : _file.matrices)
        named.insert(matrix.name);
    ZOLListValZOLIQrdCompatibilityMatrix_var matrices;
    _manager.GetCompatibilityMatricesFromDictionary(_dictionary, matrices);
    for (const ZOLIQrdCompatibilityMatrix_var& matrix : matrices)
        if (!named.contains(matrix->GetName().Bytes()) ||
            !_matrices.emplace(matrix->GetName().Bytes(), matrix).second)
            _otherMatrices.push_back(matrix);
}

void RulePlan::Apply(RuleImport::Others others, const ProgressCB& progress, ZOLGYRError& error) {
    if (others == RuleImport::Others::Remove)
        RemoveOthers(error);
    ProgressCount count(progress, "rules", CountOf(_file));
    for (std::size_t i = 0; i < _file.rules.size() && error.GetCode() == 0; ++i) {
        ApplyRule(_file.rules[i], _matches[i], error);
        count.Step();
    }
    // A row may move from one matrix of the file to another, so all go before any comes.
    std::vector<ZOLIQrdCompatibilityMatrix_var> changed;
    for (const RuleFileMatrix& matrix : _file.matrices)
        changed.push_back(error.GetCode() == 0 ? ApplyMatrix(matrix, error) : nullptr);
    for (std::size_t i = 0; i < changed.size(); ++i) {
        count.Step();
        for (const RuleFileRule& row : _file.matrices[i].rows) {
            if (error.GetCode() != 0)
                return;
            if (changed[i])
                AddRow(_file.matrices[i], row, changed[i], error);
            count.Step();
        }
    }
}

void RulePlan::RemoveOthers(ZOLGYRError& error) {
    for (const ZOLIQrdConfigRule_var& rule : _otherRules)
        if (error.GetCode() == 0)
            _manager.RemoveConfigRuleFromDictionary(rule, error);
    for (const ZOLIQrdCompatibilityMatrix_var& matrix : _otherMatrices)
        if (error.GetCode() == 0)
            _manager.RemoveCompatibilityMatrixFromDictionary(matrix, error);
    _report.removed = static_cast<int>(_otherRules.size() + _otherMatrices.size());
}

void RulePlan::RemoveRows(const ZOLIQrdCompatibilityMatrix_var& matrix, ZOLGYRError& error) {
    ZOLListValZOLIQrdConfigRule_var rows;
    matrix->GetRules(rows);
    for (const ZOLIQrdConfigRule_var& row : rows)
        if (error.GetCode() == 0)
            _manager.RemoveConfigRuleFromDictionary(row, error);
}

void RulePlan::ApplyRule(const RuleFileRule& rule, const ZOLIQrdConfigRule_var& stored, ZOLGYRError& error) {
    if (!stored) {
        _manager.CreateConfigRuleToDictionary(_dictionary, rule.name, rule.text.text, TypeOf(rule.kind),
                                              rule.description, error);
        ++_report.newRules;
        return;
    }
    const bool isTextSame = Neutral(stored->GetRuleString()) == Neutral(rule.text.text);
    const bool isDescriptionSame = stored->GetDescription() == rule.description;
    if (!isTextSame)
        stored->SetRuleString(rule.text.text, error);
    if (!isDescriptionSame && error.GetCode() == 0)
        stored->SetDescription(rule.description, error);
    _report.changedRules += !isTextSame || !isDescriptionSame;
}

bool RulePlan::IsSame(const RuleFileMatrix& matrix, const ZOLIQrdCompatibilityMatrix_var& stored) const {
    ZOLListValZOLIQrdCategory_var columns;
    ZOLListValZOLIQrdConfigRule_var rows;
    stored->GetCategories(columns);
    stored->GetRules(rows);
    if (stored->GetDescription() != matrix.description ||
        columns.Size() != static_cast<int>(matrix.columns.size()) ||
        rows.Size() != static_cast<int>(matrix.rows.size()))
        return false;
    for (int i = 1; i <= columns.Size(); ++i)
        if (columns[i]->GetName() != matrix.columns[static_cast<std::size_t>(i) - 1].text)
            return false;
    for (int i = 1; i <= rows.Size(); ++i) {
        const RuleFileRule& row = matrix.rows[static_cast<std::size_t>(i) - 1];
        if (rows[i]->GetName() != row.name || rows[i]->GetDescription() != row.description ||
            Neutral(rows[i]->GetRuleString()) != Neutral(RowText(matrix, row)))
            return false;
    }
    return true;
}

ZOLIQrdCompatibilityMatrix_var RulePlan::ApplyMatrix(const RuleFileMatrix& matrix, ZOLGYRError& error) {
    ZOLIQrdCompatibilityMatrix_var stored = _matrices[matrix.name];
    if (stored && IsSame(matrix, stored))
        return nullptr;
    ++(stored ? _report.changedMatrices : _report.newMatrices);
    if (stored)
        RemoveRows(stored, error);
    else
        stored =
            _manager.AddCompatibilityMatrixToDictionary(_dictionary, matrix.name, matrix.description, error);
    if (error.GetCode() != 0)
        return nullptr;
    if (stored->GetDescription() != matrix.description)
        stored->SetDescription(matrix.description, error);
    std::map<std::string, ZOLIQrdCategory_var> categories;
    ZOLListValZOLIQrdCategory_var all, columns;
    _manager.GetCategoriesFromDictionary(_dictionary, all);
    for (const ZOLIQrdCategory_var& category : all)
        categories[category->GetName().Bytes()] = category;
    for (const RuleFileText& column : matrix.columns)
        columns.Append(categories[column.text]);
    if (error.GetCode() == 0)
        stored->SetCategories(columns, error);
    return stored;
}

void RulePlan::AddRow(const RuleFileMatrix& matrix, const RuleFileRule& row,
                      const ZOLIQrdCompatibilityMatrix_var& stored, ZOLGYRError& error) {
    const ZOLIQrdConfigRule_var added = _manager.AddConfigRuleToDictionary(
        _dictionary, row.name, RowText(matrix, row), ZOLCompatibilityRuleType, row.description, error);
    if (error.GetCode() == RowExists) {
        error.Clear();
        _file.Note(row.line, RowExists);
    } else if (error.GetCode() == 0) {
        stored->AddRule(added, error);
    }
}

} // namespace trellis
