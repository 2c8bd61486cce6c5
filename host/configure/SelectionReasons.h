#pragma once

#include "entry/ZOLIQRDCategoryGraph.h"
#include "service/ZOLRuleHandler.h"

#include <string>
#include <vector>

namespace trellis {

// SelectionReasons: what the rules say about the selection on the screen: why an option is in its state, why choices
// cannot stand together, and what can be given up. Asks the rules anew each time, with the rules that are switched on.
class SelectionReasons {
public:
    using Parameters = std::vector<ZOLParameter>;

    explicit SelectionReasons(const ZOLIQRDCategoryGraph& panel) : _panel(panel) {}

    // What was chosen by the user, and not by rules.
    Parameters Choices() const;
    // Of these, the ones that are chosen rather than rejected.
    int CountChosen() const;

    enum class State { Chosen, Rejected, ChosenByRules, RejectedByRules, Ignored, Open };
    State StateOf(const ZOLParameter& option) const;
    // Why the rules put the option into its state; nothing for the user's own choice and an open one. One line each.
    std::vector<ZOLUnicodeString> Why(const ZOLParameter& option) const;
    std::vector<ZOLUnicodeString> WhyConflict() const;
    // What can be given up so that the rest can stand, the smallest first.
    std::vector<Parameters> Repairs() const;
    // The rules that bind nothing, in one line each, with the reason.
    std::vector<ZOLUnicodeString> RulesLeftOut() const;

private:
    class Question;

    const ZOLIQRDCategoryGraph& _panel;
};

} // namespace trellis
