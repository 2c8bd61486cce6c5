#pragma once

#include "cli/RuleSelection.h"
#include "model/ZOLDMInstance.h"

#include <nlohmann/json_fwd.hpp>

#include <ostream>
#include <unordered_map>

namespace trellis {

// BillOfMaterial: the parts below a product that a selection needs.
//
// A link without effectivities on options holds in every variant. One that has some holds where the options of one of
// them are chosen, falls away where each of them names a rejected option, and else depends on what is still open.
// An option that the dictionary lacks counts as rejected. Dates, numbers and modifications are not judged.
class BillOfMaterial {
public:
    static constexpr int AllLevels = -1;

    // Reads so many levels of links, each in a fixed number of queries. The selection is asked here alone.
    BillOfMaterial(const ZOLDMInstance& product, int levels, const RuleSelection& selection);

    void Print(std::ostream& output) const;
    nlohmann::ordered_json Json() const;

private:
    enum class Standing { Holds, Depends, FallsAway };
    struct Line {
        ZOLDMInstance part;
        Standing standing = Standing::Holds;
        int quantity = 0; // in one piece of the part above
    };
    using Path = std::vector<ZOLDMInstance>;

    void ReadLevels(const RuleSelection& selection);
    Standing StandingOf(const ZOLListVal<ZOLVar<ZOLIQrdEffectivity>>& effectivities,
                        const RuleSelection& selection);
    void Take(const ZOLDMInstance& link, Standing standing);
    // None below the last level, or where a cycle in the data closes.
    std::vector<Line> Below(const ZOLDMInstance& part, const Path& path) const;
    void PrintBelow(const ZOLDMInstance& part, Path& path, std::ostream& output) const;
    nlohmann::ordered_json JsonBelow(const ZOLDMInstance& part, Path& path) const;

    ZOLDMInstance _product;
    int _levels;
    std::unordered_map<ZOLDMInstance, std::vector<Line>> _lines; // below each part
    int _judged = 0;                                             // links with effectivities on options
    int _fallenAway = 0;
    int _depending = 0;
};

} // namespace trellis
