#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

#include <vector>

class ZOLGYRError;

namespace trellis {

// A function that people may be refused.
struct GuardedFunction {
    static constexpr int NoOverride = -1;

    const char* name;
    int privilegeLimit; // the privilege from which a refusal does not bind, or NoOverride
    int refusal;        // number of the error that names the function
};

// RightTable: who may use which function of product "QRD", component "CFG". Callers ask it before they begin,
// and the service asks it again before it changes anything, so what is refused above cannot be done below,
// and what a privilege permits above does not fail below.
//
// A right is allowed unless a row of the database refuses it. Of the rows that fit the user's role, the
// function and the site the most special decides: one of the very role before one for all roles, then one of
// the very function, then one of the very site. Somebody whom a database with persons does not know is
// refused everything.
class TRELLIS_API RightTable {
public:
    // All functions, in the order in which they are shown.
    static const std::vector<GuardedFunction>& Functions();
    // The function of that name, or null.
    static const GuardedFunction* Find(const ZOLUnicodeString& function);

    // 0, or the number of the refusal, for the current user at a site; an empty site is the user's own.
    // Privileges do not count. An unknown function gives 60509.
    static int Refusal(const ZOLUnicodeString& function, const ZOLUnicodeString& site);
    // Whether the current user may go on: not refused, or privileged enough. If not, sets the number of the
    // refusal and adds the user's name.
    static bool Permits(const ZOLUnicodeString& function, const ZOLUnicodeString& site, ZOLGYRError& error);
    // Whether a row gives the function to the current user's role by name: not by the rule that all is
    // allowed, and not by a row for all roles.
    static bool IsGranted(const ZOLUnicodeString& function);
};

} // namespace trellis
