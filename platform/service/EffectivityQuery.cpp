#include "service/EffectivityQuery.h"

#include "model/InstanceAccess.h"
#include "service/ConfigurationMemory.h"

#include <map>

namespace trellis {

std::vector<ZOLListValZOLIQrdEffectivity_var>
EffectivityQuery::OfLinks(const std::vector<ZOLDMInstance>& links, ZOLGYRError& error) {
    std::vector<ZOLListValZOLIQrdEffectivity_var> lists(links.size());
    ZOLGYRError reading;
    const std::shared_ptr<ConfigurationMemory> memory = ConfigurationMemory::Current(reading);
    std::vector<std::int64_t> ids;
    for (const ZOLDMInstance& link : links) {
        const auto record = memory ? InstanceAccess::Link(link) : nullptr;
        ids.push_back(record ? record->Id() : 0);
    }
    std::multimap<std::int64_t, std::int64_t> effectivities; // by link
    std::vector<std::int64_t> all;
    if (memory)
        for (const auto& hold : memory->Store().Find(
                 StoreQuery<LinkEffectivityRow>().WhereIn(&LinkEffectivityRow::link, ids), reading)) {
            effectivities.emplace(hold->Row().link, hold->Row().effectivity);
            all.push_back(hold->Row().effectivity);
        }
    if (!all.empty())
        memory->Store().GetAll<EffectivityRow>(all, reading);

    for (std::size_t i = 0; i < links.size() && reading.GetCode() == 0; ++i) {
        const auto [from, to] = effectivities.equal_range(ids[i]);
        for (auto each = from; each != to; ++each)
            if (const auto record = memory->Store().Get<EffectivityRow>(each->second, reading))
                lists[i].Append(memory->Handle(record, memory->ItemOfId(record->Row().configItem, reading)));
    }
    if (reading.GetCode() != 0) {
        error = reading;
        lists.assign(links.size(), {});
    }
    return lists;
}

} // namespace trellis
