#include "model/LinksUnderEdit.h"

#include "model/InstanceAccess.h"
#include "model/ObjectIdentifier.h"
#include "store/StoreExamination.h"
#include "values/FailureTrace.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace trellis {

namespace {

constexpr int Circle = 60240;

using Links = LinksUnderEdit::Links;

// A part as an entity.
class PartEntity final : public SdaiEntityInstance {
public:
    explicit PartEntity(ZOLDMInstance part) : _part(std::move(part)) {}

    ZOLDMInstance GetInstance() const override { return _part; }
    int HasAttribute(const ZOLUnicodeString& name) const override { return name == "ZOLASS" ? 1 : 0; }
    std::vector<SdaiEntityInstance*> GetAggregate(const ZOLUnicodeString& name) const override {
        std::vector<SdaiEntityInstance*> members;
        if (name != "ZOLASS")
            return members;
        const Links links = std::move(LinksUnderEdit::Below({_part}).front());
        for (SdaiAppInstance* link : links)
            if (!link->IsRemoved())
                members.push_back(link);
        return members;
    }

private:
    ZOLDMInstance _part;
};

// The objects of the open database. Links that were taken back stay until the end, since records of edits may
// still point at them.
struct WorkingModel {
    std::unordered_map<ZOLDMInstance, std::unique_ptr<PartEntity>> parts;
    std::unordered_map<ZOLDMInstance, std::unique_ptr<SdaiAppInstance>> links;
    Links newLinks; // those that stand somewhere, in the order in which they were made
};

WorkingModel& Model() {
    static WorkingModel model;
    return model;
}

bool IsAtHome(const SdaiAppInstance& link) {
    return link.GetOlder() && link.GetOlder()->GetParent() == link.GetParent();
}

// The new links below a part; `home` chooses those that take the place of a link of that very part.
Links NewLinksOf(const ZOLDMInstance& part, bool home) {
    Links links;
    for (SdaiAppInstance* link : Model().newLinks)
        if (link->GetParent() == part && IsAtHome(*link) == home)
            links.push_back(link);
    return links;
}

void AppendWithSuccessor(SdaiAppInstance* link, const Links& successors, Links& links) {
    links.push_back(link);
    for (SdaiAppInstance* successor : successors)
        if (successor->GetOlder() == link)
            links.push_back(successor);
}

// The parts that hold a part, as the edits leave it.
std::vector<ZOLDMInstance> Holders(const ZOLDMInstance& part) {
    std::vector<ZOLDMInstance> holders;
    ZOLListValZOLDMInstance users;
    part.GetFather(0, "ZOLASS", {}, users);
    for (const ZOLDMInstance& user : users) {
        const auto known = Model().links.find(user);
        if (known == Model().links.end() || !known->second->IsRemoved())
            holders.push_back(user.GetPart());
    }
    for (const SdaiAppInstance* link : Model().newLinks)
        if (link->GetChild() == part)
            holders.push_back(link->GetParent());
    return holders;
}

} // namespace

SdaiEntityInstance* LinksUnderEdit::Part(const ZOLDMInstance& part) {
    if (!InstanceAccess::Part(part))
        return nullptr;
    auto& entity = Model().parts[part];
    if (!entity)
        entity = std::make_unique<PartEntity>(part);
    return entity.get();
}

SdaiAppInstance* LinksUnderEdit::Link(const ZOLDMInstance& link) {
    const auto known = Model().links.find(link);
    if (known != Model().links.end())
        return known->second.get();
    if (!InstanceAccess::Link(link))
        return nullptr;
    return (Model().links[link] = std::unique_ptr<SdaiAppInstance>(new SdaiAppInstance(link))).get();
}

