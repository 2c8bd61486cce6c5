#include "service/OptionQuery.h"

#include "rules/language/NameSuggestion.h"
#include "service/ZOLQRDCfgManager.h"
#include "values/ZOLGYRError.h"

#include <vector>

namespace trellis {

namespace {

constexpr int NoSuchOption = 60749;

ZOLParameter ParameterOf(const ZOLIQrdCategory_var& category, const ZOLIQrdEffectivity_var& option) {
    ZOLParameter parameter(category->GetName(), category->GetDescription(), option->GetOption(),
                           option->GetDescription(), 0);
    parameter.SetCategoryExclusivity(category->GetExclusivity());
    return parameter;
}

std::vector<ZOLParameter> AllOptions(const ZOLIQrdConfigItem_var& dictionary, ZOLGYRError& error) {
    std::vector<ZOLParameter> all;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (!manager)
        return all;
    ZOLListValZOLIQrdCategory_var categories;
    manager->GetCategoriesFromDictionary(dictionary, categories);
    for (const ZOLIQrdCategory_var& category : categories) {
        ZOLListValZOLIQrdEffectivity_var options;
        category->GetOptions(options);
        for (const ZOLIQrdEffectivity_var& option : options)
            all.push_back(ParameterOf(category, option));
    }
    return all;
}

ZOLUnicodeString WithCategory(const ZOLParameter& option) {
    return option.GetCategory() + "." + option.GetOption();
}

// Whether the whole word is a reference to this option.
bool IsReference(const ZOLUnicodeString& word, const ZOLParameter& option) {
    ZOLParameter read("", "", 0);
    int position = 0;
    return ZOLParameter::ReadParameterString(word, position, read) && position == word.GetLengthInByte() &&
           read.GetOption() == option.GetOption() &&
           (read.GetCategory().IsEmpty() || read.GetCategory() == option.GetCategory());
}

} // namespace

std::optional<ZOLParameter> OptionQuery::ByWord(const ZOLIQrdConfigItem_var& dictionary,
                                                const ZOLUnicodeString& word, ZOLGYRError& error) {
    ZOLGYRError failure;
    const std::vector<ZOLParameter> all = AllOptions(dictionary, failure);
    for (const ZOLParameter& option : all)
        if (option.GetOption() == word)
            return option;
    for (const ZOLParameter& option : all)
        if (WithCategory(option) == word || IsReference(word, option))
            return option;
    std::vector<ZOLUnicodeString> names;
    for (const ZOLParameter& option : all)
        names.insert(names.end(), {option.GetOption(), WithCategory(option)});
    if (failure.GetCode() == 0)
        failure.Set(NoSuchOption, {word});
    if (const ZOLUnicodeString nearest = NameSuggestion::Nearest(word, names); !nearest.IsEmpty())
        failure.Add(nearest);
    error = failure;
    return std::nullopt;
}

} // namespace trellis
