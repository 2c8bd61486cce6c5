#include "site/RightQuestion.h"

#include "site/SiteDirectory.h"

namespace trellis {

namespace {

// How special a row is for a question; -1 when it does not fit.
int Rank(const RightRow& row, std::int64_t role, const std::string& function, const std::string& site) {
    const bool fits = (row.role == 0 || row.role == role) &&
                      (row.function.empty() || row.function == function) &&
                      (row.site.empty() || row.site == site);
    if (!fits)
        return -1;
    return (row.role != 0 ? 4 : 0) + (!row.function.empty() ? 2 : 0) + (!row.site.empty() ? 1 : 0);
}

bool ActsFor(const PersonRow& person, const std::string& organization) {
    const SiteDirectory& directory = SiteDirectory::Current();
    const RoleRow* role = directory.FindRole(person.role);
    const OrganizationRow* own = role ? directory.FindOrganization(role->organization) : nullptr;
    return own && own->name == organization;
}

} // namespace

const RightRow* RightQuestion::DecidingRow(const PersonRow* person) const {
    const SiteDirectory& directory = SiteDirectory::Current();
    const std::int64_t role = person ? person->role : 0;
    const std::string place = site.empty() ? directory.SiteOfRole(role) : site;
    const RightRow* deciding = nullptr;
    int highest = -1;
    for (const RightRow& row : directory.Rights()) {
        const int rank = Rank(row, role, function, place);
        if (rank <= highest)
            continue;
        highest = rank;
        deciding = &row;
    }
    return deciding;
}

bool RightQuestion::IsAllowed() const {
    const SiteDirectory& directory = SiteDirectory::Current();
    const PersonRow* person = directory.FindPerson(user);
    if (!person && directory.KnowsPersons())
        return false;
    if (person && !organization.empty() && !ActsFor(*person, organization))
        return false;
    const RightRow* row = DecidingRow(person);
    return !row || row->allowed != 0;
}

bool RightQuestion::IsGrantedByName() const {
    const PersonRow* person = SiteDirectory::Current().FindPerson(user);
    const RightRow* row = person ? DecidingRow(person) : nullptr;
    return row && row->role != 0 && !row->function.empty() && row->allowed != 0;
}

} // namespace trellis
