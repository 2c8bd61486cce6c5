#include "model/InstanceState.h"

#include "values/FailureTrace.h"

#include <charconv>

using namespace trellis;

namespace {

// The number that an xcoid is, or 0.
std::int64_t NumberOf(const std::string& xcoid) {
    std::int64_t number = 0;
    const char* end = xcoid.data() + xcoid.size();
    const auto [stop, failure] = std::from_chars(xcoid.data(), end, number);
    return failure == std::errc() && stop == end && number > 0 ? number : 0;
}

} // namespace

void ZOLDMInstance::State::Take(const RecordOf<PartRow>& found) {
    part = found;
    link = nullptr;
    identifier = found->Row().uuid;
    xcoid = std::to_string(found->Id());
    client.clear();
    context = PartContext;
    database = Workspace::Current()->Session().Name();
    leading = Workspace::Current()->Session().LeadingString();
}

void ZOLDMInstance::State::Take(const RecordOf<LinkRow>& found) {
    link = found;
    part = nullptr;
    identifier = found->Row().uuid;
    xcoid = std::to_string(found->Row().parent);
    client = found->Row().clientIdentifier;
    context = LinkContext;
    database = Workspace::Current()->Session().Name();
    leading = Workspace::Current()->Session().LeadingString();
}

void ZOLDMInstance::State::Resolve() {
    Workspace* workspace = Workspace::Current();
    if (!workspace || IsAlive() || lookedAt == workspace->ChangeCount())
        return;
    FailureTrace trace("ZOLDMInstance::Resolve");
    if (identifier.empty())
        LookUpPlace(*workspace, trace);
    else
        LookUp(*workspace, trace);
    if (!IsAlive() && trace.GetCode() == 0)
        lookedAt = workspace->ChangeCount();
}

void ZOLDMInstance::State::LookUp(Workspace& workspace, ZOLGYRError& error) {
    if (const auto found =
            workspace.FindFirst(StoreQuery<PartRow>().Where(&PartRow::uuid, identifier), error))
        return Take(found);
    if (const auto found =
            workspace.FindFirst(StoreQuery<LinkRow>().Where(&LinkRow::uuid, identifier), error))
        Take(found);
}

void ZOLDMInstance::State::LookUpPlace(Workspace& workspace, ZOLGYRError& error) {
    const StoreSession& session = workspace.Session();
    const bool isHere =
        leading == session.LeadingString() && (database.empty() || database == session.Name());
    const std::int64_t id = isHere ? NumberOf(xcoid) : 0;
    if (id == 0)
        return;
    if (context == PartContext) {
        if (const auto found = workspace.Get<PartRow>(id, error))
            Take(found);
    } else if (context == LinkContext) {
        if (const auto found = workspace.FindFirst(
                StoreQuery<LinkRow>().Where(&LinkRow::parent, id).Where(&LinkRow::clientIdentifier, client),
                error))
            Take(found);
    }
}

std::string ZOLDMInstance::State::Key() {
    if (identifier.empty())
        Resolve();
    return identifier.empty() ? leading + "/" + xcoid + "/" + client : identifier;
}
