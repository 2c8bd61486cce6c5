#pragma once

#include "store/SiteRows.h"

#include <string>

namespace trellis {

// RightQuestion: may this user, acting for this organization, use this function at this site? An empty
// organization is that of the user's role, an empty site that of the organization.
struct RightQuestion {
    std::string user;
    std::string organization;
    std::string function;
    std::string site;

    bool IsAllowed() const;
    // Whether the deciding row names the user's role and the function, and allows.
    bool IsGrantedByName() const;

private:
    // The row that decides, or null when none fits.
    const RightRow* DecidingRow(const PersonRow* person) const;
};

} // namespace trellis
