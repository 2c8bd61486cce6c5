#pragma once

#include "service/ZOLIQrdEffectivity.h"
#include "values/_SEQUENCE_octet.h"

// ZOLIQrdConfigItem: a dictionary, or a configurable part's own item, which carries the effectivities of its
// links.
//
// Handles and removed objects are as with ZOLIQrdEffectivity. Nothing here saves.
class TRELLIS_API ZOLIQrdConfigItem : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdConfigItem, ZOLBaseUnknown)
public:
    // The identifier of the part that owns it, for events. That of the corporate dictionary is reserved: it
    // names no part.
    virtual _SEQUENCE_octet GetObjectId() const = 0;
    // The effectivities of a part's own item, or the options of a dictionary, in order of creation; the list
    // is emptied first.
    virtual void GetEffectivities(ZOLListValZOLIQrdEffectivity_var& effectivities) const = 0;
    // Adds an effectivity to a part's own item and gives it; flags, category and used mark of the term are
    // not kept. Null and 60403 for a dictionary, whose options are added by the manager; null and 60301 for a
    // removed item.
    virtual ZOLIQrdEffectivity_var AddEffectivity(const ZOLQRDCfgEffectivity& term, ZOLGYRError& error) = 0;
    // Takes an effectivity off a part's own item and off its links. One of another item is left alone; 60403
    // for a dictionary.
    virtual void RemoveEffectivity(const ZOLIQrdEffectivity_var& effectivity, ZOLGYRError& error) = 0;
    // Whether its modifications go through an action; then they accept no parameters of their own. Setting it
    // needs the right "ChangeModifMode".
    virtual int IsActionControlled() const = 0;
    virtual void SetActionControl(int on, ZOLGYRError& error) = 0;
    virtual int AcceptsParameters() const = 0;
};

using ZOLIQrdConfigItem_var = ZOLVar<ZOLIQrdConfigItem>;
using ZOLListValZOLIQrdConfigItem_var = ZOLListVal<ZOLIQrdConfigItem_var>;
