#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListPtr.h"
#include "values/ZOLUnicodeString.h"

// ZOLCategory: a category of a dictionary as lists and the selection graph hold it: a copy that outlives an
// edit of the dictionary. Two are equal by name alone: copies of one category may differ in all else.
class TRELLIS_API ZOLCategory {
public:
    // exclusivity: at most one of its options may be chosen; mandatory: at least one must be.
    ZOLCategory(const ZOLUnicodeString& name, const ZOLUnicodeString& description, const int exclusivity,
                const int mandatory);

    const ZOLUnicodeString& GetName() const { return _name; }
    const ZOLUnicodeString& GetDescription() const { return _description; }
    int GetMandatory() const { return _mandatory; }
    int GetExclusivity() const { return _exclusivity; }

    // Names of options in order; duplicates are kept as given.
    const ZOLListValZOLUnicodeString& GetDefaultOptions() const { return _defaultOptions; }
    void SetDefaultOptions(const ZOLListValZOLUnicodeString& names) { _defaultOptions = names; }

    const ZOLUnicodeString& GetOwner() const { return _owner; }
    const ZOLUnicodeString& GetOrganization() const { return _organization; }
    void SetResponsible(const ZOLUnicodeString& owner, const ZOLUnicodeString& organization);

    const ZOLUnicodeString& GetLastModifierId() const { return _lastModifierId; }
    void SetLastModifierId(const ZOLUnicodeString& id) { _lastModifierId = id; }
    const ZOLUnicodeString& GetLastUpdateDate() const { return _lastUpdateDate; }
    void SetLastUpdateDate(const ZOLUnicodeString& date) { _lastUpdateDate = date; }

    friend bool operator==(const ZOLCategory& a, const ZOLCategory& b) { return a._name == b._name; }

private:
    ZOLUnicodeString _name;
    ZOLUnicodeString _description;
    ZOLUnicodeString _owner;
    ZOLUnicodeString _organization;
    ZOLUnicodeString _lastModifierId;
    ZOLUnicodeString _lastUpdateDate;
    ZOLListValZOLUnicodeString _defaultOptions;
    int _exclusivity;
    int _mandatory;
};

using ZOLListPtrZOLCategory = ZOLListPtr<ZOLCategory>;
