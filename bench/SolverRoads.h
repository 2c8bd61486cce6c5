#pragma once

#include "rules/engine/RuleClauses.h"
#include "rules/engine/SolverLink.h"

#include <vector>

namespace trellis {

// PlainRoad: what the rule engine is measured against. The same clauses in one solver that is kept, and one question
// to it for every option that is not given.
class PlainRoad {
public:
    explicit PlainRoad(const RuleModel& model);
    virtual ~PlainRoad() = default;

    // What follows from literals that can stand together, in the order of options.
    std::vector<RuleLiteral> Forced(const std::vector<RuleLiteral>& given);

protected:
    // The solver has just found the first model of a question.
    virtual void Begin(const std::vector<Literal>& given);
    // Whether every model has the option as the first one.
    virtual bool Follows(int option, const std::vector<Literal>& given);

    std::vector<char> Model() const;

    RuleClauses _clauses;
    SolverLink _solver;
    std::vector<char> _first;
};

// PooledRoad: the same with two well-known improvements. The solver tries first what would free an option that is not
// decided yet, and models are kept, within a question and from question to question.
class PooledRoad : public PlainRoad {
public:
    using PlainRoad::PlainRoad;

private:
    void Begin(const std::vector<Literal>& given) override;
    bool Follows(int option, const std::vector<Literal>& given) override;
    void NoteFree(const std::vector<char>& model);

    std::vector<std::vector<char>> _pool;
    std::vector<char> _isFree;
};

} // namespace trellis
