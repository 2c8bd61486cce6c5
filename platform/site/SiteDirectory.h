#pragma once

#include "site/ZOLIQrdPEPerson.h"
#include "store/Workspace.h"
#include "values/ZOLGYRError.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace trellis {

// SiteDirectory: people and rights of the open database as they stood when they were last read, unsaved
// changes included. Rights are asked in every operation, so the answers come from memory; it is read anew
// when it is forgotten, when another database is open, and after some seconds, since others may have changed
// it.
class SiteDirectory {
public:
    // The present directory; without a database it is empty.
    static const SiteDirectory& Current();
    // To be called after every change of people and rights in this process.
    static void Forget();

    // Also true while the database cannot be read: then nobody is known to it.
    bool KnowsPersons() const { return _isUnread || !_persons.empty(); }
    bool IsUnread() const { return _isUnread; }
    const PersonRow* FindPerson(const std::string& name) const;
    const RoleRow* FindRole(std::int64_t id) const;
    // By name within an organization; organization 0 for a role outside any.
    const RoleRow* FindRole(const std::string& name, std::int64_t organization) const;
    const OrganizationRow* FindOrganization(std::int64_t id) const;
    const OrganizationRow* FindOrganization(const std::string& name) const;
    const SiteRow* FindSite(std::int64_t id) const;
    const SiteRow* FindSite(const std::string& name) const;
    const std::vector<PersonRow>& Persons() const { return _persons; }
    const std::vector<RightRow>& Rights() const { return _rights; }

    // The person of that name as others see one; somebody unknown has neither role nor privilege.
    ZOLIQrdPEPerson_var PersonFor(const std::string& name) const;
    // The name of the site at which a role works; empty when unknown.
    std::string SiteOfRole(std::int64_t role) const;

private:
    bool IsOfOpenDatabase() const;
    void Read(ZOLGYRError& error);
    ZOLIQrdPERole_var RoleFor(std::int64_t id) const;

    // A record that dies with its database, which tells one that is opened again from the one before.
    RecordOf<ConfigItemRow> _anchor; // null without a database
    bool _isUnread = false;
    std::chrono::steady_clock::time_point _readAt;
    std::vector<PersonRow> _persons;
    std::vector<RoleRow> _roles;
    std::vector<OrganizationRow> _organizations;
    std::vector<SiteRow> _sites;
    std::vector<RightRow> _rights;
    std::unordered_map<std::string, std::size_t> _personsByName;
};

} // namespace trellis
