#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

// ZOLDMTarvex: the reader of declarative settings. A key is declared when a file, the environment or an option of
// the command line sets it; built-in defaults never make a key declared, since callers tell "declared off" from
// "not declared".
class TRELLIS_API ZOLDMTarvex {
public:
    // The value of a logical setting; any value but 0 is on. Not declared: 0, and rc becomes 1; declared: rc stays.
    static int GetLogicalDec(const ZOLUnicodeString& key, int& rc);
    // The same for a text; not declared: empty.
    static ZOLUnicodeString GetStringDec(const ZOLUnicodeString& key, int& rc);
};
