#pragma once

#include "model/ZOLDMInstance.h"
#include "values/ZOLQRDCfgEffectivity.h"

class ZOLGYRError;

namespace trellis {

// SiteOptionList: asks the site which options of a product's dictionary users may see.
class SiteOptionList {
public:
    // Replaces the list by what the site's control function gives, as options that are not used; where there
    // is none, or it has nothing to say or fails, the list stays. The errors are those of ZOLDMUsrMethod.
    static void Replace(const ZOLDMInstance& product, ZOLListValZOLQRDCfgEffectivity& options,
                        ZOLGYRError& error);
};

} // namespace trellis
