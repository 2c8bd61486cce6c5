#include "cli/BillOfMaterial.h"

#include "service/EffectivityQuery.h"
#include "values/ZOLGYRError.h"
#include "values/ZOLQRDCfgEffectivityType.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace trellis {

namespace {

std::string NameOf(const ZOLDMInstance& part) {
    return part.GetNameInstance(1, 1, " ", "$BOM_NAVIG").Bytes();
}

ZOLListValZOLUnicodeString OptionsOf(const ZOLQRDCfgEffectivity& term) {
    ZOLListValZOLUnicodeString options;
    if (ZOLQRDCfgEffectivityType::IsPackKind(term.GetType()))
        term.GetOptList(options);
    else
        options.Append(term.GetOptionName());
    return options;
}

} // namespace

BillOfMaterial::BillOfMaterial(const ZOLDMInstance& product, int levels, const RuleSelection& selection)
    : _product(product), _levels(levels) {
    ReadLevels(selection);
}

void BillOfMaterial::ReadLevels(const RuleSelection& selection) {
    ZOLListValZOLDMInstance level;
    level.Append(_product);
    for (int depth = 0; level.Size() > 0 && depth != _levels; ++depth) {
        ZOLListValZOLDMInstance links;
        ZOLDMInstance::GetChildrenOfLevel(level, links);
        for (const ZOLDMInstance& part : level)
            _lines[part];
        level.RemoveAll();
        ZOLGYRError error; // without effectivities the structure is what it is
        const auto effectivities = EffectivityQuery::OfLinks({links.begin(), links.end()}, error);
        for (int i = 1; i <= links.Size(); ++i) {
            const Standing standing = StandingOf(effectivities[static_cast<std::size_t>(i) - 1], selection);
            if (standing == Standing::FallsAway)
                continue;
            Take(links[i], standing);
            if (const ZOLDMInstance child = links[i].GetChildPart(1); !_lines.contains(child))
                level.Append(child);
        }
        level.RemoveDuplicates();
    }
}

BillOfMaterial::Standing
BillOfMaterial::StandingOf(const ZOLListVal<ZOLVar<ZOLIQrdEffectivity>>& effectivities,
                           const RuleSelection& selection) {
    using State = RuleSelection::State;
    bool isJudged = false;
    Standing standing = Standing::FallsAway;
    for (const ZOLIQrdEffectivity_var& effectivity : effectivities) {
        const ZOLQRDCfgEffectivity term = effectivity->GetTerm();
        if (!ZOLQRDCfgEffectivityType::IsOptionOrPackKind(term.GetType()))
            continue;
        isJudged = true;
        Standing ofTerm = Standing::Holds;
        for (const ZOLUnicodeString& name : OptionsOf(term)) {
            const RuleSelection::Option* option = selection.Find(name);
            const State state = option ? option->state : State::Excluded;
            if (state == State::Rejected || state == State::Excluded)
                ofTerm = Standing::FallsAway;
            else if (state == State::Open)
                ofTerm = std::max(ofTerm, Standing::Depends);
        }
        standing = std::min(standing, ofTerm);
    }
    if (!isJudged)
        return Standing::Holds;
    ++_judged;
    _fallenAway += standing == Standing::FallsAway;
    _depending += standing == Standing::Depends;
    return standing;
}

void BillOfMaterial::Take(const ZOLDMInstance& link, Standing standing) {
    const ZOLDMInstance child = link.GetChildPart(1);
    std::vector<Line>& lines = _lines[link.GetPart()];
    auto line = std::ranges::find_if(
        lines, [&](const Line& each) { return each.part == child && each.standing == standing; });
    if (line == lines.end())
        line = lines.insert(line, Line{child, standing, 0});
    ++line->quantity;
}

std::vector<BillOfMaterial::Line> BillOfMaterial::Below(const ZOLDMInstance& part, const Path& path) const {
    const auto found = _lines.find(part);
    const bool ends = static_cast<int>(path.size()) == _levels || std::ranges::find(path, part) != path.end();
    return found == _lines.end() || ends ? std::vector<Line>() : found->second;
}

void BillOfMaterial::PrintBelow(const ZOLDMInstance& part, Path& path, std::ostream& output) const {
    const std::vector<Line> lines = Below(part, path);
    path.push_back(part);
    for (const Line& line : lines) {
        output << fmt::format("{:{}}{:>3} {} {}\n", "", path.size() * 2 - 2, line.quantity,
                              line.standing == Standing::Depends ? '?' : ' ', NameOf(line.part));
        PrintBelow(line.part, path, output);
    }
    path.pop_back();
}

void BillOfMaterial::Print(std::ostream& output) const {
    Path path;
    PrintBelow(_product, path, output);
    if (_judged == 0)
        output << "No link shown here is limited to options, so every variant needs all of these parts.\n";
    else
        output << fmt::format("Of {} links that are limited to options, {} fell away and {} depend on open "
                              "options (?).\n",
                              _judged, _fallenAway, _depending);
}

nlohmann::ordered_json BillOfMaterial::JsonBelow(const ZOLDMInstance& part, Path& path) const {
    nlohmann::ordered_json all = nlohmann::ordered_json::array();
    const std::vector<Line> lines = Below(part, path);
    path.push_back(part);
    for (const Line& line : lines)
        all.push_back({{"name", NameOf(line.part)},
                       {"id", line.part.GetUUId().Text()},
                       {"quantity", line.quantity},
                       {"depends on open options", line.standing == Standing::Depends},
                       {"parts", JsonBelow(line.part, path)}});
    path.pop_back();
    return all;
}

nlohmann::ordered_json BillOfMaterial::Json() const {
    Path path;
    return JsonBelow(_product, path);
}

} // namespace trellis
