#include "rules/language/ReferenceCheck.h"

#include "rules/language/NameSuggestion.h"
#include "rules/language/RuleLexer.h"

#include <algorithm>

namespace trellis {

namespace {

template <class Map>
std::vector<ZOLUnicodeString> KeysOf(const Map& map) {
    std::vector<ZOLUnicodeString> keys;
    for (const auto& [key, value] : map)
        keys.emplace_back(key);
    return keys;
}

// Parameters of a verdict: what was written, and what was perhaps meant.
std::vector<ZOLUnicodeString> WithSuggestion(std::vector<ZOLUnicodeString> texts,
                                             const std::vector<ZOLUnicodeString>& names) {
    const ZOLUnicodeString nearest = NameSuggestion::Nearest(texts.back(), names);
    if (!nearest.IsEmpty())
        texts.push_back(nearest);
    return texts;
}

} // namespace

ReferenceCheck::ReferenceCheck(const ZOLListPtrZOLParameter& parameters) {
    for (const ZOLParameter* parameter : parameters) {
        if (!parameter)
            continue;
        _optionsOf[parameter->GetCategory().Bytes()].push_back(parameter->GetOption());
        Names& categories = _categoriesOf[parameter->GetOption().Bytes()];
        if (std::ranges::find(categories, parameter->GetCategory()) == categories.end())
            categories.push_back(parameter->GetCategory());
    }
}

RuleFault ReferenceCheck::FindFault(const ZOLUnicodeString& rule) const {
    for (const RuleToken& token : RuleLexer::Tokens(rule, RuleWords::Neutral())) {
        if (token.kind != RuleToken::Kind::Reference)
            continue;
        RuleFault fault = FaultOf(token.reference.category, token.reference.option, token.begin);
        if (fault.number)
            return fault;
    }
    return {};
}

RuleFault ReferenceCheck::FaultOf(const std::string& category, const std::string& option,
                                  std::size_t offset) const {
    if (category.empty()) {
        const auto found = _categoriesOf.find(option);
        if (found == _categoriesOf.end())
            return {RuleFault::UnknownName, offset, WithSuggestion({option}, KeysOf(_categoriesOf))};
        if (found->second.size() > 1)
            return {RuleFault::Ambiguous, offset, {option, found->second[0], found->second[1]}};
        return {};
    }
    const auto found = _optionsOf.find(category);
    if (found == _optionsOf.end())
        return {RuleFault::UnknownCategory, offset, WithSuggestion({category}, KeysOf(_optionsOf))};
    if (option.empty() || std::ranges::find(found->second, ZOLUnicodeString(option)) != found->second.end())
        return {};
    return {RuleFault::UnknownOption, offset, WithSuggestion({category, option}, found->second)};
}

} // namespace trellis
