#pragma once

#include "values/ZOLQRDCfgEffectivity.h"

// ZOLQRDCfgDbEffectivity: a stored effectivity as a query reads it: the state of that moment, without a way
// back to the stored object.
class TRELLIS_API ZOLQRDCfgDbEffectivity {
public:
    explicit ZOLQRDCfgDbEffectivity(ZOLQRDCfgEffectivity term) : _term(std::move(term)) {}

    // A word of ZOLQRDCfgEffectivityType.
    const ZOLUnicodeString& GetType() const { return _term.GetType(); }
    // The term: type, name or options, limits, description and used mark.
    operator const ZOLQRDCfgEffectivity&() const { return _term; }

private:
    ZOLQRDCfgEffectivity _term;
};
