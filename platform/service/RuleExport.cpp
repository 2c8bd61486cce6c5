#include "service/RuleExport.h"

#include "rules/language/RuleParser.h"
#include "rules/language/RuleText.h"
#include "rules/language/RuleWriter.h"
#include "service/RuleFile.h"
#include "service/ZOLQRDCfgManager.h"
#include "values/FailureTrace.h"

namespace trellis {

namespace {

using Kind = RuleFileRule::Kind;

RuleFileRule Written(const ZOLIQrdConfigRule_var& rule, Kind kind) {
    RuleFileRule written;
    written.kind = kind;
    written.name = rule->GetName().Bytes();
    written.description = rule->GetDescription().Bytes();
    written.text.text =
        RuleText::Translate(rule->GetRuleString(), RuleWords::Catalogue(), RuleWords::Neutral()).Bytes();
    return written;
}

// A row as cells, where these say all of it; else as a text.
RuleFileRule WrittenRow(const ZOLIQrdConfigRule_var& row, const std::vector<RuleFileText>& columns) {
    RuleFileRule written = Written(row, Kind::Row);
    const auto cells = RuleParser(written.text.text, RuleWords::Neutral()).Row();
    if (!written.name.empty() || !cells || cells->size() != columns.size() ||
        RuleWriter(RuleWords::Neutral()).Row(*cells).Bytes() != written.text.text)
        return written;
    for (std::size_t i = 0; i < cells->size(); ++i)
        if ((*cells)[i].category != columns[i].text)
            return written;
    for (const OptionReference& cell : *cells)
        written.cells.push_back({cell.option, 0});
    return written;
}

RuleFileMatrix Written(const ZOLIQrdCompatibilityMatrix_var& matrix) {
    RuleFileMatrix written;
    written.name = matrix->GetName().Bytes();
    written.description = matrix->GetDescription().Bytes();
    ZOLListValZOLIQrdCategory_var columns;
    ZOLListValZOLIQrdConfigRule_var rows;
    matrix->GetCategories(columns);
    matrix->GetRules(rows);
    for (const ZOLIQrdCategory_var& column : columns)
        written.columns.push_back({column->GetName().Bytes(), 0});
    for (const ZOLIQrdConfigRule_var& row : rows)
        written.rows.push_back(WrittenRow(row, written.columns));
    return written;
}

} // namespace

std::string RuleExport::Text(const ZOLIQrdConfigItem_var& dictionary) {
    FailureTrace trace("RuleExport::Text");
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(trace);
    if (!manager || !dictionary)
        return {};
    RuleFile file;
    ZOLListValZOLIQrdConfigRule_var rules;
    manager->GetConfigRulesFromDictionary(dictionary, rules);
    for (const ZOLIQrdConfigRule_var& rule : rules)
        if (rule->GetType() != ZOLCompatibilityRuleType)
            file.rules.push_back(
                Written(rule, rule->GetType() == ZOLPackageRuleType ? Kind::Package : Kind::Directive));
    ZOLListValZOLIQrdCompatibilityMatrix_var matrices;
    manager->GetCompatibilityMatricesFromDictionary(dictionary, matrices);
    for (const ZOLIQrdCompatibilityMatrix_var& matrix : matrices)
        file.matrices.push_back(Written(matrix));
    return file.Text();
}

} // namespace trellis
