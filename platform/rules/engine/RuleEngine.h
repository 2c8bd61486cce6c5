#pragma once

#include "rules/engine/Deduction.h"
#include "rules/engine/Explanation.h"
#include "rules/engine/Irresolutions.h"
#include "rules/engine/RuleQuestion.h"

#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace trellis {

// RuleEngine: answers what follows from a rule set and the user's choices, always exactly and completely, and says
// why. Compiled once; what it learns is kept from question to question. An answer depends on the question alone;
// which one of several reasons is told may depend on what was asked before. For one thread.
class RuleEngine {
public:
    explicit RuleEngine(RuleModel model);
    ~RuleEngine();

    // The last ten questions are answered from memory. The answer stays until the next question.
    const RuleAnswer& Play(const RuleQuestion& question);

    // Why the literal follows; nothing where it does not, or where the given ones conflict. A given literal is its
    // own reason.
    std::optional<RuleExplanation> Why(const RuleQuestion& question, RuleLiteral literal);
    // Why the given literals cannot stand together, or why the rules contradict each other; nothing where they do
    // not. The given literals are those that Play tells.
    std::optional<RuleExplanation> WhyConflict(const RuleQuestion& question);
    // Given literals to give up so that the rest can stand: sets none larger than needed, the smallest first, at most
    // `limit`; each was tried. None where nothing conflicts or the rules contradict each other.
    std::vector<std::vector<RuleLiteral>> Repairs(const RuleQuestion& question, std::size_t limit);

    const RuleModel& Model() const { return _model; }
    const RuleClauses& Clauses() const { return _clauses; }
    Explanation& Reasons();

private:
    static constexpr std::size_t AnswersKept = 10;
    static constexpr std::size_t SettingsKept = 3;

    struct Kept {
        RuleSetting setting;
        std::vector<Literal> given;
        RuleAnswer answer;
    };

    Deduction& DeductionOf(const RuleSetting& setting);
    RuleAnswer Answer(const RuleSetting& setting, const std::vector<Literal>& given);
    std::vector<int> IrresolutionsOf(const std::vector<Literal>& given,
                                     const std::vector<RuleLiteral>& forced) const;

    RuleModel _model;
    RuleClauses _clauses;
    Irresolutions _irresolutions;
    std::deque<std::unique_ptr<Deduction>> _deductions; // the last used first
    std::deque<Kept> _kept;                             // the newest first
    std::unique_ptr<Explanation> _explanation;          // once asked for
};

} // namespace trellis
