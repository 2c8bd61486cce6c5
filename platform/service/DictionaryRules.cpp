#include "service/DictionaryRules.h"

#include "rules/language/RuleParser.h"
#include "rules/language/RuleText.h"
#include "service/RuleCache.h"
#include "values/ZOLGYRTrace.h"

#include <algorithm>

namespace trellis {

DictionaryRules::DictionaryRules(const std::vector<ItemContent*>& contents) : _engine(Number(contents)) {}

RuleModel DictionaryRules::Number(const std::vector<ItemContent*>& contents) {
    RuleModel model;
    for (ItemContent* content : contents)
        AddCategories(*content, model);
    model.optionCount = static_cast<int>(_options.size());
    for (ItemContent* content : contents) {
        AddRules(*content, model);
        for (const auto& matrix : content->Matrices())
            AddMatrix(*content, matrix, model);
    }
    return model;
}

void DictionaryRules::AddCategories(ItemContent& content, RuleModel& model) {
    for (const auto& record : content.Categories()) {
        const CategoryRow& row = record->Row();
        const auto [known, isNew] =
            _categoryNumbers.emplace(row.name, static_cast<int>(model.categories.size()));
        if (isNew) {
            model.categories.push_back({row.name, {}, row.exclusivity != 0, false});
            _categoryDescriptions.push_back(row.description);
        }
        CategoryModel& category = model.categories[Place(known->second)];
        category.isMandatory = category.isMandatory || row.mandatory != 0;
        AddOptions(content, row, known->second, model);
    }
}

void DictionaryRules::AddOptions(ItemContent& content, const CategoryRow& category, int number,
                                 RuleModel& model) {
    for (const auto& option : content.OptionsOf(category.id)) {
        const OptionReference name{category.name, option->Row().optionName};
        const int next = static_cast<int>(_options.size());
        if (!_optionNumbers.emplace(name, next).second)
            continue;
        _options.push_back({name, option->Row().description, number});
        model.categories[Place(number)].options.push_back(next);
        const auto [alone, isOnly] = _optionNumbers.emplace(OptionReference{"", name.option}, next);
        if (!isOnly)
            alone->second = Several;
    }
}

int DictionaryRules::NumberOf(const OptionReference& name) const {
    const auto found = _optionNumbers.find(name);
    return found == _optionNumbers.end() ? -1 : std::max(found->second, -1);
}

int DictionaryRules::NumberOfCategory(const std::string& name) const {
    const auto found = _categoryNumbers.find(name);
    return found == _categoryNumbers.end() ? -1 : found->second;
}

bool DictionaryRules::NamesAreThere(const RecordOf<ConfigRuleRow>& rule) {
    const ZOLUnicodeString text(rule->Row().text);
    for (const RuleToken& token : RuleLexer::Tokens(text, RuleWords::Neutral())) {
        if (token.kind != RuleToken::Kind::Reference || NumberOf(token.reference) >= 0)
            continue;
        const RuleFault fault = token.reference.category.empty()
                                    ? RuleFault{RuleFault::UnknownName, token.begin, {token.reference.option}}
                                    : RuleFault{RuleFault::UnknownOption,
                                                token.begin,
                                                {token.reference.category, token.reference.option}};
        _leftOut.push_back({rule, fault.Verdict(text)});
        return false;
    }
    return true;
}

void DictionaryRules::AddRules(ItemContent& content, RuleModel& model) {
    for (const auto& rule : content.Rules()) {
        if (rule->Row().type == ConfigRuleRow::Directive)
            AddDirective(rule, model);
        else if (rule->Row().type == ConfigRuleRow::Package)
            AddPackage(rule, model);
    }
}

void DictionaryRules::AddDirective(const RecordOf<ConfigRuleRow>& rule, RuleModel& model) {
    RuleParser parser(rule->Row().text, RuleWords::Neutral());
    const std::optional<DirectiveTerm> term = parser.Directive();
    if (!term) {
        _leftOut.push_back({rule, parser.GetFault().Verdict(rule->Row().text)});
        return;
    }
    if (!NamesAreThere(rule))
        return;
    model.directives.push_back({FormulaOf(term->condition), FormulaOf(term->consequence)});
    _directives.push_back(rule);
}

RuleFormula DictionaryRules::FormulaOf(const RuleTerm& term) const {
    RuleFormula formula;
    switch (term.kind) {
    case RuleTerm::Kind::Reference:
        formula.kind = RuleFormula::Kind::Option;
        formula.option = NumberOf(term.reference);
        return formula;
    case RuleTerm::Kind::Not:
        formula.kind = RuleFormula::Kind::Not;
        break;
    case RuleTerm::Kind::And:
        formula.kind = RuleFormula::Kind::And;
        break;
    case RuleTerm::Kind::Or:
        formula.kind = RuleFormula::Kind::Or;
        break;
    }
    for (const RuleTerm& part : term.parts)
        formula.parts.push_back(FormulaOf(part));
    return formula;
}

void DictionaryRules::AddPackage(const RecordOf<ConfigRuleRow>& rule, RuleModel& model) {
    RuleParser parser(rule->Row().text, RuleWords::Neutral());
    const auto references = parser.Package();
    if (!references) {
        _leftOut.push_back({rule, parser.GetFault().Verdict(rule->Row().text)});
        return;
    }
    if (!NamesAreThere(rule))
        return;
    PackageModel package;
    for (const SignedReference& part : *references)
        package.literals.push_back({NumberOf(part.reference), part.isChosen});
    model.packages.push_back(std::move(package));
    _packages.push_back(rule);
}

void DictionaryRules::AddMatrix(ItemContent& content, const RecordOf<CompatibilityMatrixRow>& matrix,
                                RuleModel& model) {
    std::vector<int> categories;
    for (const auto& column : content.ColumnsOf(matrix->Id()))
        if (const auto category = content.Category(column->Row().category))
            categories.push_back(NumberOfCategory(category->Row().name));
    MatrixModel rows;
    for (const int category : categories)
        rows.columns.push_back(model.categories[Place(category)].options);
    for (const auto& row : content.RowsOf(matrix->Id()))
        if (std::vector<int> cells = CellsOf(row, categories); !cells.empty())
            rows.rows.push_back(std::move(cells));
    model.matrices.push_back(std::move(rows));
    _matrices.push_back(matrix);
}

// Empty for a row that cannot be read; also for a matrix without columns, whose rows bind nothing.
std::vector<int> DictionaryRules::CellsOf(const RecordOf<ConfigRuleRow>& row,
                                          const std::vector<int>& categories) {
    RuleParser parser(row->Row().text, RuleWords::Neutral());
    const auto references = parser.Row();
    if (!references) {
        _leftOut.push_back({row, parser.GetFault().Verdict(row->Row().text)});
        return {};
    }
    std::vector<int> cells(categories.size(), MatrixModel::EmptyCell);
    for (const OptionReference& reference : *references) {
        const auto column = std::ranges::find(categories, NumberOfCategory(reference.category));
        if (column == categories.end() || reference.option.empty())
            continue;
        const int option = NumberOf(reference);
        cells[static_cast<std::size_t>(column - categories.begin())] =
            option < 0 ? MatrixModel::GoneCell : option;
    }
    return cells;
}

std::shared_ptr<DictionaryRules> DictionaryRules::Of(ConfigurationMemory& memory,
                                                     const std::vector<RecordOf<ConfigItemRow>>& dictionaries,
                                                     ZOLGYRError& error) {
    std::vector<ItemContent*> contents;
    for (const auto& dictionary : dictionaries) {
        contents.push_back(memory.Content(dictionary, error));
        if (!contents.back())
            return nullptr;
    }
    RuleCache& known = memory.KnownRules();
    if (const auto rules = known.Find(contents, memory.Store().ChangeCount()))
        return rules;
    const auto rules = std::make_shared<DictionaryRules>(contents);
    for (const LeftOut& rule : rules->RulesLeftOut())
        ZOLGYRTrace::Note("rule left out: " + rule.rule->DisplayName() + ": " + rule.verdict.Bytes());
    known.Keep(contents, memory.Store().ChangeCount(), rules);
    return rules;
}

} // namespace trellis
