#include "rules/engine/RuleOracle.h"

#include <algorithm>
#include <bit>
#include <optional>
#include <set>

namespace trellis {

namespace {

using Kind = RuleReason::Kind;

bool Has(unsigned choice, int option) {
    return ((choice >> option) & 1U) != 0;
}

bool Holds(unsigned choice, const RuleFormula& formula) {
    const auto holds = [&](const RuleFormula& part) { return Holds(choice, part); };
    const auto& parts = formula.parts;
    switch (formula.kind) {
    case RuleFormula::Kind::Option:
        return Has(choice, formula.option);
    case RuleFormula::Kind::Not:
        return !Holds(choice, parts.front());
    case RuleFormula::Kind::And:
        return std::all_of(parts.begin(), parts.end(), holds);
    case RuleFormula::Kind::Or:
        break;
    }
    return std::any_of(parts.begin(), parts.end(), holds);
}

bool Fulfills(unsigned choice, const PackageModel& package) {
    int plain = 0;
    int chosen = 0;
    bool hasForbidden = false;
    for (const RuleLiteral& literal : package.literals) {
        plain += literal.isChosen ? 1 : 0;
        chosen += literal.isChosen && Has(choice, literal.option) ? 1 : 0;
        hasForbidden = hasForbidden || (!literal.isChosen && Has(choice, literal.option));
    }
    return chosen == 0 || (chosen == plain && !hasForbidden);
}

bool Fits(unsigned choice, const MatrixModel& matrix, const std::vector<int>& row) {
    for (std::size_t column = 0; column < row.size(); ++column) {
        if (row[column] == MatrixModel::GoneCell)
            return false;
        const auto stands = [&](int option) { return !Has(choice, option) || option == row[column]; };
        const auto& options = matrix.columns[column];
        if (row[column] != MatrixModel::EmptyCell && !std::all_of(options.begin(), options.end(), stands))
            return false;
    }
    return true;
}

bool Fulfills(unsigned choice, const MatrixModel& matrix) {
    return matrix.rows.empty() || std::any_of(matrix.rows.begin(), matrix.rows.end(),
                                              [&](const auto& row) { return Fits(choice, matrix, row); });
}

int ChosenIn(unsigned choice, const CategoryModel& category) {
    const std::set<int> options(category.options.begin(), category.options.end());
    return static_cast<int>(
        std::count_if(options.begin(), options.end(), [&](int option) { return Has(choice, option); }));
}

// Known only as far as the known options tell, part by part.
std::optional<bool> Known(const RuleFormula& formula, const std::vector<std::optional<bool>>& states) {
    if (formula.kind == RuleFormula::Kind::Option)
        return states[formula.option];
    std::vector<std::optional<bool>> parts;
    for (const RuleFormula& part : formula.parts)
        parts.push_back(Known(part, states));
    const auto has = [&](std::optional<bool> state) {
        return std::find(parts.begin(), parts.end(), state) != parts.end();
    };
    if (formula.kind == RuleFormula::Kind::Not)
        return parts.front() ? std::optional(!*parts.front()) : std::nullopt;
    const bool decides = formula.kind == RuleFormula::Kind::Or;
    if (has(decides))
        return decides;
    return has(std::nullopt) ? std::nullopt : std::optional(!decides);
}

void CollectOptions(const RuleFormula& formula, std::set<int>& options) {
    if (formula.kind == RuleFormula::Kind::Option)
        options.insert(formula.option);
    for (const RuleFormula& part : formula.parts)
        CollectOptions(part, options);
}

} // namespace

RuleOracle::RuleOracle(const RuleModel& model) : _model(model) {
    for (unsigned choice = 0; choice < 1U << model.optionCount; ++choice)
        _all.set(choice);
    AddRules(Kind::Directive, model.directives.size());
    AddRules(Kind::Package, model.packages.size());
    AddRules(Kind::Matrix, model.matrices.size());
    AddRules(Kind::Exclusive, model.categories.size());
    AddRules(Kind::Mandatory, model.categories.size());
}

void RuleOracle::AddRules(Kind kind, std::size_t count) {
    for (std::size_t number = 0; number < count; ++number) {
        const RuleReason rule{kind, static_cast<int>(number)};
        for (unsigned choice = 0; choice < 1U << _model.optionCount; ++choice)
            _fulfilling[rule].set(choice, Fulfills(choice, rule));
    }
}

bool RuleOracle::Fulfills(unsigned choice, RuleReason rule) const {
    const auto place = static_cast<std::size_t>(rule.number);
    switch (rule.kind) {
    case Kind::Directive:
        return !Holds(choice, _model.directives[place].condition) ||
               Holds(choice, _model.directives[place].consequence);
    case Kind::Package:
        return trellis::Fulfills(choice, _model.packages[place]);
    case Kind::Matrix:
        return trellis::Fulfills(choice, _model.matrices[place]);
    case Kind::Exclusive:
        return ChosenIn(choice, _model.categories[place]) <= 1;
    case Kind::Mandatory:
        break;
    }
    return _model.categories[place].options.empty() || ChosenIn(choice, _model.categories[place]) >= 1;
}

RuleOracle::Choices RuleOracle::Fulfilling(const std::vector<RuleReason>& rules) const {
    Choices choices = _all;
    for (const RuleReason& rule : rules)
        choices &= Fulfilling(rule);
    return choices;
}

RuleOracle::Choices RuleOracle::Fulfilling(RuleLiteral literal) const {
    Choices choices;
    for (unsigned choice = 0; choice < 1U << _model.optionCount; ++choice)
        choices.set(choice, Has(choice, literal.option) == literal.isChosen);
    return choices;
}

RuleOracle::Choices RuleOracle::Fulfilling(const std::vector<RuleLiteral>& literals) const {
    Choices choices = _all;
    for (const RuleLiteral& literal : literals)
        choices &= Fulfilling(literal);
    return choices;
}

std::vector<RuleReason> RuleOracle::Binding(const RuleQuestion& question) const {
    std::vector<RuleReason> rules;
    const auto add = [&](Kind kind, std::size_t count, bool isOn) {
        for (std::size_t number = 0; isOn && number < count; ++number)
            rules.push_back({kind, static_cast<int>(number)});
    };
    add(Kind::Directive, _model.directives.size(), question.areDirectivesOn);
    add(Kind::Package, _model.packages.size(), question.arePackagesOn);
    add(Kind::Matrix, _model.matrices.size(), question.areMatricesOn);
    for (std::size_t number = 0; number < _model.categories.size(); ++number) {
        const int category = static_cast<int>(number);
        bool isExclusive = _model.categories[number].isExclusive;
        for (const auto& [overridden, value] : question.exclusivity)
            isExclusive = overridden == category ? value : isExclusive;
        if (isExclusive)
            rules.push_back({Kind::Exclusive, category});
        if (_model.categories[number].isMandatory)
            rules.push_back({Kind::Mandatory, category});
    }
    return rules;
}

std::vector<RuleLiteral> RuleOracle::Forced(const RuleQuestion& question) const {
    const Choices choices = Fulfilling(Binding(question)) & Fulfilling(question.given);
    std::vector<RuleLiteral> forced;
    for (int option = 0; choices.any() && option < _model.optionCount; ++option) {
        const auto isGiven = [&](const RuleLiteral& literal) { return literal.option == option; };
        if (std::any_of(question.given.begin(), question.given.end(), isGiven))
            continue;
        for (bool isChosen : {false, true})
            if ((choices & Fulfilling(RuleLiteral{option, !isChosen})).none())
                forced.push_back({option, isChosen});
    }
    return forced;
}

std::vector<int> RuleOracle::Irresolutions(const RuleQuestion& question) const {
    const Choices choices = Fulfilling(Binding(question)) & Fulfilling(question.given);
    if (choices.none() || !question.areDirectivesOn)
        return {};
    std::vector<std::optional<bool>> states(static_cast<std::size_t>(_model.optionCount));
    for (const auto& literals : {question.given, Forced(question)})
        for (const RuleLiteral& literal : literals)
            states[static_cast<std::size_t>(literal.option)] = literal.isChosen;
    std::set<int> options;
    for (const DirectiveModel& directive : _model.directives)
        if (Known(directive.condition, states) == true && Known(directive.consequence, states) != true)
            CollectOptions(directive.consequence, options);
    std::erase_if(options, [&](int option) { return states[static_cast<std::size_t>(option)].has_value(); });
    return {options.begin(), options.end()};
}

std::vector<std::vector<RuleLiteral>> RuleOracle::Repairs(const RuleQuestion& question) const {
    const Choices rules = Fulfilling(Binding(question));
    const std::set<RuleLiteral> distinct(question.given.begin(), question.given.end());
    const std::vector<RuleLiteral> given(distinct.begin(), distinct.end());
    std::vector<unsigned> repairs;
    for (int size = 1; size <= static_cast<int>(given.size()); ++size) {
        for (unsigned set = 1; set < 1U << given.size(); ++set) {
            const auto isWithin = [&](unsigned smaller) { return (smaller & set) == smaller; };
            if (std::popcount(set) != size || std::any_of(repairs.begin(), repairs.end(), isWithin))
                continue;
            Choices choices = rules;
            for (std::size_t place = 0; place < given.size(); ++place)
                if (!Has(set, static_cast<int>(place)))
                    choices &= Fulfilling(given[place]);
            if (choices.any())
                repairs.push_back(set);
        }
    }
    std::vector<std::vector<RuleLiteral>> all;
    for (unsigned set : repairs) {
        all.emplace_back();
        for (std::size_t place = 0; place < given.size(); ++place)
            if (Has(set, static_cast<int>(place)))
                all.back().push_back(given[place]);
    }
    return all;
}

} // namespace trellis
