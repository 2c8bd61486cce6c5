#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

#include <vector>

class ZOLDMInstance;

// SdaiEntityInstance: a part or link as an entity with attributes. There is one object for each part and link, so
// pointers may be compared; it lives as long as the database is open. Made by trellis::LinksUnderEdit.
//
//   part  aggregate "ZOLASS": its links as the edits leave them: with those added, without those removed
//   link  entity "ref": its child part
class TRELLIS_API SdaiEntityInstance {
public:
    // The working model that holds the links under edit.
    static constexpr const char* ModelUnderEdit = "SdaiRelModel";

    SdaiEntityInstance(const SdaiEntityInstance&) = delete;
    SdaiEntityInstance& operator=(const SdaiEntityInstance&) = delete;
    virtual ~SdaiEntityInstance();

    // The name of its model: ModelUnderEdit for a link under edit, else "SdaiProductModel".
    virtual ZOLUnicodeString FindEntityInstanceModel() const;
    // What it is as part or link. A link that is not stored yet has its identifier already, but coid 0.
    virtual ZOLDMInstance GetInstance() const = 0;

    // Whether it has an attribute or aggregate of that name.
    virtual int HasAttribute(const ZOLUnicodeString& name) const = 0;
    // The entity under an attribute; null when it has none of that name.
    virtual SdaiEntityInstance* GetEntity(const ZOLUnicodeString& name) const;
    // The members of an aggregate, in order; none when it has none of that name.
    virtual std::vector<SdaiEntityInstance*> GetAggregate(const ZOLUnicodeString& name) const;

protected:
    SdaiEntityInstance() = default;
};
