// The operations of ZOLDMInstance that walk the structure.
#include "model/InstanceAccess.h"
#include "model/ObjectIdentifier.h"
#include "model/ZOLDMInstance.h"
#include "values/FailureTrace.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

using namespace trellis;

namespace {

constexpr const char* linkEntity = "ZOLASS";
constexpr const char* historyEntity = "ZOLHISLK";

using Links = std::vector<RecordOf<LinkRow>>;

// The links below parts, in the order of the parts, then by position, then as they came in. Their child parts are
// read with them.
Links LinksBelow(const std::vector<std::int64_t>& parts, ZOLGYRError& error) {
    Workspace& workspace = *Workspace::Current();
    Links links = workspace.Find(StoreQuery<LinkRow>().WhereIn(&LinkRow::parent, parts), error);
    std::unordered_map<std::int64_t, std::size_t> order;
    for (const std::int64_t part : parts)
        order.try_emplace(part, order.size());
    std::stable_sort(links.begin(), links.end(), [&](const auto& a, const auto& b) {
        return std::pair(order[a->Row().parent], a->Row().position) <
               std::pair(order[b->Row().parent], b->Row().position);
    });
    std::vector<std::int64_t> children;
    for (const auto& link : links)
        children.push_back(link->Row().child);
    workspace.GetAll<PartRow>(children, error);
    return links;
}

} // namespace

ZOLDMInstance ZOLDMInstance::GetPart() const {
    const auto link = InstanceAccess::Link(*this);
    if (!link)
        return InstanceAccess::Part(*this) ? *this : ZOLDMInstance();
    FailureTrace trace("ZOLDMInstance::GetPart");
    return InstanceAccess::Of(Workspace::Current()->Get<PartRow>(link->Row().parent, trace));
}

ZOLDMInstance ZOLDMInstance::GetChildPart(int) const {
    const auto link = InstanceAccess::Link(*this);
    if (!link)
        return {};
    FailureTrace trace("ZOLDMInstance::GetChildPart");
    return InstanceAccess::Of(Workspace::Current()->Get<PartRow>(link->Row().child, trace));
}

void ZOLDMInstance::GetChildren(int, const ZOLUnicodeString& entity, ZOLListValZOLDMInstance& result,
                                int) const {
    result.RemoveAll();
    if (entity == linkEntity)
        GetChildrenOfLevel({*this}, result);
}

void ZOLDMInstance::GetChildrenOfLevel(const ZOLListValZOLDMInstance& parts, ZOLListValZOLDMInstance& links) {
    std::vector<std::int64_t> ids;
    for (const ZOLDMInstance& instance : parts)
        if (const auto part = InstanceAccess::Part(instance))
            ids.push_back(part->Id());
    links.RemoveAll();
    if (ids.empty())
        return;
    FailureTrace trace("ZOLDMInstance::GetChildrenOfLevel");
    for (const auto& link : LinksBelow(ids, trace))
        links.Append(InstanceAccess::Of(link));
}

void ZOLDMInstance::GetChildParts(ZOLListValZOLDMInstance& result) const {
    const auto part = InstanceAccess::Part(*this);
    result.RemoveAll();
    if (!part)
        return;
    FailureTrace trace("ZOLDMInstance::GetChildParts");
    std::unordered_set<std::int64_t> seen;
    for (const auto& link : LinksBelow({part->Id()}, trace))
        if (seen.insert(link->Row().child).second)
            result.Append(InstanceAccess::Of(Workspace::Current()->Get<PartRow>(link->Row().child, trace)));
}

void ZOLDMInstance::GetFather(int, const ZOLUnicodeString& entity, const ZOLListValZOLUnicodeString& names,
                              ZOLListValZOLDMInstance& result) const {
    FailureTrace trace("ZOLDMInstance::GetFather");
    const auto part = InstanceAccess::Part(*this);
    const auto link = InstanceAccess::Link(*this);
    result.RemoveAll();
    if (link && entity == historyEntity && !link->Row().originUuid.empty()) {
        const auto older = Workspace::Current()->FindFirst(
            StoreQuery<LinkRow>().Where(&LinkRow::uuid, link->Row().originUuid), trace);
        if (older)
            result.Append(InstanceAccess::Of(older));
    }
    if (!part || entity != linkEntity)
        return;
    std::unordered_set<std::string> assemblies;
    for (const ZOLUnicodeString& name : names)
        assemblies.insert(ObjectIdentifier(name.Bytes()).Text());
    Workspace& workspace = *Workspace::Current();
    const Links users = workspace.Find(StoreQuery<LinkRow>().Where(&LinkRow::child, part->Id()), trace);
    std::vector<std::int64_t> fathers;
    for (const auto& user : users)
        fathers.push_back(user->Row().parent);
    const auto parents = workspace.GetAll<PartRow>(fathers, trace);
    for (std::size_t i = 0; i < users.size(); ++i)
        if (assemblies.empty() || (parents[i] && assemblies.contains(parents[i]->Row().uuid)))
            result.Append(InstanceAccess::Of(users[i]));
}
