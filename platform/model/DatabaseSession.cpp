#include "model/DatabaseSession.h"

#include "model/EventDelivery.h"
#include "model/ZOLDMClipboard.h"
#include "site/LoggedInUser.h"
#include "store/StoreExamination.h"
#include "store/Workspace.h"

namespace trellis {

namespace {

bool Use(ZOLGYRError& error, const std::string& url,
         std::unique_ptr<StoreSession> (*open)(const std::string&)) {
    try {
        auto workspace = std::make_unique<Workspace>(open(url), LoggedInUser());
        DeliverEventsOf(*workspace);
        Workspace::MakeCurrent(std::move(workspace));
        ZOLDMClipboard::SetObjects({});
        return true;
    } catch (const StoreFailure& failure) {
        failure.Into(error);
        return false;
    }
}

// Runs a look into the open database; false with a code when there is none or it fails.
template <class Look>
bool WithSession(ZOLGYRError& error, Look&& look) {
    Workspace* workspace = Workspace::Current();
    if (!workspace) {
        error.Set(60201);
        return false;
    }
    try {
        look(workspace->Session());
        return true;
    } catch (const StoreFailure& failure) {
        failure.Into(error);
        return false;
    }
}

const char* WordFor(StoredObject::State state) {
    switch (state) {
    case StoredObject::State::New:
        return "new";
    case StoredObject::State::Removed:
        return "removed";
    default:
        return "changed";
    }
}

} // namespace

bool DatabaseSession::Create(const ZOLUnicodeString& url, ZOLGYRError& error) {
    return Use(error, url.Bytes(), &StoreSession::Create);
}

bool DatabaseSession::Open(const ZOLUnicodeString& url, ZOLGYRError& error) {
    return Use(error, url.Bytes(), &StoreSession::Open);
}

void DatabaseSession::Close() {
    Workspace::MakeCurrent(nullptr);
    ZOLDMClipboard::SetObjects({});
}

bool DatabaseSession::IsOpen() {
    return Workspace::Current() != nullptr;
}

std::vector<std::pair<ZOLUnicodeString, ZOLUnicodeString>> DatabaseSession::Describe(ZOLGYRError& error) {
    std::vector<std::pair<ZOLUnicodeString, ZOLUnicodeString>> lines;
    const bool done = WithSession(error, [&](StoreSession& session) {
        lines.emplace_back("file", session.Path());
        lines.emplace_back("name", session.Name());
        lines.emplace_back("leading string", session.LeadingString());
        lines.emplace_back("schema version", std::to_string(session.SchemaVersion()));
        for (const auto& [word, count] : CountObjects(session))
            lines.emplace_back(word, std::to_string(count));
    });
    if (!done)
        lines.clear();
    return lines;
}

bool DatabaseSession::Check(ZOLListValZOLUnicodeString& problems, ZOLGYRError& error) {
    return WithSession(error, [&](StoreSession& session) {
        for (const std::string& line : FindDamage(session))
            problems.Append(line);
    });
}

std::vector<ZOLUnicodeString> DatabaseSession::UnsavedChanges() {
    std::vector<ZOLUnicodeString> lines;
    if (!Workspace::Current())
        return lines;
    for (const auto& object : Workspace::Current()->Unsaved())
        lines.emplace_back(std::string(WordFor(object->GetState())) + ": " + object->DisplayName());
    return lines;
}

bool DatabaseSession::DiscardUnsaved(ZOLGYRError& error) {
    if (!Workspace::Current())
        return true;
    ZOLGYRError own;
    Workspace::Current()->DiscardUnsaved(own);
    if (own.GetCode() == 0)
        return true;
    error = own;
    return false;
}

} // namespace trellis
