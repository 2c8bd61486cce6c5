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

    // What was chosen and rejected by the user, and not by rules; also what another product has left behind, for undo.
    Parameters Choices() const;
    // The same as far as the dictionaries shown know it.
    Parameters KnownChoices() const;
    // None in simple mode, where ignoring has no effect.
    ZOLListValZOLUnicodeString IgnoredCategories() const;
    // The same without those that are given up. In an exclusive category the rejections of the other options go with
    // the choice that made them.
    Parameters ChoicesWithout(const Parameters& givenUp) const;
    // How many are known, and chosen rather than rejected.
    int CountChosen() const;

    enum class State { Chosen, Rejected, RejectedWithChoice, ChosenByRules, RejectedByRules, Ignored, Open };
    State StateOf(const ZOLParameter& option) const;
    // The option of the same exclusive category that is chosen by the user; of several the first, empty for none.
    ZOLUnicodeString ChosenInstead(const ZOLParameter& option) const;
    // Why the rules put the option into its state; nothing for the user's own choice and an open one. One line each.
    std::vector<ZOLUnicodeString> Why(const ZOLParameter& option) const;
    std::vector<ZOLUnicodeString> WhyConflict() const;
    // What can be given up so that the rest can stand, the smallest first.
    std::vector<Parameters> Repairs() const;
    // The rules that bind nothing, in one line each, with the reason.
    std::vector<ZOLUnicodeString> RulesLeftOut() const;

private:
    class Question;

    // What has to be said of the choices: all but rejections that an exclusive category brings with a choice.
    Parameters Stated() const;

    const ZOLIQRDCategoryGraph& _panel;
};

} // namespace trellis
