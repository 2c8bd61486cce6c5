#include "service/ConfigurablePartQuery.h"

#include "model/ZOLDMInstance.h"
#include "store/Workspace.h"

#include <unordered_set>

namespace trellis {

std::vector<bool> ConfigurablePartQuery::Among(const std::vector<ZOLDMInstance>& parts, ZOLGYRError& error) {
    Workspace* workspace = Workspace::Current();
    std::vector<std::string> identifiers;
    for (const ZOLDMInstance& part : parts)
        identifiers.push_back(part.GetUUId().Text());
    std::unordered_set<std::string> configurable;
    ZOLGYRError reading;
    if (!workspace)
        reading.Set(60201);
    else
        for (const auto& record : workspace->Find(
                 StoreQuery<ConfigurablePartRow>().WhereIn(&ConfigurablePartRow::partUuid, identifiers),
                 reading))
            configurable.insert(record->Row().partUuid);
    if (reading.GetCode() != 0)
        error = reading;
    std::vector<bool> answers;
    for (const std::string& identifier : identifiers)
        answers.push_back(configurable.contains(identifier));
    return answers;
}

} // namespace trellis
