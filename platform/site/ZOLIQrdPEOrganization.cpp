#include "site/ZOLIQrdPEOrganization.h"

#include <utility>

ZOLIQrdPEOrganization::ZOLIQrdPEOrganization(std::int64_t id, ZOLUnicodeString name, ZOLIQrdPESite_var site)
    : ZOLIQrdPEPeople(id, std::move(name)), _site(std::move(site)) {}
