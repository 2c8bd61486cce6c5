#pragma once

#include "toolkit/ZOLUserDriver.h"
#include "toolkit/ZOLUserResult.h"

namespace trellis {

// What a key does in the dialog that has the cursor. NotThere when the key means nothing there.
ZOLUserResult PressKey(ZOLDialog& dialog, ZOLUserKey key);
// Presses the default button of the dialog or message box that holds it. NotThere when there is none.
ZOLUserResult PressDefaultButton(const ZOLDialog& dialog);

} // namespace trellis
