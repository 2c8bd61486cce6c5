#include "rules/engine/RuleSetting.h"

#include <algorithm>
#include <map>

namespace trellis {

RuleSetting::RuleSetting(const RuleQuestion& question, const RuleClauses& clauses)
    : _clauses(&clauses),
      _areDirectivesOn(question.areDirectivesOn),
      _arePackagesOn(question.arePackagesOn),
      _areMatricesOn(question.areMatricesOn) {
    std::map<int, bool> last;
    for (const auto& [category, isExclusive] : question.exclusivity)
        last[category] = isExclusive;
    for (const auto& [category, isExclusive] : last)
        if (isExclusive != clauses.IsExclusive(category))
            _turned.push_back(category);
}

bool RuleSetting::Binds(RuleReason reason) const {
    switch (reason.kind) {
    case RuleReason::Kind::Directive:
        return _areDirectivesOn;
    case RuleReason::Kind::Package:
        return _arePackagesOn;
    case RuleReason::Kind::Matrix:
        return _areMatricesOn;
    case RuleReason::Kind::Exclusive:
        return _clauses->IsExclusive(reason.number) !=
               std::binary_search(_turned.begin(), _turned.end(), reason.number);
    case RuleReason::Kind::Mandatory:
        break;
    }
    return true;
}

} // namespace trellis
