#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListPtr.h"
#include "values/ZOLUnicodeString.h"

// ZOLOption: an option of a dictionary as lists and the selection graph hold it: a copy that outlives an edit
// of the dictionary. Two are equal by name and category alone, so that a list finds its selection again after
// an edit or a reload.
class TRELLIS_API ZOLOption {
public:
    // isNot: meant as rejected; isRuleDefined: that state came from a rule.
    ZOLOption(const ZOLUnicodeString name, const ZOLUnicodeString description,
              const ZOLUnicodeString category, const int isNot, const int isRuleDefined);

    const ZOLUnicodeString& GetName() const { return _name; }
    const ZOLUnicodeString& GetDescription() const { return _description; }
    const ZOLUnicodeString& GetCategory() const { return _category; }
    int IsNot() const { return _isNot; }
    int IsRuleDefined() const { return _isRuleDefined; }

    // Used by an effectivity; 0 until it is set.
    int IsUsed() const { return _isUsed; }
    void SetUsed(int used) { _isUsed = used; }
    // A default option of its category; 0 until it is set.
    int IsDefault() const { return _isDefault; }
    void SetDefault(int isDefault) { _isDefault = isDefault; }

    const ZOLUnicodeString& GetLastModifierId() const { return _lastModifierId; }
    void SetLastModifierId(const ZOLUnicodeString& id) { _lastModifierId = id; }
    const ZOLUnicodeString& GetLastUpdateDate() const { return _lastUpdateDate; }
    void SetLastUpdateDate(const ZOLUnicodeString& date) { _lastUpdateDate = date; }

    friend bool operator==(const ZOLOption& a, const ZOLOption& b) {
        return a._name == b._name && a._category == b._category;
    }

private:
    ZOLUnicodeString _name;
    ZOLUnicodeString _description;
    ZOLUnicodeString _category;
    ZOLUnicodeString _lastModifierId;
    ZOLUnicodeString _lastUpdateDate;
    int _isNot;
    int _isRuleDefined;
    int _isUsed = 0;
    int _isDefault = 0;
};

using ZOLListPtrZOLOption = ZOLListPtr<ZOLOption>;
