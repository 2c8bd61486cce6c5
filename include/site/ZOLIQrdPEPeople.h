#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"
#include "values/ZOLVar.h"

#include <cstdint>

// ZOLIQrdPEPeople: a person or an organization, whoever can hold a modification. QueryInterface tells which.
// A snapshot of what the database said when it was fetched; fetch it anew to see a change. Two mean the same
// when they stand for the same stored object, or, where nothing is stored, for the same name.
class TRELLIS_API ZOLIQrdPEPeople : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLIQrdPEPeople, ZOLBaseUnknown)
public:
    // The identity: the login name of a person, the name of an organization.
    const ZOLUnicodeString& GetName() const { return _name; }

    int IsEqual(const ZOLBaseUnknown* other) const override;

protected:
    // id: the key of the stored object, 0 when there is none.
    ZOLIQrdPEPeople(std::int64_t id, ZOLUnicodeString name);

private:
    std::int64_t _id;
    ZOLUnicodeString _name;
};

using ZOLIQrdPEPeople_var = ZOLVar<ZOLIQrdPEPeople>;
