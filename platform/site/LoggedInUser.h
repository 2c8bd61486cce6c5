#pragma once

#include <string>

namespace trellis {

// Who is logged in: the user set last, else the setting "USER" of the site, else the user of the operating
// system. The open database asks this at every save.
std::string LoggedInUser();
// An empty name gives back to the setting and the operating system.
void SetLoggedInUser(const std::string& name);

} // namespace trellis
