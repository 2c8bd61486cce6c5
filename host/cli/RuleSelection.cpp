#include "cli/RuleSelection.h"

#include "service/ZOLQRDCfgManager.h"
#include "values/ZOLGYRError.h"

#include <algorithm>
#include <utility>

namespace trellis {

namespace {

// Copies what the list holds, and deletes that.
std::vector<ZOLParameter> Taken(ZOLListPtrZOLParameter list) {
    std::vector<ZOLParameter> taken;
    for (const ZOLParameter* parameter : list)
        taken.push_back(*parameter);
    ZOLDeleteElements(list);
    return taken;
}

} // namespace

bool RuleSelection::Category::HasChoice() const {
    return std::ranges::any_of(options, [](const Option& option) {
        return option.state == State::Chosen || option.state == State::Follows;
    });
}

std::vector<const RuleSelection::Option*> RuleSelection::Category::Of(State state) const {
    std::vector<const Option*> found;
    for (const Option& option : options)
        if (option.state == state)
            found.push_back(&option);
    return found;
}

RuleSelection::RuleSelection(const ZOLIQrdConfigItem_var& dictionary, std::vector<ZOLParameter> given)
    : _given(std::move(given)), _handler(dictionary) {
    for (ZOLParameter& parameter : _given)
        _list.Append(&parameter);
    Read(dictionary);
    Solve();
}

void RuleSelection::Read(const ZOLIQrdConfigItem_var& dictionary) {
    ZOLGYRError error;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (!manager)
        return;
    ZOLListValZOLIQrdCategory_var categories;
    manager->GetCategoriesFromDictionary(dictionary, categories);
    for (const ZOLIQrdCategory_var& stored : categories) {
        Category category{stored->GetName(), stored->GetMandatory() != 0, {}};
        ZOLListValZOLIQrdEffectivity_var options;
        stored->GetOptions(options);
        for (const ZOLIQrdEffectivity_var& option : options) {
            _places[option->GetOption().Bytes()] = {_categories.size(), category.options.size()};
            category.options.push_back(
                {ZOLParameter(category.name, option->GetOption(), 0), State::Open, false});
        }
        _categories.push_back(std::move(category));
    }
}

void RuleSelection::Solve() {
    ZOLExpression result;
    ZOLListPtrZOLExpression expressions;
    ZOLListPtrZOLParameter conflicts, irresolutions;
    int incompatible = 0;
    _handler.SolveRulesForOptions(_list, result, expressions, incompatible, conflicts, irresolutions);
    _isContradictory = incompatible != 0;
    _conflict = Taken(conflicts);
    for (const ZOLParameter& parameter : Taken(result.GetParameters()))
        if (Option* option = FindSame(parameter))
            option->state = parameter.IsNot() ? State::Excluded : State::Follows;
    for (const ZOLParameter& parameter : _given)
        if (Option* option = FindSame(parameter))
            option->state = parameter.IsNot() ? State::Rejected : State::Chosen;
    for (const ZOLParameter& parameter : Taken(irresolutions))
        if (Option* option = FindSame(parameter))
            option->isWanted = true;
}

RuleSelection::Option* RuleSelection::FindSame(const ZOLParameter& parameter) {
    const auto found = _places.find(parameter.GetOption().Bytes());
    return found == _places.end() ? nullptr : &_categories[found->second.first].options[found->second.second];
}

const RuleSelection::Option* RuleSelection::Find(const ZOLUnicodeString& option) const {
    const auto found = _places.find(option.Bytes());
    return found == _places.end() ? nullptr : &_categories[found->second.first].options[found->second.second];
}

int RuleSelection::Count(State state) const {
    std::size_t count = 0;
    for (const Category& category : _categories)
        count += category.Of(state).size();
    return static_cast<int>(count);
}

RuleSelection::Reasons RuleSelection::Why(const Option& option) {
    if (option.state == State::Open)
        return {};
    const bool isNot = option.state == State::Rejected || option.state == State::Excluded;
    return _handler.Why(_list,
                        ZOLParameter(option.parameter.GetCategory(), option.parameter.GetOption(), isNot));
}

} // namespace trellis
