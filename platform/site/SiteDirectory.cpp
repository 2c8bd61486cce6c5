#include "site/SiteDirectory.h"

#include "values/FailureTrace.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr std::chrono::seconds Lifetime{5};
bool IsForgotten = true;

template <class Row>
std::vector<Row> AllRows(ZOLGYRError& error) {
    std::vector<Row> rows;
    for (const auto& record : Workspace::Current()->Find(StoreQuery<Row>(), error))
        rows.push_back(record->Row());
    return rows;
}

template <class Row>
const Row* FindById(const std::vector<Row>& rows, std::int64_t id) {
    const auto found = std::ranges::find(rows, id, [](const Row& row) { return row.id; });
    return found == rows.end() ? nullptr : &*found;
}

template <class Row>
const Row* FindByName(const std::vector<Row>& rows, const std::string& name) {
    const auto found = std::ranges::find(rows, name, &Row::name);
    return found == rows.end() ? nullptr : &*found;
}

} // namespace

const SiteDirectory& SiteDirectory::Current() {
    static SiteDirectory directory;
    const auto now = std::chrono::steady_clock::now();
    const bool isSame = directory.IsOfOpenDatabase();
    if (!IsForgotten && isSame && now - directory._readAt < Lifetime)
        return directory;

    SiteDirectory fresh;
    FailureTrace trace("SiteDirectory::Read");
    fresh.Read(trace);
    const bool isRead = trace.GetCode() == 0;
    // A store that cannot be read leaves what was known, and of a database that was never read nobody has any
    // right.
    if (isRead || !isSame) {
        directory = isRead ? std::move(fresh) : SiteDirectory();
        directory._isUnread = !isRead;
    }
    directory._readAt = now;
    IsForgotten = !isRead;
    return directory;
}

bool SiteDirectory::IsOfOpenDatabase() const {
    if (!Workspace::Current())
        return !_anchor;
    return _anchor && _anchor->GetState() != StoredObject::State::Gone;
}

void SiteDirectory::Forget() {
    IsForgotten = true;
}

void SiteDirectory::Read(ZOLGYRError& error) {
    if (!Workspace::Current())
        return;
    _anchor = Workspace::Current()->Get<ConfigItemRow>(ConfigItemRow::CorporateId, error);
    _persons = AllRows<PersonRow>(error);
    _roles = AllRows<RoleRow>(error);
    _organizations = AllRows<OrganizationRow>(error);
    _sites = AllRows<SiteRow>(error);
    _rights = AllRows<RightRow>(error);
    for (std::size_t i = 0; i < _persons.size(); ++i)
        _personsByName.emplace(_persons[i].name, i);
}

const PersonRow* SiteDirectory::FindPerson(const std::string& name) const {
    const auto found = _personsByName.find(name);
    return found == _personsByName.end() ? nullptr : &_persons[found->second];
}

const RoleRow* SiteDirectory::FindRole(std::int64_t id) const {
    return FindById(_roles, id);
}

const RoleRow* SiteDirectory::FindRole(const std::string& name, std::int64_t organization) const {
    const auto found = std::ranges::find_if(
        _roles, [&](const RoleRow& role) { return role.name == name && role.organization == organization; });
    return found == _roles.end() ? nullptr : &*found;
}

const OrganizationRow* SiteDirectory::FindOrganization(std::int64_t id) const {
    return FindById(_organizations, id);
}

const OrganizationRow* SiteDirectory::FindOrganization(const std::string& name) const {
    return FindByName(_organizations, name);
}

const SiteRow* SiteDirectory::FindSite(std::int64_t id) const {
    return FindById(_sites, id);
}

const SiteRow* SiteDirectory::FindSite(const std::string& name) const {
    return FindByName(_sites, name);
}

std::string SiteDirectory::SiteOfRole(std::int64_t roleId) const {
    const RoleRow* role = FindRole(roleId);
    const OrganizationRow* organization = role ? FindOrganization(role->organization) : nullptr;
    const SiteRow* site = organization ? FindSite(organization->site) : nullptr;
    return site ? site->name : "";
}

ZOLIQrdPERole_var SiteDirectory::RoleFor(std::int64_t id) const {
    const RoleRow* role = FindRole(id);
    const OrganizationRow* organization = role ? FindOrganization(role->organization) : nullptr;
    const ZOLIQrdPESite_var site = new ZOLIQrdPESite(SiteOfRole(id));
    const ZOLIQrdPEOrganization_var acting = new ZOLIQrdPEOrganization(
        organization ? organization->id : 0, organization ? organization->name : std::string(), site);
    return new ZOLIQrdPERole(role ? role->name : std::string(), acting);
}

ZOLIQrdPEPerson_var SiteDirectory::PersonFor(const std::string& name) const {
    const PersonRow* person = FindPerson(name);
    if (!person)
        return new ZOLIQrdPEPerson(0, name, {}, {}, RoleFor(0), 0);
    return new ZOLIQrdPEPerson(person->id, name, person->firstName, person->lastName, RoleFor(person->role),
                               static_cast<int>(person->privilege));
}

} // namespace trellis
