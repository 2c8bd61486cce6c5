#include "site/ZOLIQrdSCManager.h"

#include "site/LoggedInUser.h"
#include "site/RightQuestion.h"
#include "site/SiteDirectory.h"
#include "values/ZOLGYRError.h"

namespace {

constexpr int NoPersons = 60500;
constexpr int UnknownUser = 60501;
constexpr int Notice = -1;

} // namespace

ZOLIQrdPEPerson_var ZOLIQrdSCManager::GetCurrentPerson() const {
    return trellis::SiteDirectory::Current().PersonFor(trellis::LoggedInUser());
}

ZOLIQrdPERole_var ZOLIQrdSCManager::GetCurrentRole() const {
    return GetCurrentPerson()->GetRole();
}

ZOLIQrdPEOrganization_var ZOLIQrdSCManager::GetCurrentOrganization() const {
    return GetCurrentRole()->GetOrganization();
}

ZOLIQrdPESite_var ZOLIQrdSCManager::GetCurrentSite() const {
    return GetCurrentOrganization()->GetSite();
}

int ZOLIQrdSCManager::HasRight(const ZOLUnicodeString& product, const ZOLUnicodeString& component,
                               const ZOLUnicodeString& function) const {
    return HasRight(trellis::LoggedInUser(), {}, product, component, function, {});
}

int ZOLIQrdSCManager::HasRight(const ZOLUnicodeString& user, const ZOLUnicodeString& organization,
                               const ZOLUnicodeString& product, const ZOLUnicodeString& component,
                               const ZOLUnicodeString& function, const ZOLUnicodeString& site) const {
    if (product.Bytes() != "QRD" || component.Bytes() != "CFG")
        return 0;
    const trellis::RightQuestion question{user.Bytes(), organization.Bytes(), function.Bytes(), site.Bytes()};
    return question.IsAllowed();
}

void ZOLIQrdSCManager::SetCurrentPerson(const ZOLUnicodeString& name) {
    trellis::SetLoggedInUser(name.Bytes());
}

bool ZOLIQrdSCManager::CheckLogin(ZOLGYRError& error) const {
    const trellis::SiteDirectory& directory = trellis::SiteDirectory::Current();
    const std::string user = trellis::LoggedInUser();
    if (directory.FindPerson(user))
        return true;
    if (directory.KnowsPersons())
        error.Set(UnknownUser, {user});
    else
        error.Set(NoPersons, Notice, {user});
    return false;
}

ZOLIQrdSCManager_var GetSecurityManager() {
    static const ZOLIQrdSCManager_var manager = new ZOLIQrdSCManager;
    return manager;
}
