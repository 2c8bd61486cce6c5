#pragma once

#include "site/TrellisControls.h"
#include "values/TrellisApi.h"

class ZOLGYRError;

// ZOLDMUsrMethod: the control functions of the site, which may have a say in what users see and do. They lie
// in the shared object that the setting CONTROL_LIBRARY names; a relative path begins at the site's folder.
// Without one, and for functions that it leaves out, everything stays as it is.
//
// A library that cannot be used is told once for each value of the setting, by the first operation that asks
// for it; from then on it counts as none:
//   60530  it cannot be loaded (path, reason)
//   60531  it does not export TrellisGetControls, or that gives nothing (path)
//   60532  its table is of a version that is not known here (path, its version, the one known)
class TRELLIS_API ZOLDMUsrMethod {
public:
    // Which options a user may choose from: those given, or others that the site's function puts in their
    // place.
    //   objId   the product whose dictionary is listed; the empty text for none
    //   given   three arrays of the same length, the caller's
    //   shown   empty, or what the function made; to be freed by FreeOptionList in any case
    //   result  0 when `shown` holds, of which a count of 0 leaves the list as it is. Else the number of the
    //           site's function, or -1 with 60533 (the name of the function) when it gave back what cannot be
    //           read: a count below 0, or arrays or texts that are missing. The list then stays, too.
    static int OptionListToDisplay(const char* person, const char* role, const char* organization,
                                   const ObjID& objId, const TrellisOptionList& given,
                                   TrellisOptionList& shown, ZOLGYRError& error);
    // Frees arrays and texts that came from malloc, and leaves the list empty.
    static void FreeOptionList(TrellisOptionList& list);
};
