#pragma once

#include "model/ZOLDMInstance.h"
#include "service/ZOLQRDCfgDbEffectivity.h"
#include "values/ZOLListPtr.h"

class ZOLGYRError;

// ZOLQRDCfgDbManager: questions about effectivities that are put to the database for many parts at once.
class TRELLIS_API ZOLQRDCfgDbManager {
public:
    // Kinds of effectivities; added up.
    enum Kinds { OptionKinds = 8, PackKinds = 512 };

    // The effectivities of these kinds on the links directly below the parts, each once, in order of
    // creation, unsaved changes included. The number of queries does not depend on that of the parts and
    // links, but that long lists are asked for in portions.
    //   effectivities  emptied first; the caller deletes the elements (ZOLDeleteElements)
    //   error          20901, or 60201 when no database is open; the list is then empty
    static void GetEffectivitiesForParts(const ZOLListValZOLDMInstance& parts,
                                         ZOLListPtr<ZOLQRDCfgDbEffectivity>& effectivities,
                                         ZOLGYRError& error, int kinds);
};
