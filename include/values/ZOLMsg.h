#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

#include <vector>

// ZOLMsg: puts parameters into a message text.
class TRELLIS_API ZOLMsg {
public:
    // The text with %1 to %9 replaced by the parameters (%% is a percent sign). A place without a parameter
    // vanishes; so does a segment in braces { } in which any parameter is missing, braces never show. Parameters
    // that no place names are appended behind a colon, separated by commas, so that nothing told gets lost.
    // Parameters are inserted as they are: a %1 or a brace inside a parameter is plain text.
    static ZOLUnicodeString BuildMessage(const ZOLUnicodeString& text,
                                         const std::vector<ZOLUnicodeString>& parameters);
};
