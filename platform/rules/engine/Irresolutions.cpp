#include "rules/engine/Irresolutions.h"

#include <algorithm>

namespace trellis {

Irresolutions::Irresolutions(std::span<const DirectiveModel> directives) {
    for (const DirectiveModel& directive : directives) {
        const int condition = Store(directive.condition);
        _directives.push_back({condition, Store(directive.consequence)});
    }
    _nodes.shrink_to_fit();
}

int Irresolutions::Store(const RuleFormula& formula) {
    const int place = static_cast<int>(_nodes.size());
    _nodes.push_back({formula.kind, formula.option, 0});
    for (const RuleFormula& part : formula.parts)
        Store(part);
    _nodes[place].end = static_cast<int>(_nodes.size());
    return place;
}

// Chosen where the formula holds, Rejected where it cannot, by the known states of its parts alone.
Irresolutions::State Irresolutions::Evaluate(int place, std::span<const State> states) const {
    const Node& node = _nodes[place];
    if (node.kind == RuleFormula::Kind::Option)
        return states[node.option];
    if (node.kind == RuleFormula::Kind::Not) {
        const State part = Evaluate(place + 1, states);
        if (part == State::Unknown)
            return part;
        return part == State::Chosen ? State::Rejected : State::Chosen;
    }
    const State deciding = node.kind == RuleFormula::Kind::Or ? State::Chosen : State::Rejected;
    State all = node.kind == RuleFormula::Kind::Or ? State::Rejected : State::Chosen;
    for (int part = place + 1; part < node.end; part = _nodes[part].end) {
        const State state = Evaluate(part, states);
        if (state == deciding)
            return state;
        if (state == State::Unknown)
            all = state;
    }
    return all;
}

std::vector<int> Irresolutions::Find(std::span<const State> states) const {
    std::vector<int> options;
    for (const auto& [condition, consequence] : _directives) {
        if (Evaluate(condition, states) != State::Chosen || Evaluate(consequence, states) == State::Chosen)
            continue;
        for (int place = consequence; place < _nodes[consequence].end; ++place) {
            const Node& node = _nodes[place];
            if (node.kind == RuleFormula::Kind::Option && states[node.option] == State::Unknown)
                options.push_back(node.option);
        }
    }
    std::sort(options.begin(), options.end());
    options.erase(std::unique(options.begin(), options.end()), options.end());
    return options;
}

} // namespace trellis
