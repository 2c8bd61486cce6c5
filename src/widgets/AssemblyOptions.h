#pragma once

#include "model/ZOLDMInstance.h"
#include "values/ZOLQRDCfgEffectivity.h"

class ZOLGYRError;

namespace trellis {

// AssemblyOptions: the options that effectivities below a part name.
class AssemblyOptions {
public:
    // Appends the option terms of all links below the parts, level by level, until there is nothing below:
    // those of options as they are stored, each package as its options from the last to the first. A part
    // that was met is not entered again, so a structure that contains itself ends, too. The same option may
    // come several times.
    //   iRawCoid  non-zero: the parts below a level are asked for at once; 0: part by part. The result is the
    //             same.
    //   error     as of ZOLQRDCfgDbManager; the list is then incomplete
    static void GetOneLevelUsedOption(const ZOLListValZOLDMInstance& parts,
                                      ZOLListValZOLQRDCfgEffectivity& oResult, int iRawCoid,
                                      ZOLGYRError& error);
};

} // namespace trellis
