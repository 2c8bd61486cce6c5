#pragma once

#include <string>

namespace trellis {

// Who is logged in: the user set last, else the setting "USER" of the site, else the user of the operating
// system. Whoever opens a database gives it this name.
std::string LoggedInUser();
// An empty name gives back to the setting and the operating system. The open database saves under the new
// name.
void SetLoggedInUser(const std::string& name);

} // namespace trellis
