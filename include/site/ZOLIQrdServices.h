#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"
#include "values/ZOLVar.h"

// ZOLIQrdServices: the reader of administrator values, which are kept in the database for all its users.
class TRELLIS_API ZOLIQrdServices : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdServices, ZOLBaseUnknown)
public:
    // The group of all values of this system.
    static constexpr const char* Group = "QRDAdmin";

    // The value of that name in a group; empty when it is not set, or while no database is open. Values that
    // are set but not saved yet are seen.
    ZOLUnicodeString GetValue(const ZOLUnicodeString& name, const ZOLUnicodeString& group) const;
};

using ZOLIQrdServices_var = ZOLVar<ZOLIQrdServices>;

TRELLIS_API ZOLIQrdServices_var CreateServices();