std::vector<Links> LinksUnderEdit::Below(const std::vector<ZOLDMInstance>& parts) {
    ZOLListValZOLDMInstance level;
    for (const ZOLDMInstance& part : parts)
        level.Append(part);
    ZOLListValZOLDMInstance stored;
    ZOLDMInstance::GetChildrenOfLevel(level, stored);
    std::unordered_map<ZOLDMInstance, Links> below;
    for (const ZOLDMInstance& link : stored)
        below[link.GetPart()].push_back(Link(link));

    std::vector<Links> lists;
    for (const ZOLDMInstance& part : parts) {
        const Links successors = NewLinksOf(part, true);
        Links& list = lists.emplace_back();
        for (SdaiAppInstance* link : below[part])
            AppendWithSuccessor(link, successors, list);
        const Links others = NewLinksOf(part, false);
        list.insert(list.end(), others.begin(), others.end());
    }
    return lists;
}

std::vector<bool> LinksUnderEdit::HaveLinks(const std::vector<ZOLDMInstance>& parts) {
    std::vector<std::int64_t> ids;
    for (const ZOLDMInstance& part : parts)
        ids.push_back(part.GetCoid());
    std::unordered_set<std::int64_t> holders;
    FailureTrace trace("LinksUnderEdit::HaveLinks");
    try {
        if (Workspace* workspace = Workspace::Current())
            holders = PartsWithLinks(workspace->Session(), ids);
    } catch (const StoreFailure& failure) {
        failure.Into(trace);
    }
    for (const SdaiAppInstance* link : Model().newLinks)
        holders.insert(link->GetParent().GetCoid());
    std::vector<bool> answers;
    for (const std::int64_t id : ids)
        answers.push_back(holders.contains(id));
    return answers;
}

// Upwards from the parent: a part has few holders at all levels, but may hold the whole structure.
bool LinksUnderEdit::ClosesCircle(const ZOLDMInstance& parent, const ZOLDMInstance& child,
                                  ZOLGYRError& error) {
    std::unordered_map<ZOLDMInstance, ZOLDMInstance> below; // each part met, and the one it was met from
    std::vector<ZOLDMInstance> waiting = {parent};
    below[parent] = {};
    while (!waiting.empty() && !below.contains(child)) {
        const ZOLDMInstance part = waiting.back();
        waiting.pop_back();
        for (const ZOLDMInstance& holder : Holders(part))
            if (below.try_emplace(holder, part).second)
                waiting.push_back(holder);
    }
    if (!below.contains(child))
        return false;
    ZOLUnicodeString path;
    for (ZOLDMInstance part = child; !(part == ZOLDMInstance()); part = below[part])
        path += part.GetNameInstance(1, 1, " ", "$BOM_NAVIG") + " > ";
    error.Set(Circle, 0, {path + child.GetNameInstance(1, 1, " ", "$BOM_NAVIG")});
    return true;
}

SdaiAppInstance* LinksUnderEdit::Make(const ZOLDMInstance& parent, const ZOLDMInstance& child,
                                      const ZOLUnicodeString& name, SdaiAppInstance* older) {
    const ZOLDMInstance instance(ObjectIdentifier::Unique().Octets(), 0, 0, 0);
    auto link = std::unique_ptr<SdaiAppInstance>(new SdaiAppInstance(instance));
    link->_parent = parent;
    link->_child = child;
    link->_name = name;
    link->_older = older;
    link->_isNew = true;
    link->_isUnderEdit = true;
    Model().newLinks.push_back(link.get());
    return (Model().links[instance] = std::move(link)).get();
}

void LinksUnderEdit::TakeUp(SdaiAppInstance& link) {
    if (link._isUnderEdit)
        return;
    link._name = link.GetStoredName();
    link._isUnderEdit = true;
}

void LinksUnderEdit::SetName(SdaiAppInstance& link, const ZOLUnicodeString& name) {
    if (link._isUnderEdit)
        link._name = name;
}

void LinksUnderEdit::PutBack(SdaiAppInstance& link) {
    link._isUnderEdit = false;
    link._hidden.clear();
    std::erase(Model().newLinks, &link);
}

void LinksUnderEdit::Forget() {
    Model() = {};
}

} // namespace trellis
