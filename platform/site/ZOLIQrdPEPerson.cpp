#include "site/ZOLIQrdPEPerson.h"

#include <utility>

ZOLIQrdPEPerson::ZOLIQrdPEPerson(std::int64_t id, ZOLUnicodeString name, ZOLUnicodeString firstName,
                                 ZOLUnicodeString lastName, ZOLIQrdPERole_var role, int privilege)
    : ZOLIQrdPEPeople(id, std::move(name)),
      _firstName(std::move(firstName)),
      _lastName(std::move(lastName)),
      _role(std::move(role)),
      _privilege(privilege) {}
