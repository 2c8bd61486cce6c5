#pragma once

#include "service/ZOLIQrdConfigItem.h"
#include "values/ZOLQRDCfgEffectivity.h"

namespace trellis {

// RapidSelect: options chosen by typing their names, joined by "&", "AND" or "and".
class RapidSelect {
public:
    enum class Mode {
        None,  // no field
        Exact, // every name in full
        Smart  // the beginning of a name is enough where it fits one option only
    };

    // The names in a typed text, without blanks around them. A separator has a blank on each side. From the start,
    // and behind each separator found, the nearest "&" ends a name; only where none is left "AND" does, and only
    // then "and".
    static ZOLListValZOLUnicodeString Split(const ZOLUnicodeString& typed);

    // The options that are meant. In mode Exact none after the first name that no option has; in mode Smart a name
    // that fits none or several is passed over.
    ZOLListValZOLQRDCfgEffectivity Find(const ZOLListValZOLUnicodeString& typed, Mode mode) const;

    // The names to look in are read once: a dictionary that changes later does not change them.
    bool HasNames() const { return _names.Size() > 0; }
    void ReadNames(const ZOLListValZOLIQrdConfigItem_var& dictionaries);

private:
    bool IsMeant(const ZOLUnicodeString& typed, int position, Mode mode) const;

    ZOLListValZOLUnicodeString _names; // sorted
};

} // namespace trellis
