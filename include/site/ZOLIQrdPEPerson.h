#pragma once

#include "site/ZOLIQrdPEPeople.h"
#include "site/ZOLIQrdPERole.h"

// ZOLIQrdPEPerson: a person who works with the database.
class TRELLIS_API ZOLIQrdPEPerson : public ZOLIQrdPEPeople {
    ZOL_META_OBJECT(ZOLIQrdPEPerson, ZOLIQrdPEPeople)
public:
    ZOLIQrdPEPerson(std::int64_t id, ZOLUnicodeString name, ZOLUnicodeString firstName,
                    ZOLUnicodeString lastName, ZOLIQrdPERole_var role, int privilege);

    const ZOLUnicodeString& GetFirstName() const { return _firstName; }
    const ZOLUnicodeString& GetLastName() const { return _lastName; }
    // Never null; its name is empty for a person without a role.
    const ZOLIQrdPERole_var& GetRole() const { return _role; }
    // 0 for ordinary people. From 2 and 10 on some refused rights do not bind (RightTable says which); from
    // 10 on objects of other owners may be changed and the site may be administrated.
    int GetPrivilege() const { return _privilege; }

private:
    ZOLUnicodeString _firstName;
    ZOLUnicodeString _lastName;
    ZOLIQrdPERole_var _role;
    int _privilege;
};

using ZOLIQrdPEPerson_var = ZOLVar<ZOLIQrdPEPerson>;
