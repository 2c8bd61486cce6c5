#pragma once

#include "rules/engine/RuleClauses.h"
#include "rules/engine/RuleSetting.h"
#include "rules/engine/SolverLink.h"

#include <functional>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace trellis {

// Explanation: the rules and given literals behind a contradiction. Every rule can be left out on its own here, which
// costs too much for ordinary questions; so it is made when the first reason is asked.
class Explanation {
public:
    struct Claim {
        const RuleSetting& setting;
        std::span<const Literal> given;
        std::vector<std::vector<Literal>> denied; // clauses that hold beside them, and never show as a reason
        std::optional<RuleReason> without = {};   // a rule that does not bind here
    };

    explicit Explanation(const RuleClauses& clauses);

    // Rules and given literals of the claim which contradict each other and what is denied, none of them too many;
    // nothing where there is no contradiction.
    std::optional<RuleExplanation> Find(const Claim& claim);
    // Whether there is a contradiction: the one question about all rules that Find starts with.
    bool Fails(const Claim& claim);
    // A variable for use in what is denied.
    int NewVariable() { return _solver.NewVariable(); }

private:
    // A rule, or a given literal.
    struct Part {
        int rule = -1; // place in _rules
        Literal given = SolverLink::NoLiteral;
    };
    struct Rule {
        RuleReason reason;
        int block = -1; // of the clauses; -1: the exclusive category
        Literal guard = SolverLink::NoLiteral;
    };

    bool Binds(const Claim& claim, const Rule& rule) const;
    std::vector<Part> FailedParts(const Claim& claim) const;
    std::vector<Part> Minimize(const std::vector<Part>& parts, const Claim& claim) const;
    // Puts the rule into a solver whose variables `number` tells.
    void AddRule(SolverLink& solver, const Rule& rule, Literal guard,
                 const std::function<int(int)>& number) const;

    const RuleClauses& _clauses;
    std::vector<Rule> _rules;
    SolverLink _solver;
};

} // namespace trellis
