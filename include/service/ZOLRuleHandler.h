#pragma once

#include "service/RuleReasonItem.h"
#include "service/ZOLConfigRule.h"
#include "service/ZOLExpression.h"
#include "values/ZOLQRDCfgEffectivity.h"

#include <memory>
#include <vector>

namespace trellis {

class DictionaryRules;
struct RuleQuestion;

// What is wrong or needless about the rules of some dictionaries.
struct TRELLIS_API RuleFinding {
    enum class Kind {
        LeftOut,       // a rule that cannot be read, or names what is not there: it binds nothing
        Contradiction, // the rules contradict each other: nothing can be chosen at all
        NeverChosen,   // an option that no selection can hold
        AlwaysChosen,  // an option that every selection holds
        SaysNothing    // a rule that others say already, or that always holds
    };

    Kind kind = Kind::LeftOut;
    ZOLUnicodeString subject; // the rule or option, in one line
    ZOLUnicodeString verdict; // of LeftOut: what is wrong with the text
    std::vector<RuleReasonItem> reasons;
};

} // namespace trellis

// ZOLRuleHandler: asks the rules of dictionaries: which rules and matrices name something, and what follows from a
// selection.
//
// What the rules mean:
//   exclusive category   at most one of its options; exclusivity is that of the parameters given, where they name the
//                        category, else the stored one
//   mandatory category   at least one of its options, if it has any
//   directive rule       where the condition holds, the consequence holds
//   package              its plain options stand or fall together; where they stand, the negated ones do not
//   matrix               the options chosen in its columns fit at least one row; an empty cell fits anything, a column
//                        in which nothing is chosen binds nothing, a matrix without rows binds nothing, a row that
//                        names an option that is gone fits nothing
// Categories of one name in several dictionaries are one. Rules that cannot be read, or name options that are not
// there, bind nothing; they are named by Check and in the trace. Parameters of unknown options are passed over; no
// dictionaries and no parameters are legal. Nothing here changes or saves anything.
class TRELLIS_API ZOLRuleHandler {
public:
    explicit ZOLRuleHandler(const ZOLListValZOLIQrdConfigItem_var& dictionaries);
    // For queries: rules that name any of these categories or options (by name). No filter at all means all rules.
    explicit ZOLRuleHandler(const ZOLIQrdConfigItem_var& dictionary,
                            const ZOLListValZOLIQrdCategory_var& categories = {},
                            const ZOLListValZOLQRDCfgEffectivity& options = {});
    ~ZOLRuleHandler();
    ZOLRuleHandler(const ZOLRuleHandler&) = delete;
    ZOLRuleHandler& operator=(const ZOLRuleHandler&) = delete;

    // Directive rules and packages that pass the filter, in order of creation; never rows of matrices.
    ZOLListValZOLIQrdConfigRule_var GetListOfConfigRules() const;
    // Matrices with such a category as column, or such an option in a row.
    ZOLListValZOLIQrdCompatibilityMatrix_var GetListOfMatrices() const;
    // The rule object of a stored rule, with its name and description; the caller deletes it. Null for null.
    static ZOLConfigRule* RuleFromConfigRule(const ZOLIQrdConfigRule_var& rule);

    // Leave out a kind of rules for this handler. Categories bind all the same.
    void DisableDirectiveRules();
    void DisablePackages();
    void DisableMatrices();

    // Plays the rules on the parameters. Exact and complete.
    //   result         the options whose state follows, apart from those given, in the order of the dictionaries, with
    //                  source 2, descriptions and exclusivity
    //   expressions    stays empty
    //   incompatible   non-zero: the rules contradict each other with nothing given
    //   conflicts      parameters given that cannot stand together; none of them too many
    //   irresolutions  undecided options of the consequences of directive rules whose condition holds, and which are
    //                  not fulfilled
    // With a conflict or contradiction nothing follows. All that comes back is new and deleted by the caller.
    void SolveRulesForOptions(const ZOLListPtrZOLParameter& parameters, ZOLExpression& result,
                              ZOLListPtrZOLExpression& expressions, int& incompatible,
                              ZOLListPtrZOLParameter& conflicts, ZOLListPtrZOLParameter& irresolutions);

    // Why an option is in the state of `state` (chosen, or rejected): rules and choices that are enough for it
    // together, none too many; empty where it does not follow. A given one is its own reason.
    std::vector<trellis::RuleReasonItem> Why(const ZOLListPtrZOLParameter& parameters,
                                             const ZOLParameter& state);
    // Why the parameters cannot stand together, or the rules contradict each other; empty where they do not.
    std::vector<trellis::RuleReasonItem> WhyConflict(const ZOLListPtrZOLParameter& parameters);
    // What can be done about a conflict: parameters to give up so that the rest can stand, none too many, the smallest
    // sets first, at most `limit`. Each was tried. Empty where nothing conflicts, or nothing helps.
    std::vector<std::vector<ZOLParameter>> Repairs(const ZOLListPtrZOLParameter& parameters, int limit);
    // What is wrong or needless about the rules, all kinds on and nothing chosen.
    std::vector<trellis::RuleFinding> CheckRules();
    // The rules that bind nothing, with the reason of each.
    std::vector<trellis::RuleFinding> RulesLeftOut();

private:
    trellis::RuleQuestion Question(const trellis::DictionaryRules& rules,
                                   const ZOLListPtrZOLParameter& parameters) const;
    // The compiled rules; null and a trace where they cannot be read.
    std::shared_ptr<trellis::DictionaryRules> Rules() const;
    bool PassesFilter(const ZOLUnicodeString& text) const;
    bool PassesFilter(const ZOLIQrdCompatibilityMatrix_var& matrix) const;

    ZOLListValZOLIQrdConfigItem_var _dictionaries;
    ZOLListValZOLUnicodeString _categories; // filters, by name
    ZOLListValZOLUnicodeString _options;
    bool _useDirectives = true;
    bool _usePackages = true;
    bool _useMatrices = true;
};
