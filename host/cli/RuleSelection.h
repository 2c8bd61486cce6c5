#pragma once

#include "service/ZOLRuleHandler.h"

#include <map>
#include <vector>

namespace trellis {

// RuleSelection: what becomes of all options of a dictionary when a person chooses some and rejects others.
class RuleSelection {
public:
    enum class State {
        Chosen,   // by the person
        Rejected, // by the person
        Follows,  // chosen by the rules
        Excluded, // rejected by the rules
        Open
    };
    struct Option {
        ZOLParameter parameter; // as chosen
        State state = State::Open;
        bool isWanted = false; // open, and an unfulfilled consequence of a rule names it
    };
    struct Category {
        ZOLUnicodeString name;
        bool isMandatory = false;
        std::vector<Option> options;

        bool HasChoice() const;
        std::vector<const Option*> Of(State state) const;
    };
    using Reasons = std::vector<RuleReasonItem>;

    RuleSelection(const ZOLIQrdConfigItem_var& dictionary, std::vector<ZOLParameter> given);

    const std::vector<Category>& Categories() const { return _categories; }
    int Count(State state) const;
    // The state of an option; null where the dictionary has none of the name.
    const Option* Find(const ZOLUnicodeString& option) const;

    // With a conflict nothing follows.
    bool HasConflict() const { return _isContradictory || !_conflict.empty(); }
    // The parameters that cannot stand together; none where the rules contradict each other already without any.
    const std::vector<ZOLParameter>& Conflict() const { return _conflict; }
    Reasons WhyConflict() { return _handler.WhyConflict(_list); }
    std::vector<std::vector<ZOLParameter>> Repairs(int limit) { return _handler.Repairs(_list, limit); }
    // Why the option is in its state; empty for an open one.
    Reasons Why(const Option& option);

private:
    void Read(const ZOLIQrdConfigItem_var& dictionary);
    void Solve();
    Option* FindSame(const ZOLParameter& parameter);

    std::vector<ZOLParameter> _given;
    ZOLListPtrZOLParameter _list; // of what _given holds
    ZOLRuleHandler _handler;
    std::vector<Category> _categories;
    std::map<std::string, std::pair<std::size_t, std::size_t>> _places; // of options, by name
    std::vector<ZOLParameter> _conflict;
    bool _isContradictory = false;
};

} // namespace trellis
