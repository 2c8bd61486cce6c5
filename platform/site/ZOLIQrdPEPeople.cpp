#include "site/ZOLIQrdPEPeople.h"

#include <utility>

ZOLIQrdPEPeople::ZOLIQrdPEPeople(std::int64_t id, ZOLUnicodeString name) : _id(id), _name(std::move(name)) {}

int ZOLIQrdPEPeople::IsEqual(const ZOLBaseUnknown* other) const {
    const auto* people = dynamic_cast<const ZOLIQrdPEPeople*>(other);
    if (!people || !people->IsA(GetMetaObject().name) || people->_id != _id)
        return 0;
    return _id != 0 || people->_name == _name;
}
