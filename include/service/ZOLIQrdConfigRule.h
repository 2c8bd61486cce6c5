#pragma once

#include "service/ZOLConfigRule.h"
#include "service/ZOLIQrdConfigItem.h"

// ZOLIQrdConfigRule: a stored rule of a dictionary: a directive rule, a package, or a row of a matrix.
//
// Texts are given and taken in the words of the user's language and stored in neutral ones; names in them are never
// touched. Handles and removed objects are as with ZOLIQrdEffectivity. Setters set 60301 for a removed rule; they
// need the right "ManageRules" at the part's site, in the corporate dictionary "ManageRulesCorp", and the ownership
// that ZOLQRDCfgBase::DoIModifyIt asks for (60402: rule, owner). Nothing here saves.
class TRELLIS_API ZOLIQrdConfigRule : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdConfigRule, ZOLBaseUnknown)
public:
    // The dictionary that holds it.
    virtual ZOLIQrdConfigItem_var GetConfigItem() const = 0;
    virtual ZOLUnicodeString GetName() const = 0;
    // At most 40 characters, else 60400 (name); may be empty.
    virtual void SetName(const ZOLUnicodeString& name, ZOLGYRError& error) = 0;
    virtual ZOLUnicodeString GetRuleString() const = 0;
    // The text is not checked; one that cannot be read is kept, and binds nothing.
    virtual void SetRuleString(const ZOLUnicodeString& text, ZOLGYRError& error) = 0;
    virtual ZOLConfigRuleType GetType() const = 0;
    // The responsible user and organization, by name; of a row those of its matrix.
    virtual ZOLUnicodeString GetOwner() const = 0;
    virtual ZOLUnicodeString GetOrganization() const = 0;
    virtual ZOLUnicodeString GetDescription() const = 0;
    virtual void SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) = 0;
    // Who last saved it, and the day on which (YYYY-MM-DD); empty before the first save.
    virtual ZOLUnicodeString GetLastModifierId() const = 0;
    virtual ZOLUnicodeString GetLastUpdateDate() const = 0;
    virtual void SetOwner(const ZOLUnicodeString& owner, ZOLGYRError& error) = 0;
    virtual void SetOrganization(const ZOLUnicodeString& organization, ZOLGYRError& error) = 0;
};

using ZOLIQrdConfigRule_var = ZOLVar<ZOLIQrdConfigRule>;
using ZOLListValZOLIQrdConfigRule_var = ZOLListVal<ZOLIQrdConfigRule_var>;
