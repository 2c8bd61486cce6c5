#pragma once

#include "rules/engine/RuleModel.h"

#include <cstddef>
#include <span>
#include <vector>

namespace trellis {

// Irresolutions: which options the directives leave to be decided, given what is known of each option.
class Irresolutions {
public:
    enum class State : char { Unknown, Chosen, Rejected };

    explicit Irresolutions(std::span<const DirectiveModel> directives);

    // `states`: by option. The unknown options of the consequences of those directives whose condition holds by the
    // known states, and whose consequence does not; in the order of options.
    std::vector<int> Find(std::span<const State> states) const;

private:
    // Formulas in one row: a node, then its parts; `end` is the place behind the last of them.
    struct Node {
        RuleFormula::Kind kind;
        int option;
        int end;
    };
    struct Place {
        int condition;
        int consequence;
    };

    int Store(const RuleFormula& formula);
    State Evaluate(int place, std::span<const State> states) const;

    std::vector<Node> _nodes;
    std::vector<Place> _directives;
};

} // namespace trellis
