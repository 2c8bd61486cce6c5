#pragma once

#include "service/ZOLIQrdEffectivity.h"

#include <vector>

class ZOLDMInstance;
class ZOLGYRError;

namespace trellis {

// EffectivityQuery: which effectivities lie on links of the open database.
class TRELLIS_API EffectivityQuery {
public:
    // One list for each link, in order of creation; all are read by a fixed number of queries and one for each config
    // item that was not read yet. Empty for what is no stored link. On a failure all lists are empty and a number set:
    // 20901, or 60201 when no database is open.
    static std::vector<ZOLListValZOLIQrdEffectivity_var> OfLinks(const std::vector<ZOLDMInstance>& links,
                                                                 ZOLGYRError& error);
};

} // namespace trellis
