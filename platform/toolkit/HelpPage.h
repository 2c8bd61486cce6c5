#pragma once

#include "toolkit/ZOLUserResult.h"

class ZOLDialog;

namespace trellis {

// F1: opens the help page of the class of a dialog, in a window of its own that waits for nobody. Pages are
// plain texts named by class in the folder help/ beside the resource files, the site's before that of the
// language before English. The page of a base stands in for that of a class, and that of the owner for both.
// The window goes when it is closed or with the window that asked; asked again, it shows the new page.
// NotThere when nobody wrote a page.
ZOLUserResult OpenHelpPage(ZOLDialog& about);

} // namespace trellis
