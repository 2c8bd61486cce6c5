#include "session/KeptSelection.h"

#include "service/ZOLQRDCfgManager.h"
#include "session/WholeFile.h"
#include "values/ZOLGYRError.h"

#include <nlohmann/json.hpp>

#include <fstream>
#include <iterator>
#include <unordered_map>
#include <unordered_set>

namespace trellis {

namespace {

using Json = nlohmann::ordered_json;

constexpr int NotRead = 60634;
constexpr int NoSelection = 60635;
constexpr int Version = 1;
constexpr const char* VersionKey = "trellis selection";
constexpr const char* IgnoredKey = "ignored categories";
constexpr int Indent = 2;

Json JsonOf(const KeptSelection& selection) {
    Json json = {{VersionKey, Version}, {"product", selection.product}, {"choices", Json::array()}};
    for (const ZOLParameter& choice : selection.choices)
        json["choices"].push_back({{"category", choice.GetCategory().Bytes()},
                                   {"option", choice.GetOption().Bytes()},
                                   {"rejected", choice.IsNot() != 0}});
    json[IgnoredKey] = Json::array();
    for (const ZOLUnicodeString& category : selection.ignoredCategories)
        json[IgnoredKey].push_back(category.Bytes());
    return json;
}

KeptSelection SelectionOf(const Json& json) {
    KeptSelection selection;
    selection.product = json.value("product", "");
    for (const Json& choice : json.at("choices")) {
        selection.choices.emplace_back(choice.at("category").get<std::string>(),
                                       choice.at("option").get<std::string>(),
                                       choice.value("rejected", false));
        selection.choices.back().SetParameterSource(ZOLParameter::SourceUser);
    }
    for (const Json& category : json.value(IgnoredKey, Json::array()))
        selection.ignoredCategories.Append(category.get<std::string>());
    return selection;
}

} // namespace

bool KeptSelection::Write(const std::string& file, ZOLGYRError& error) const {
    return WholeFile::Write(
        file, JsonOf(*this).dump(Indent, ' ', false, Json::error_handler_t::replace) + '\n', error);
}

std::optional<KeptSelection> KeptSelection::Read(const std::string& file, ZOLGYRError& error) {
    std::ifstream input(file, std::ios::binary);
    // A folder opens, but its first read fails.
    if (!input || (input.peek(), input.bad())) {
        error.Set(NotRead, 0, {file});
        return std::nullopt;
    }
    const std::string text{std::istreambuf_iterator<char>(input), {}};
    try {
        const Json json = Json::parse(text);
        if (json.at(VersionKey) != Version)
            error.Set(NoSelection, 0, {file, "it is of a later version"});
        else
            return SelectionOf(json);
    } catch (const Json::exception& exception) {
        error.Set(NoSelection, 0, {file, exception.what()});
    }
    return std::nullopt;
}

std::vector<ZOLParameter> KeptSelection::TakeOutUnknown(const ZOLListValZOLIQrdConfigItem_var& dictionaries) {
    std::unordered_set<ZOLUnicodeString> named; // a large dictionary has few of the categories chosen from
    for (const ZOLParameter& choice : choices)
        named.insert(choice.GetCategory());
    std::unordered_map<std::string, int> exclusivities; // by the reference of the option
    ZOLGYRError error;
    const ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    for (int i = 1; manager && i <= dictionaries.Size(); ++i) {
        ZOLListValZOLIQrdCategory_var categories;
        manager->GetCategoriesFromDictionary(dictionaries[i], categories);
        for (const ZOLIQrdCategory_var& category : categories) {
            if (!named.contains(category->GetName()))
                continue;
            ZOLListValZOLIQrdEffectivity_var options;
            category->GetOptions(options);
            for (const ZOLIQrdEffectivity_var& option : options)
                exclusivities.emplace(
                    ZOLParameter(category->GetName(), option->GetOption(), 0).GetParameterString().Bytes(),
                    category->GetExclusivity());
        }
    }
    std::vector<ZOLParameter> unknown;
    std::vector<ZOLParameter> known;
    for (ZOLParameter& choice : choices) {
        const auto found = exclusivities.find(choice.GetParameterString().Bytes());
        if (found != exclusivities.end())
            choice.SetCategoryExclusivity(found->second);
        (found == exclusivities.end() ? unknown : known).push_back(choice);
    }
    choices = std::move(known);
    return unknown;
}

} // namespace trellis
