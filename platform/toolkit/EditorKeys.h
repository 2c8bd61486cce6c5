#pragma once

#include "toolkit/ZOLUserDriver.h"
#include "toolkit/ZOLUserResult.h"

class ZOLDlgEditor;

namespace trellis {

// What the keys that move the caret or erase do in an editor. Those that cannot go further change nothing.
// NotThere for all others, and for keys that go from line to line in an editor of one line.
ZOLUserResult PressEditorKey(ZOLDlgEditor& editor, ZOLUserKey key);

} // namespace trellis
