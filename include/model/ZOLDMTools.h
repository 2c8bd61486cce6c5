#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

// ZOLDMTools: small services of the model that belong to no single object.
class TRELLIS_API ZOLDMTools {
public:
    // The user's own folder for small files that outlive a run: trellis/ in the data folder of the user (XDG). It is
    // made when it is missing, and ends in "/", so that callers append a name to it. Empty when the user has no such
    // folder and none can be made; callers then keep nothing. Reads the environment at each call.
    static ZOLUnicodeString ZOLDMDefaultDirectory();

    // Below 0, 0 or above 0, in the order of `<`; for QuickSort.
    static int CompareStrings(const ZOLUnicodeString* a, const ZOLUnicodeString* b);
};
