#include "site/RightTable.h"

#include "site/LoggedInUser.h"
#include "site/RightQuestion.h"
#include "site/SiteDirectory.h"

#include <algorithm>
#include <string>

namespace trellis {

namespace {

constexpr int UnknownFunction = 60509;

} // namespace

const std::vector<GuardedFunction>& RightTable::Functions() {
    constexpr int None = GuardedFunction::NoOverride;
    static const std::vector<GuardedFunction> functions = {{"Set", 2, 60510},
                                                           {"Unset", 10, 60511},
                                                           {"DeleteOptionDictionary", 10, 60512},
                                                           {"ManageDateMilestone", None, 60513},
                                                           {"ManageRangeMilestone", None, 60514},
                                                           {"DeleteDateMilestone", None, 60515},
                                                           {"DeleteRangeMilestone", None, 60516},
                                                           {"CleanAssembly", None, 60517},
                                                           {"ManageOptionDictionary", 10, 60518},
                                                           {"ManageOptionDictionaryCorp", None, 60519},
                                                           {"ManageRules", 10, 60520},
                                                           {"ManageRulesCorp", None, 60521},
                                                           {"ManageCH", 10, 60522},
                                                           {"ChangeModifMode", 10, 60523}};
    return functions;
}

const GuardedFunction* RightTable::Find(const ZOLUnicodeString& function) {
    const auto found = std::ranges::find_if(
        Functions(), [&](const GuardedFunction& guarded) { return function.Bytes() == guarded.name; });
    return found == Functions().end() ? nullptr : &*found;
}

int RightTable::Refusal(const ZOLUnicodeString& function, const ZOLUnicodeString& site) {
    const GuardedFunction* guarded = Find(function);
    if (!guarded)
        return UnknownFunction;
    const RightQuestion question{LoggedInUser(), {}, function.Bytes(), site.Bytes()};
    return question.IsAllowed() ? 0 : guarded->refusal;
}

bool RightTable::Permits(const ZOLUnicodeString& function, const ZOLUnicodeString& site, ZOLGYRError& error) {
    const int refusal = Refusal(function, site);
    if (refusal == 0)
        return true;
    const std::string user = LoggedInUser();
    const GuardedFunction* guarded = Find(function);
    const PersonRow* person = SiteDirectory::Current().FindPerson(user);
    if (guarded && guarded->privilegeLimit != GuardedFunction::NoOverride && person &&
        person->privilege >= guarded->privilegeLimit)
        return true;
    error.Set(refusal, {user});
    return false;
}

bool RightTable::IsGranted(const ZOLUnicodeString& function) {
    const RightQuestion question{LoggedInUser(), {}, function.Bytes(), {}};
    return question.IsGrantedByName();
}

} // namespace trellis
