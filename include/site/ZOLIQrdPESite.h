#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"
#include "values/ZOLVar.h"

// ZOLIQrdPESite: a place that answers for parts, and at which people work.
class TRELLIS_API ZOLIQrdPESite : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdPESite, ZOLBaseUnknown)
public:
    explicit ZOLIQrdPESite(ZOLUnicodeString name);

    // Empty when no site is known; then no comparison of sites refuses anything.
    const ZOLUnicodeString& GetName() const { return _name; }

private:
    ZOLUnicodeString _name;
};

using ZOLIQrdPESite_var = ZOLVar<ZOLIQrdPESite>;
