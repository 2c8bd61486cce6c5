#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListVal.h"
#include "values/ZOLQRDCfgEffectivity.h"
#include "values/ZOLUnicodeString.h"
#include "values/ZOLVar.h"

class ZOLGYRError;
class ZOLIQrdConfigItem;

// ZOLIQrdEffectivity: a stored option of a dictionary, or a stored effectivity of a config item.
//
// Handles are equal when they mean the same stored object, also across an unload, after which they read it
// anew. An object that was removed answers with what it last held; a change of it sets 60301 (its name).
// Setters check no uniqueness, so that names can be swapped; giving the value that is there already changes
// nothing and needs no right. Every setter may be refused as DoIModifyIt of the option's category tells: a
// number of RightTable (user), or 60402 (category, owner). Nothing here saves.
class TRELLIS_API ZOLIQrdEffectivity : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdEffectivity, ZOLBaseUnknown)
public:
    // The dictionary or config item that holds it.
    virtual ZOLVar<ZOLIQrdConfigItem> GetConfigItem() const = 0;
    virtual ZOLUnicodeString GetDescription() const = 0;
    virtual void SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) = 0;
    // Used on links: a mark that is stored, never computed.
    virtual int IsUsed() const = 0;
    virtual void SetUsed(int used, ZOLGYRError& error) = 0;
    // Renames it. 60400 (name) when it is empty or longer than 40 characters.
    virtual void SetOption(const ZOLUnicodeString& name, ZOLGYRError& error) = 0;
    // Its name as lists show it, and as it is compared; empty for an effectivity that names no option.
    virtual ZOLUnicodeString GetOption() const = 0;
    virtual ZOLUnicodeString GetOptionId() const = 0;
    // The name of the category as a text of its own: a rename of the category does not change it. Empty for
    // an effectivity on links.
    virtual ZOLUnicodeString GetCategory() const = 0;
    virtual void SetCategory(const ZOLUnicodeString& category, ZOLGYRError& error) = 0;
    // The option names of a package in order; the list is emptied first.
    virtual void GetPackOptions(ZOLListValZOLUnicodeString& options) const = 0;
    virtual void SetPackOptions(const ZOLListValZOLUnicodeString& options, ZOLGYRError& error) = 0;
    // Who last saved it, and the day on which (YYYY-MM-DD); empty before the first save.
    virtual ZOLUnicodeString GetLastModifierId() const = 0;
    virtual ZOLUnicodeString GetLastUpdateDate() const = 0;
    // All that is kept of it, as a term: an option with its category, description and used mark.
    virtual ZOLQRDCfgEffectivity GetTerm() const = 0;
};

using ZOLIQrdEffectivity_var = ZOLVar<ZOLIQrdEffectivity>;
using ZOLListValZOLIQrdEffectivity_var = ZOLListVal<ZOLIQrdEffectivity_var>;
