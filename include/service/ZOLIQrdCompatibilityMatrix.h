#pragma once

#include "service/ZOLIQrdCategory.h"
#include "service/ZOLIQrdConfigRule.h"

// ZOLIQrdCompatibilityMatrix: a stored compatibility matrix: categories as columns, rules of the row kind as rows.
//
// Handles, removed objects, rights, owners and refusals are as with ZOLIQrdConfigRule. Nothing here saves.
class TRELLIS_API ZOLIQrdCompatibilityMatrix : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdCompatibilityMatrix, ZOLBaseUnknown)
public:
    // The dictionary that holds it.
    virtual ZOLIQrdConfigItem_var GetConfigItem() const = 0;
    virtual ZOLUnicodeString GetName() const = 0;
    // 1 to 40 characters, else 60400 (name).
    virtual void SetName(const ZOLUnicodeString& name, ZOLGYRError& error) = 0;
    virtual ZOLUnicodeString GetDescription() const = 0;
    virtual void SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) = 0;
    // The columns, in order; categories of other dictionaries, null handles and repetitions are left out. Rows stay
    // as they are.
    virtual void SetCategories(const ZOLListValZOLIQrdCategory_var& categories, ZOLGYRError& error) = 0;
    virtual void GetCategories(ZOLListValZOLIQrdCategory_var& categories) const = 0;
    // The rows, in order.
    virtual void GetRules(ZOLListValZOLIQrdConfigRule_var& rules) const = 0;
    // Takes a row of the dictionary into this matrix, behind the others, out of the one it was in. A rule of another
    // kind or dictionary is left alone.
    virtual void AddRule(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error) = 0;
    // Takes a row out of the matrix; it stays in the dictionary until RemoveConfigRuleFromDictionary, and binds
    // nothing. A rule that is no row here is left alone.
    virtual void RemoveRule(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error) = 0;
    virtual ZOLUnicodeString GetOwner() const = 0;
    virtual void SetOwner(const ZOLUnicodeString& owner, ZOLGYRError& error) = 0;
    virtual ZOLUnicodeString GetOrganization() const = 0;
    virtual void SetOrganization(const ZOLUnicodeString& organization, ZOLGYRError& error) = 0;
    virtual ZOLUnicodeString GetLastModifierId() const = 0;
    virtual ZOLUnicodeString GetLastUpdateDate() const = 0;
};

using ZOLIQrdCompatibilityMatrix_var = ZOLVar<ZOLIQrdCompatibilityMatrix>;
using ZOLListValZOLIQrdCompatibilityMatrix_var = ZOLListVal<ZOLIQrdCompatibilityMatrix_var>;
