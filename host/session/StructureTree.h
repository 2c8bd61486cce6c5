#pragma once

#include "model/ZOLDMInstance.h"

#include <nlohmann/json_fwd.hpp>

#include <ostream>
#include <unordered_map>

namespace trellis {

// StructureTree: a product structure as text or JSON, with what is configurable.
class StructureTree {
public:
    static constexpr int AllLevels = -1;

    // Reads so many levels of links below the roots, each level in a fixed number of queries.
    StructureTree(const ZOLListValZOLDMInstance& roots, int levels);

    void Print(std::ostream& output) const;
    nlohmann::ordered_json Json() const;

    // How a part stands: nothing, or for example "configurable, dictionary of 3 categories and 12 options".
    static ZOLUnicodeString State(const ZOLDMInstance& part);

private:
    using Path = std::vector<ZOLDMInstance>;

    void ReadLevels();
    void ReadStates(const std::vector<ZOLDMInstance>& parts);
    void PrintPart(const ZOLDMInstance& part, Path& path, std::ostream& output) const;
    nlohmann::ordered_json JsonOf(const ZOLDMInstance& part, Path& path) const;
    // The parts below one at the end of a path; none below the last level, or where a cycle in the data closes.
    std::vector<ZOLDMInstance> Below(const ZOLDMInstance& part, const Path& path) const;

    ZOLListValZOLDMInstance _roots;
    int _levels;
    std::unordered_map<ZOLDMInstance, std::vector<ZOLDMInstance>> _children;
    std::unordered_map<ZOLDMInstance, ZOLUnicodeString> _states; // of configurable parts
};

} // namespace trellis
