#include "model/DatabaseSession.h"

#include "model/EventDelivery.h"
#include "model/LinksUnderEdit.h"
#include "model/ObjectIdentifier.h"
#include "model/ZOLDMClipboard.h"
#include "model/ZOLDMInstance.h"
#include "site/LoggedInUser.h"
#include "store/StoreExamination.h"
#include "store/Workspace.h"
#include "toolkit/ZOLGYRResource.h"

namespace trellis {

namespace {

// What stands for objects of the database before.
void ForgetObjects() {
    ZOLDMClipboard::SetObjects({});
    LinksUnderEdit::Forget();
}

bool Use(ZOLGYRError& error, const std::string& url,
         std::unique_ptr<StoreSession> (*open)(const std::string&)) {
    try {
        auto workspace = std::make_unique<Workspace>(open(url), &LoggedInUser);
        DeliverEventsOf(*workspace);
        Workspace::MakeCurrent(std::move(workspace));
        ForgetObjects();
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

// What people call the kinds of objects.
ZOLUnicodeString KindName(RowKind kind) {
    // The keys of the texts, in the order of RowKind.
    static constexpr const char* keys[] = {"Part",
                                           "PartAttribute",
                                           "Link",
                                           "ConfigurablePart",
                                           "ConfigItem",
                                           "Category",
                                           "Effectivity",
                                           "EffectivityOption",
                                           "EffectivityAttribute",
                                           "CategoryDefault",
                                           "CompatibilityMatrix",
                                           "MatrixColumn",
                                           "ConfigRule",
                                           "RuleReference",
                                           "LinkEffectivity",
                                           "Person",
                                           "Role",
                                           "Organization",
                                           "Site",
                                           "PeopleAbove",
                                           "Right",
                                           "AdministratorValue",
                                           "Event"};
    static_assert(std::size(keys) == static_cast<std::size_t>(RowKind::Count));
    const char* key = keys[static_cast<std::size_t>(kind)];
    return ZOLGYRResource("ObjectKinds").GetValueOr(key, key);
}

UnsavedChange::Kind ChangeKind(StoredObject::State state) {
    if (state == StoredObject::State::Removed)
        return UnsavedChange::Kind::Removed;
    return state == StoredObject::State::New ? UnsavedChange::Kind::Added : UnsavedChange::Kind::Changed;
}

// Rows that stand for a part are named by its identifier, which tells people nothing.
ZOLUnicodeString NameOf(const StoredObject& object) {
    const std::string name = object.DisplayName();
    const ObjectIdentifier identifier(name);
    return identifier.IsEmpty()
               ? ZOLUnicodeString(name)
               : ZOLDMInstance(identifier.Octets(), 0, 0, 0).GetNameInstance(1, 1, " ", "$BOM_NAVIG");
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
    ForgetObjects();
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

std::vector<UnsavedChange> DatabaseSession::UnsavedChanges() {
    std::vector<UnsavedChange> changes;
    if (!Workspace::Current())
        return changes;
    for (const std::shared_ptr<StoredObject>& object : Workspace::Current()->Unsaved())
        changes.push_back(
            {ChangeKind(object->GetState()), NameOf(*object), KindName(object->Kind()), object->IsStale()});
    return changes;
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
