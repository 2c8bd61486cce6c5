#pragma once

#include "rules/engine/RuleClauses.h"

#include <vector>

namespace trellis {

// RuleSetting: which rules of a set bind for a question.
class RuleSetting {
public:
    RuleSetting(const RuleQuestion& question, const RuleClauses& clauses);

    bool Binds(RuleReason reason) const;

    friend bool operator==(const RuleSetting&, const RuleSetting&) = default;

private:
    const RuleClauses* _clauses;
    bool _areDirectivesOn;
    bool _arePackagesOn;
    bool _areMatricesOn;
    std::vector<int> _turned; // categories whose exclusivity is not the stored one; sorted
};

} // namespace trellis
