#pragma once

#include "service/ZOLIQrdEffectivity.h"

// ZOLIQrdCategory: a stored category of a dictionary.
//
// Handles, removed objects, setters and their refusals are as with ZOLIQrdEffectivity; the right is that of
// DoIModifyIt on this category. Nothing here saves.
class TRELLIS_API ZOLIQrdCategory : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdCategory, ZOLBaseUnknown)
public:
    // The dictionary that holds it.
    virtual ZOLVar<ZOLIQrdConfigItem> GetConfigItem() const = 0;
    virtual ZOLUnicodeString GetName() const = 0;
    // 60400 (name) when it is empty or longer than 40 characters. The options' own text of the category
    // stays.
    virtual void SetName(const ZOLUnicodeString& name, ZOLGYRError& error) = 0;
    // May hold line feeds.
    virtual ZOLUnicodeString GetDescription() const = 0;
    virtual void SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) = 0;
    // 1: at most one of its options may be chosen.
    virtual int GetExclusivity() const = 0;
    virtual void SetExclusivity(int exclusivity, ZOLGYRError& error) = 0;
    // Takes an option out of this category and of its defaults; it still stands in the dictionary until
    // RemoveOptionFromDictionary. An option of another category is left alone.
    virtual void RemoveOption(const ZOLIQrdEffectivity_var& option, ZOLGYRError& error) = 0;
    // In order of creation; the list is emptied first.
    virtual void GetOptions(ZOLListValZOLIQrdEffectivity_var& options) const = 0;
    // 1: at least one of its options must be chosen.
    virtual int GetMandatory() const = 0;
    virtual void SetMandatory(int mandatory, ZOLGYRError& error) = 0;
    // Options chosen by default, in the order given, duplicates kept. Whether several may stand in an
    // exclusive category is not judged here. An option of another category, and a null handle, are left out.
    virtual void GetDefaultOptions(ZOLListValZOLIQrdEffectivity_var& options) const = 0;
    virtual void SetDefaultOptions(const ZOLListValZOLIQrdEffectivity_var& options, ZOLGYRError& error) = 0;
    // A number kept beside the default list.
    virtual int GetDefaultMode() const = 0;
    virtual void SetDefaultMode(int mode, ZOLGYRError& error) = 0;
    // The responsible user and organization, by name.
    virtual ZOLUnicodeString GetOwner() const = 0;
    virtual void SetOwner(const ZOLUnicodeString& owner, ZOLGYRError& error) = 0;
    virtual ZOLUnicodeString GetOrganization() const = 0;
    virtual void SetOrganization(const ZOLUnicodeString& organization, ZOLGYRError& error) = 0;
    // Who last saved it, and the day on which (YYYY-MM-DD); empty before the first save.
    virtual ZOLUnicodeString GetLastModifierId() const = 0;
    virtual ZOLUnicodeString GetLastUpdateDate() const = 0;
};

using ZOLIQrdCategory_var = ZOLVar<ZOLIQrdCategory>;
using ZOLListValZOLIQrdCategory_var = ZOLListVal<ZOLIQrdCategory_var>;
