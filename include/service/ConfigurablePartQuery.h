#pragma once

#include "values/TrellisApi.h"

#include <vector>

class ZOLDMInstance;
class ZOLGYRError;

namespace trellis {

// ConfigurablePartQuery: which of many parts are configurable, asked at once.
class TRELLIS_API ConfigurablePartQuery {
public:
    // One answer for each part, in one query, with what is unsaved. On a failure all are false and a number set: 20901,
    // or 60201 when no database is open.
    static std::vector<bool> Among(const std::vector<ZOLDMInstance>& parts, ZOLGYRError& error);
};

} // namespace trellis
