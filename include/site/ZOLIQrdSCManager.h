#pragma once

#include "site/ZOLIQrdPEPerson.h"

class ZOLGYRError;

// ZOLIQrdSCManager: tells who works here and with which rights.
//
// The current person is, the strongest first, whom a host set, whom the setting "USER" of the site names, the
// user of the operating system. A database without persons knows everybody by that name, without role and
// with privilege 0. In one that has persons, somebody unknown to it may read and change nothing.
// People and rights that an administrator changes in another process hold here within five seconds.
class TRELLIS_API ZOLIQrdSCManager : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdSCManager, ZOLBaseUnknown)
public:
    // None of the four is ever null; what is not known has an empty name.
    ZOLIQrdPEPerson_var GetCurrentPerson() const;
    ZOLIQrdPERole_var GetCurrentRole() const;
    ZOLIQrdPEOrganization_var GetCurrentOrganization() const;
    ZOLIQrdPESite_var GetCurrentSite() const;

    // Whether the current user, or a named one acting for an organization (empty: that of their role), has
    // the right to a function at a site (empty: that of their organization). 1 or 0; privileges do not count
    // here.
    int HasRight(const ZOLUnicodeString& product, const ZOLUnicodeString& component,
                 const ZOLUnicodeString& function) const;
    int HasRight(const ZOLUnicodeString& user, const ZOLUnicodeString& organization,
                 const ZOLUnicodeString& product, const ZOLUnicodeString& component,
                 const ZOLUnicodeString& function, const ZOLUnicodeString& site) const;

    // For hosts that log people in themselves, and for tests: everything from now on is done by that person.
    // An empty name gives back to the setting and the operating system. Saves carry the name, too.
    void SetCurrentPerson(const ZOLUnicodeString& name);
    // To be asked once after a database was opened. 60500 (a notice) when it knows no persons, so that
    // everybody has every right that is not refused to all; 60501 when it has persons, but not this user.
    // True otherwise.
    bool CheckLogin(ZOLGYRError& error) const;
};

using ZOLIQrdSCManager_var = ZOLVar<ZOLIQrdSCManager>;

// The one security manager of the process; never null, with or without an open database.
TRELLIS_API ZOLIQrdSCManager_var GetSecurityManager();
