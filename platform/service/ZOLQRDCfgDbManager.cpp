#include "service/ZOLQRDCfgDbManager.h"

#include "model/InstanceAccess.h"
#include "service/ConfigurationMemory.h"
#include "service/EffectivityTerm.h"

#include <unordered_map>

using namespace trellis;

namespace {

using Ids = std::vector<std::int64_t>;
using Effectivities = std::vector<RecordOf<EffectivityRow>>;

bool IsWanted(const std::string& type, int kinds) {
    return ((kinds & ZOLQRDCfgDbManager::OptionKinds) && ZOLQRDCfgEffectivityType::IsOptionKind(type)) ||
           ((kinds & ZOLQRDCfgDbManager::PackKinds) && ZOLQRDCfgEffectivityType::IsPackKind(type));
}

template <class Row>
Ids IdsOf(const std::vector<RecordOf<Row>>& records) {
    Ids ids;
    for (const auto& record : records)
        ids.push_back(record->Id());
    return ids;
}

// What lies on the links below parts, each once, by one query each for links, for what they hold and for
// that.
Effectivities Below(Workspace& workspace, const Ids& parts, int kinds, ZOLGYRError& error) {
    const auto links = workspace.Find(StoreQuery<LinkRow>().WhereIn(&LinkRow::parent, parts), error);
    const auto holds = workspace.Find(
        StoreQuery<LinkEffectivityRow>().WhereIn(&LinkEffectivityRow::link, IdsOf(links)), error);
    Ids ids;
    for (const auto& hold : holds)
        ids.push_back(hold->Row().effectivity);
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    Effectivities found = workspace.GetAll<EffectivityRow>(ids, error);
    std::erase_if(found, [kinds](const auto& each) { return !each || !IsWanted(each->Row().type, kinds); });
    return found;
}

// The options of packages in order, by package.
std::unordered_map<std::int64_t, ZOLListValZOLUnicodeString>
OptionsOf(Workspace& workspace, const Effectivities& effectivities, ZOLGYRError& error) {
    Ids packages;
    for (const auto& effectivity : effectivities)
        if (ZOLQRDCfgEffectivityType::IsPackKind(effectivity->Row().type))
            packages.push_back(effectivity->Id());
    auto rows = workspace.Find(
        StoreQuery<EffectivityOptionRow>().WhereIn(&EffectivityOptionRow::effectivity, packages), error);
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto& a, const auto& b) { return a->Row().position < b->Row().position; });
    std::unordered_map<std::int64_t, ZOLListValZOLUnicodeString> options;
    for (const auto& row : rows)
        options[row->Row().effectivity].Append(ZOLUnicodeString(row->Row().optionName));
    return options;
}

} // namespace

void ZOLQRDCfgDbManager::GetEffectivitiesForParts(const ZOLListValZOLDMInstance& parts,
                                                  ZOLListPtr<ZOLQRDCfgDbEffectivity>& effectivities,
                                                  ZOLGYRError& error, int kinds) {
    effectivities.RemoveAll();
    ZOLGYRError reading;
    if (const auto memory = ConfigurationMemory::Current(reading)) {
        Ids ids;
        for (const ZOLDMInstance& instance : parts)
            if (const auto part = InstanceAccess::Part(instance))
                ids.push_back(part->Id());
        const Effectivities found = Below(memory->Store(), ids, kinds, reading);
        const auto options = OptionsOf(memory->Store(), found, reading);
        const ZOLListValZOLUnicodeString none;
        for (const auto& each : found) {
            const auto own = options.find(each->Id());
            effectivities.Append(new ZOLQRDCfgDbEffectivity(
                TermOfRow(each->Row(), own == options.end() ? none : own->second)));
        }
    }
    if (reading.GetCode() == 0)
        return;
    error = reading;
    ZOLDeleteElements(effectivities);
}
