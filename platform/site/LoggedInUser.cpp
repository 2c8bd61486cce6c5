#include "site/LoggedInUser.h"

#include "values/Settings.h"

#include <pwd.h>
#include <unistd.h>

namespace trellis {

namespace {

std::string ChosenUser;

std::string SystemUser() {
    const passwd* entry = getpwuid(geteuid());
    return entry ? entry->pw_name : "uid " + std::to_string(geteuid());
}

} // namespace

std::string LoggedInUser() {
    if (!ChosenUser.empty())
        return ChosenUser;
    const std::string setting = Settings::Current().Value("USER").text;
    if (!setting.empty())
        return setting;
    static const std::string system = SystemUser();
    return system;
}

void SetLoggedInUser(const std::string& name) {
    ChosenUser = name;
}

} // namespace trellis
