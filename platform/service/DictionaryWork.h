#pragma once

#include "service/ZOLQRDCfgManager.h"

#include <functional>

namespace trellis {

// DictionaryWork: changes the dictionary of a product as one piece of work: all of it is saved, or all is as
// before.
class DictionaryWork {
public:
    // Changes the dictionary; false when something is in the way, with its code.
    using Step = std::function<bool(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                                    ZOLGYRError& error)>;

    // Finds the dictionary, or makes it where there is none, does the step and saves. The product is named by
    // its number or identifier, or is DictionaryImport::Corporate. False, with nothing changed in the store
    // or in memory, with the code of the step or of a failed save; 60420 no part, 60421 several parts are
    // meant (word), 60422 unsaved changes stand, with which this could not be taken back; 60201; 20265.
    static bool Do(const ZOLUnicodeString& product, const Step& step, ZOLGYRError& error);
};

} // namespace trellis
