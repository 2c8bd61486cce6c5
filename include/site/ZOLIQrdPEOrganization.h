#pragma once

#include "site/ZOLIQrdPEPeople.h"
#include "site/ZOLIQrdPESite.h"

// ZOLIQrdPEOrganization: an organization in which people act.
class TRELLIS_API ZOLIQrdPEOrganization : public ZOLIQrdPEPeople {
    ZOL_META_OBJECT(ZOLIQrdPEOrganization, ZOLIQrdPEPeople)
public:
    ZOLIQrdPEOrganization(std::int64_t id, ZOLUnicodeString name, ZOLIQrdPESite_var site);

    // Never null.
    const ZOLIQrdPESite_var& GetSite() const { return _site; }

private:
    ZOLIQrdPESite_var _site;
};

using ZOLIQrdPEOrganization_var = ZOLVar<ZOLIQrdPEOrganization>;
