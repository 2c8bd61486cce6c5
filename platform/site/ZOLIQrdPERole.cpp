#include "site/ZOLIQrdPERole.h"

#include <utility>

ZOLIQrdPERole::ZOLIQrdPERole(ZOLUnicodeString name, ZOLIQrdPEOrganization_var organization)
    : _name(std::move(name)), _organization(std::move(organization)) {}
