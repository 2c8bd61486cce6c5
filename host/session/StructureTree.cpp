#include "session/StructureTree.h"

#include "service/ConfigurablePartQuery.h"
#include "service/ZOLQRDCfgManager.h"
#include "toolkit/ZOLGYRResource.h"
#include "values/ZOLGYRError.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace trellis {

namespace {

std::string DisplayName(const ZOLDMInstance& part) {
    return part.GetNameInstance(1, 1, " ", "$BOM_NAVIG").Bytes();
}

ZOLUnicodeString Text(const char* key, const ZOLListValZOLUnicodeString& parameters = {}) {
    ZOLUnicodeString text = key;
    ZOLGYRResource("StructureText").GetValue(key, text, parameters);
    return text;
}

ZOLUnicodeString Counted(int count, const char* one, const char* many) {
    return Text(count == 1 ? one : many, {ZOLUnicodeString::FromNumber(count)});
}

} // namespace

ZOLUnicodeString StructureTree::State(const ZOLDMInstance& part) {
    ZOLGYRError error;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() != 0)
        return {};
    ZOLQRDConfigurableObject object;
    manager->GetConfigurableObject(part, object, error);
    if (error.GetCode() != 0)
        return {};
    const ZOLIQrdConfigItem_var dictionary = object.GetDictionary();
    if (dictionary == NULL_var)
        return Text("State");
    ZOLListVal<ZOLIQrdCategory_var> categories;
    ZOLListVal<ZOLQRDCfgEffectivity> options;
    manager->GetCategoriesFromDictionary(dictionary, categories);
    manager->GetOptionsFromDictionary(dictionary, options);
    return Text("State.Dictionary", {Counted(categories.Size(), "Category", "Categories"),
                                     Counted(options.Size(), "Option", "Options")});
}

StructureTree::StructureTree(const ZOLListValZOLDMInstance& roots, int levels)
    : _roots(roots), _levels(levels) {
    ReadLevels();
}

void StructureTree::ReadStates(const std::vector<ZOLDMInstance>& parts) {
    ZOLGYRError error; // the structure is readable without
    const std::vector<bool> areConfigurable = ConfigurablePartQuery::Among(parts, error);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        _children[parts[i]];
        if (areConfigurable[i])
            _states.try_emplace(parts[i], State(parts[i]));
    }
}

void StructureTree::ReadLevels() {
    ZOLListValZOLDMInstance level = _roots;
    for (int depth = 0; level.Size() > 0; ++depth) {
        ReadStates({level.begin(), level.end()});
        if (depth == _levels)
            return;
        ZOLListValZOLDMInstance links;
        ZOLDMInstance::GetChildrenOfLevel(level, links);
        level.RemoveAll();
        for (const ZOLDMInstance& link : links) {
            const ZOLDMInstance child = link.GetChildPart(1);
            _children[link.GetPart()].push_back(child);
            if (!_children.contains(child))
                level.Append(child);
        }
        level.RemoveDuplicates();
    }
}

std::vector<ZOLDMInstance> StructureTree::Below(const ZOLDMInstance& part, const Path& path) const {
    const auto found = _children.find(part);
    const bool ends =
        static_cast<int>(path.size()) == _levels || std::find(path.begin(), path.end(), part) != path.end();
    return found == _children.end() || ends ? std::vector<ZOLDMInstance>() : found->second;
}

void StructureTree::PrintPart(const ZOLDMInstance& part, Path& path, std::ostream& output) const {
    output << std::string(path.size() * 2, ' ') << DisplayName(part);
    const auto state = _states.find(part);
    if (state != _states.end() && !state->second.IsEmpty())
        output << "  [" << state->second.Bytes() << ']';
    output << '\n';
    const std::vector<ZOLDMInstance> children = Below(part, path);
    path.push_back(part);
    for (const ZOLDMInstance& child : children)
        PrintPart(child, path, output);
    path.pop_back();
}

void StructureTree::Print(std::ostream& output) const {
    Path path;
    for (const ZOLDMInstance& root : _roots)
        PrintPart(root, path, output);
}

nlohmann::ordered_json StructureTree::JsonOf(const ZOLDMInstance& part, Path& path) const {
    nlohmann::ordered_json json = {{"name", DisplayName(part)}, {"id", part.GetUUId().Text()}};
    const auto state = _states.find(part);
    json["configurable"] = state != _states.end() && !state->second.IsEmpty();
    const std::vector<ZOLDMInstance> children = Below(part, path);
    path.push_back(part);
    json["children"] = nlohmann::ordered_json::array();
    for (const ZOLDMInstance& child : children)
        json["children"].push_back(JsonOf(child, path));
    path.pop_back();
    return json;
}

nlohmann::ordered_json StructureTree::Json() const {
    Path path;
    nlohmann::ordered_json all = nlohmann::ordered_json::array();
    for (const ZOLDMInstance& root : _roots)
        all.push_back(JsonOf(root, path));
    return all;
}

} // namespace trellis
