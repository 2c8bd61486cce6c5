#pragma once

#include "service/ZOLIQrdConfigItem.h"

// ZOLQRDConfigurableObject: a configurable part, as ZOLQRDCfgManager::GetConfigurableObject fills it. A
// value; it holds the part's identifier and answers from the present state, so a dictionary that is added
// later is seen.
class TRELLIS_API ZOLQRDConfigurableObject {
public:
    // Stands for nothing: identifier of length 0, null handles.
    ZOLQRDConfigurableObject() = default;
    explicit ZOLQRDConfigurableObject(_SEQUENCE_octet part) : _part(std::move(part)) {}

    // Null when the part has none, or is no longer configurable.
    ZOLIQrdConfigItem_var GetDictionary() const;
    // The part's own item; null likewise.
    ZOLIQrdConfigItem_var GetConfigItem() const;
    // The part's identifier.
    const _SEQUENCE_octet& GetObject() const { return _part; }

private:
    _SEQUENCE_octet _part;
};
