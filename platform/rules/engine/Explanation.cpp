#include "rules/engine/Explanation.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace trellis {

Explanation::Explanation(const RuleClauses& clauses) : _clauses(clauses), _solver(clauses.VariableCount()) {
    for (std::size_t block = 0; block < clauses.Blocks().size(); ++block)
        _rules.push_back({clauses.Blocks()[block].reason, static_cast<int>(block)});
    for (int category = 0; category < clauses.CategoryCount(); ++category)
        _rules.push_back({{RuleReason::Kind::Exclusive, category}});
    for (Rule& rule : _rules) {
        rule.guard = MakeLiteral(_solver.NewVariable(), true);
        AddRule(_solver, rule, rule.guard, [](int variable) { return variable; });
    }
}

void Explanation::AddRule(SolverLink& solver, const Rule& rule, Literal guard,
                          const std::function<int(int)>& number) const {
    std::vector<Literal> literals;
    if (rule.block < 0) {
        for (int option : _clauses.Options(rule.reason.number))
            literals.push_back(MakeLiteral(number(option), true));
        solver.AddAtMostOne(std::move(literals), guard);
        return;
    }
    const RuleClauses::Block& block = _clauses.Blocks()[rule.block];
    for (int clause = block.firstClause; clause < block.endClause; ++clause) {
        literals.clear();
        for (Literal literal : _clauses.Clause(clause))
            literals.push_back(MakeLiteral(number(VariableOf(literal)), IsPositive(literal)));
        solver.AddGuarded(literals, guard);
    }
}

bool Explanation::Binds(const Claim& claim, const Rule& rule) const {
    return claim.setting.Binds(rule.reason) && claim.without != rule.reason;
}

bool Explanation::Fails(const Claim& claim) {
    std::vector<Literal> assumptions;
    for (const auto& clause : claim.denied) {
        if (clause.size() == 1) {
            assumptions.push_back(clause.front());
            continue;
        }
        assumptions.push_back(MakeLiteral(_solver.NewVariable(), true));
        _solver.AddGuarded(clause, assumptions.back());
    }
    assumptions.insert(assumptions.end(), claim.given.begin(), claim.given.end());
    for (const Rule& rule : _rules)
        if (Binds(claim, rule))
            assumptions.push_back(rule.guard);
    return !_solver.IsSatisfiable(assumptions);
}

// What the solver names as failed; given literals behind the rules.
std::vector<Explanation::Part> Explanation::FailedParts(const Claim& claim) const {
    std::vector<Part> parts;
    for (std::size_t rule = 0; rule < _rules.size(); ++rule)
        if (Binds(claim, _rules[rule]) && _solver.HasFailed(_rules[rule].guard))
            parts.push_back({static_cast<int>(rule)});
    for (Literal literal : claim.given)
        if (_solver.HasFailed(literal))
            parts.push_back({-1, literal});
    return parts;
}

// Tries to leave out one part after the other, from the last one, in a solver that knows these parts alone.
std::vector<Explanation::Part> Explanation::Minimize(const std::vector<Part>& parts,
                                                     const Claim& claim) const {
    SolverLink small(0);
    std::unordered_map<int, int> numbers;
    const auto number = [&](int variable) {
        const auto [place, isNew] = numbers.try_emplace(variable, -1);
        if (isNew)
            place->second = small.NewVariable();
        return place->second;
    };
    const auto numbered = [&](std::vector<Literal> clause) {
        for (Literal& literal : clause)
            literal = MakeLiteral(number(VariableOf(literal)), IsPositive(literal));
        return clause;
    };
    for (const auto& clause : claim.denied)
        small.Add(numbered(clause));
    std::vector<std::pair<Literal, Part>> rest;
    for (const Part& part : parts) {
        const Literal guard = MakeLiteral(small.NewVariable(), true);
        if (part.rule < 0)
            small.AddGuarded(numbered({part.given}), guard);
        else
            AddRule(small, _rules[part.rule], guard, number);
        rest.emplace_back(guard, part);
    }
    std::vector<Part> needed;
    std::vector<Literal> neededGuards;
    while (!rest.empty()) {
        const auto [guard, part] = rest.back();
        rest.pop_back();
        std::vector<Literal> assumptions = neededGuards;
        for (const auto& entry : rest)
            assumptions.push_back(entry.first);
        if (small.IsSatisfiable(assumptions)) {
            needed.push_back(part);
            neededGuards.push_back(guard);
        } else {
            std::erase_if(rest, [&](const auto& entry) { return !small.HasFailed(entry.first); });
        }
    }
    return needed;
}

std::optional<RuleExplanation> Explanation::Find(const Claim& claim) {
    if (!Fails(claim))
        return std::nullopt;
    RuleExplanation explanation;
    for (const Part& part : Minimize(FailedParts(claim), claim)) {
        if (part.rule < 0)
            explanation.given.push_back(RuleLiteralOf(part.given));
        else
            explanation.rules.push_back(_rules[part.rule].reason);
    }
    std::sort(explanation.rules.begin(), explanation.rules.end());
    std::sort(explanation.given.begin(), explanation.given.end());
    return explanation;
}

} // namespace trellis
