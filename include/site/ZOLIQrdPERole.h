#pragma once

#include "site/ZOLIQrdPEOrganization.h"

// ZOLIQrdPERole: what a person acts as in an organization; rights hang on roles.
class TRELLIS_API ZOLIQrdPERole : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdPERole, ZOLBaseUnknown)
public:
    ZOLIQrdPERole(ZOLUnicodeString name, ZOLIQrdPEOrganization_var organization);

    const ZOLUnicodeString& GetName() const { return _name; }
    // Never null; its name is empty for a role outside any organization.
    const ZOLIQrdPEOrganization_var& GetOrganization() const { return _organization; }

private:
    ZOLUnicodeString _name;
    ZOLIQrdPEOrganization_var _organization;
};

using ZOLIQrdPERole_var = ZOLVar<ZOLIQrdPERole>;
