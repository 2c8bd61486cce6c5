#pragma once

#include "values/TrellisApi.h"

#include <vector>

namespace trellis {

// An administrator value that the system reads: set once for all users of a database, in the group
// ZOLIQrdServices::Group.
struct AdministratorKey {
    const char* name;
    const char* whenUnset; // what readers then do, for people
    const char* meaning;
};

// Every one, in the order in which they are shown.
TRELLIS_API const std::vector<AdministratorKey>& AdministratorKeys();

} // namespace trellis
