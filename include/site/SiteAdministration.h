#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

#include <vector>

class ZOLGYRError;

namespace trellis {

struct PersonEntry {
    ZOLUnicodeString name; // login name
    ZOLUnicodeString firstName;
    ZOLUnicodeString lastName;
    ZOLUnicodeString role;         // empty: none
    ZOLUnicodeString organization; // of the role
    int privilege = 0;
};

struct RightEntry {
    ZOLUnicodeString function;     // empty: all functions
    ZOLUnicodeString role;         // empty: all roles
    ZOLUnicodeString organization; // of the role
    ZOLUnicodeString site;         // empty: all sites
    bool allowed = false;
};

struct AdministratorValueEntry {
    ZOLUnicodeString name;
    ZOLUnicodeString group;
    ZOLUnicodeString value;
};

// SiteAdministration: sets up who works with a database and what each may do, and the administrator's values.
// All is unsaved until Save.
//
// Once a person of the database has privilege 10 or more, only such a person may change anything here;
// before, everybody may. Every change answers true, or false with
//   60502  administration is refused (user)        60503  no such person, role, organization or site (kind,
// name)
//   60504  it exists already (kind, name)          60505  no such function (name)
//   60506  a name is empty, or longer than 80 characters (kind)
//   60507  no database is open                     60508  a person stands for a role that is to go (role,
// person) and then has changed nothing.
class TRELLIS_API SiteAdministration {
public:
    static bool AddSite(const ZOLUnicodeString& name, ZOLGYRError& error);
    // site: an existing one, or empty.
    static bool AddOrganization(const ZOLUnicodeString& name, const ZOLUnicodeString& site,
                                ZOLGYRError& error);
    // The same role name may stand in several organizations, or in none.
    static bool AddRole(const ZOLUnicodeString& name, const ZOLUnicodeString& organization,
                        ZOLGYRError& error);
    static bool RemoveRole(const ZOLUnicodeString& name, const ZOLUnicodeString& organization,
                           ZOLGYRError& error);
    // Adds a person, or replaces all that is known of one.
    static bool SetPerson(const PersonEntry& person, ZOLGYRError& error);
    static bool RemovePerson(const ZOLUnicodeString& name, ZOLGYRError& error);
    // Adds a row of rights, or replaces its verdict.
    static bool SetRight(const RightEntry& right, ZOLGYRError& error);
    // Takes a row away, whatever its verdict; a row that is not there is none.
    static bool RemoveRight(const RightEntry& right, ZOLGYRError& error);
    // An empty value removes it.
    static bool SetAdministratorValue(const ZOLUnicodeString& name, const ZOLUnicodeString& group,
                                      const ZOLUnicodeString& value, ZOLGYRError& error);
    // Saves, with every other unsaved change of the service (20901 to 20904).
    static bool Save(ZOLGYRError& error);

    // What there is, unsaved changes included, in order of creation.
    static std::vector<PersonEntry> Persons();
    static std::vector<RightEntry> Rights();
    static std::vector<AdministratorValueEntry> AdministratorValues();
};

} // namespace trellis
