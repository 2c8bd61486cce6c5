#include "site/SiteAdministration.h"

#include "site/LoggedInUser.h"
#include "site/RightTable.h"
#include "site/SiteDirectory.h"
#include "store/Workspace.h"
#include "values/FailureTrace.h"

#include <algorithm>
#include <utility>

namespace trellis {

namespace {

constexpr int Refused = 60502;
constexpr int NotFound = 60503;
constexpr int Exists = 60504;
constexpr int NoSuchFunction = 60505;
constexpr int BadName = 60506;
constexpr int NoDatabase = 60507;
constexpr int RoleInUse = 60508;

constexpr int LongestName = 80;
constexpr std::int64_t AdministratorPrivilege = 10;

bool Fail(int code, std::vector<ZOLUnicodeString> parameters, ZOLGYRError& error) {
    error.Set(code, std::move(parameters));
    return false;
}

bool MayAdministrate(ZOLGYRError& error) {
    if (!Workspace::Current())
        return Fail(NoDatabase, {}, error);
    const SiteDirectory& directory = SiteDirectory::Current();
    const auto isAdministrator = [](const PersonRow& row) { return row.privilege >= AdministratorPrivilege; };
    const PersonRow* person = directory.FindPerson(LoggedInUser());
    if (person && isAdministrator(*person))
        return true;
    if (!directory.IsUnread() && std::ranges::none_of(directory.Persons(), isAdministrator))
        return true;
    return Fail(Refused, {LoggedInUser()}, error);
}

bool IsName(const ZOLUnicodeString& name, const char* kind, ZOLGYRError& error) {
    if (!name.IsEmpty() && name.GetLengthInChar() <= LongestName)
        return true;
    return Fail(BadName, {kind}, error);
}

// Finds the organization of a name; an empty name is none, and fine.
bool FindOrganization(const ZOLUnicodeString& name, std::int64_t& id, ZOLGYRError& error) {
    id = 0;
    if (name.IsEmpty())
        return true;
    const OrganizationRow* organization = SiteDirectory::Current().FindOrganization(name.Bytes());
    if (!organization)
        return Fail(NotFound, {"organization", name}, error);
    id = organization->id;
    return true;
}

// The same for a role.
bool FindRole(const ZOLUnicodeString& name, const ZOLUnicodeString& organization, std::int64_t& id,
              ZOLGYRError& error) {
    std::int64_t organizationId = 0;
    id = 0;
    if (!FindOrganization(organization, organizationId, error))
        return false;
    if (name.IsEmpty())
        return true;
    const RoleRow* role = SiteDirectory::Current().FindRole(name.Bytes(), organizationId);
    if (!role)
        return Fail(NotFound, {"role", name}, error);
    id = role->id;
    return true;
}

template <class Row>
bool Create(Row row) {
    Workspace::Current()->Create(std::move(row));
    SiteDirectory::Forget();
    return true;
}

template <class Row>
bool Remove(const RecordOf<Row>& record, ZOLGYRError& error) {
    ZOLGYRError removal;
    Workspace::Current()->Remove(*record, removal);
    SiteDirectory::Forget();
    if (removal.GetCode() != 0)
        error = removal;
    return removal.GetCode() == 0;
}

// Looks for the record that a change is about; null when there is none yet. False when the store cannot tell.
template <class Row>
bool Look(const StoreQuery<Row>& query, RecordOf<Row>& found, ZOLGYRError& error) {
    ZOLGYRError failure;
    found = Workspace::Current()->FindFirst(query, failure);
    if (failure.GetCode() != 0)
        error = failure;
    return failure.GetCode() == 0;
}

StoreQuery<RightRow> RightsLike(const RightEntry& right, std::int64_t role) {
    return StoreQuery<RightRow>()
        .Where(&RightRow::function, right.function.Bytes())
        .Where(&RightRow::role, role)
        .Where(&RightRow::site, right.site.Bytes());
}

StoreQuery<PersonRow> PersonsNamed(const ZOLUnicodeString& name) {
    return StoreQuery<PersonRow>().Where(&PersonRow::name, name.Bytes());
}

bool FindRightParts(const RightEntry& right, std::int64_t& role, ZOLGYRError& error) {
    if (!right.function.IsEmpty() && !RightTable::Find(right.function))
        return Fail(NoSuchFunction, {right.function}, error);
    return FindRole(right.role, right.organization, role, error);
}

} // namespace

bool SiteAdministration::AddSite(const ZOLUnicodeString& name, ZOLGYRError& error) {
    if (!MayAdministrate(error) || !IsName(name, "site", error))
        return false;
    if (SiteDirectory::Current().FindSite(name.Bytes()))
        return Fail(Exists, {"site", name}, error);
    SiteRow row;
    row.name = name.Bytes();
    return Create(row);
}

bool SiteAdministration::AddOrganization(const ZOLUnicodeString& name, const ZOLUnicodeString& site,
                                         ZOLGYRError& error) {
    if (!MayAdministrate(error) || !IsName(name, "organization", error))
        return false;
    const SiteDirectory& directory = SiteDirectory::Current();
    const SiteRow* place = directory.FindSite(site.Bytes());
    if (!site.IsEmpty() && !place)
        return Fail(NotFound, {"site", site}, error);
    if (directory.FindOrganization(name.Bytes()))
        return Fail(Exists, {"organization", name}, error);
    OrganizationRow row;
    row.name = name.Bytes();
    row.site = place ? place->id : 0;
    return Create(row);
}

bool SiteAdministration::AddRole(const ZOLUnicodeString& name, const ZOLUnicodeString& organization,
                                 ZOLGYRError& error) {
    RoleRow row;
    if (!MayAdministrate(error) || !IsName(name, "role", error) ||
        !FindOrganization(organization, row.organization, error))
        return false;
    if (SiteDirectory::Current().FindRole(name.Bytes(), row.organization))
        return Fail(Exists, {"role", name}, error);
    row.name = name.Bytes();
    return Create(row);
}

bool SiteAdministration::RemoveRole(const ZOLUnicodeString& name, const ZOLUnicodeString& organization,
                                    ZOLGYRError& error) {
    std::int64_t id = 0;
    if (!MayAdministrate(error) || !IsName(name, "role", error) || !FindRole(name, organization, id, error))
        return false;
    for (const PersonRow& person : SiteDirectory::Current().Persons())
        if (person.role == id)
            return Fail(RoleInUse, {name, person.name}, error);
    Workspace& workspace = *Workspace::Current();
    ZOLGYRError failure;
    const auto rights = workspace.Find(StoreQuery<RightRow>().Where(&RightRow::role, id), failure);
    const auto role = workspace.Get<RoleRow>(id, failure);
    if (failure.GetCode() != 0) {
        error = failure;
        return false;
    }
    if (!role) // another process took it away meanwhile
        return Fail(NotFound, {"role", name}, error);
    for (const auto& right : rights)
        Remove(right, error);
    return Remove(role, error);
}

bool SiteAdministration::SetPerson(const PersonEntry& person, ZOLGYRError& error) {
    PersonRow row;
    if (!MayAdministrate(error) || !IsName(person.name, "person", error) ||
        !FindRole(person.role, person.organization, row.role, error))
        return false;
    row.name = person.name.Bytes();
    row.firstName = person.firstName.Bytes();
    row.lastName = person.lastName.Bytes();
    row.privilege = person.privilege;
    RecordOf<PersonRow> known;
    if (!Look(PersonsNamed(person.name), known, error))
        return false;
    if (!known)
        return Create(row);
    SiteDirectory::Forget();
    return known->Change(&PersonRow::firstName, row.firstName, error) &&
           known->Change(&PersonRow::lastName, row.lastName, error) &&
           known->Change(&PersonRow::role, row.role, error) &&
           known->Change(&PersonRow::privilege, row.privilege, error);
}

bool SiteAdministration::RemovePerson(const ZOLUnicodeString& name, ZOLGYRError& error) {
    RecordOf<PersonRow> known;
    if (!MayAdministrate(error) || !Look(PersonsNamed(name), known, error))
        return false;
    return known ? Remove(known, error) : Fail(NotFound, {"person", name}, error);
}

bool SiteAdministration::SetRight(const RightEntry& right, ZOLGYRError& error) {
    RightRow row;
    if (!MayAdministrate(error) || !FindRightParts(right, row.role, error))
        return false;
    if (!right.site.IsEmpty() && !SiteDirectory::Current().FindSite(right.site.Bytes()))
        return Fail(NotFound, {"site", right.site}, error);
    RecordOf<RightRow> known;
    if (!Look(RightsLike(right, row.role), known, error))
        return false;
    SiteDirectory::Forget();
    if (known)
        return known->Change(&RightRow::allowed, right.allowed ? 1 : 0, error);
    row.function = right.function.Bytes();
    row.site = right.site.Bytes();
    row.allowed = right.allowed ? 1 : 0;
    return Create(row);
}

bool SiteAdministration::RemoveRight(const RightEntry& right, ZOLGYRError& error) {
    std::int64_t role = 0;
    RecordOf<RightRow> known;
    if (!MayAdministrate(error) || !FindRightParts(right, role, error) ||
        !Look(RightsLike(right, role), known, error))
        return false;
    return known ? Remove(known, error) : Fail(NotFound, {"right", right.function}, error);
}

bool SiteAdministration::SetAdministratorValue(const ZOLUnicodeString& name, const ZOLUnicodeString& group,
                                               const ZOLUnicodeString& value, ZOLGYRError& error) {
    if (!MayAdministrate(error) || !IsName(name, "value", error) || !IsName(group, "group", error))
        return false;
    AdministratorValueRow row;
    row.group = group.Bytes();
    row.name = name.Bytes();
    row.value = value.Bytes();
    const auto query = StoreQuery<AdministratorValueRow>()
                           .Where(&AdministratorValueRow::group, row.group)
                           .Where(&AdministratorValueRow::name, row.name);
    RecordOf<AdministratorValueRow> known;
    if (!Look(query, known, error))
        return false;
    if (known && value.IsEmpty())
        return Remove(known, error);
    if (known)
        return known->Change(&AdministratorValueRow::value, row.value, error);
    return value.IsEmpty() || Create(row);
}

bool SiteAdministration::Save(ZOLGYRError& error) {
    if (!Workspace::Current())
        return Fail(NoDatabase, {}, error);
    return Workspace::Current()->Save(error);
}

std::vector<PersonEntry> SiteAdministration::Persons() {
    const SiteDirectory& directory = SiteDirectory::Current();
    std::vector<PersonEntry> persons;
    for (const PersonRow& row : directory.Persons()) {
        const RoleRow* role = directory.FindRole(row.role);
        const OrganizationRow* organization = role ? directory.FindOrganization(role->organization) : nullptr;
        persons.push_back({row.name, row.firstName, row.lastName, role ? role->name : std::string(),
                           organization ? organization->name : std::string(),
                           static_cast<int>(row.privilege)});
    }
    return persons;
}

std::vector<RightEntry> SiteAdministration::Rights() {
    const SiteDirectory& directory = SiteDirectory::Current();
    std::vector<RightEntry> rights;
    for (const RightRow& row : directory.Rights()) {
        const RoleRow* role = directory.FindRole(row.role);
        const OrganizationRow* organization = role ? directory.FindOrganization(role->organization) : nullptr;
        rights.push_back({row.function, role ? role->name : std::string(),
                          organization ? organization->name : std::string(), row.site, row.allowed != 0});
    }
    return rights;
}

std::vector<AdministratorValueEntry> SiteAdministration::AdministratorValues() {
    std::vector<AdministratorValueEntry> values;
    if (!Workspace::Current())
        return values;
    FailureTrace trace("SiteAdministration::AdministratorValues");
    for (const auto& value : Workspace::Current()->Find(StoreQuery<AdministratorValueRow>(), trace))
        values.push_back({value->Row().name, value->Row().group, value->Row().value});
    return values;
}

} // namespace trellis
