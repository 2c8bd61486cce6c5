#pragma once

#include "toolkit/ZOLUserResult.h"

class ZOLDialog;

namespace trellis {

// Whether the menu that is open belongs to that dialog.
bool HasOpenMenu(const ZOLDialog& owner);
// Opens the contextual menu of a dialog; one that a click on a node has opened stays as it is. NotThere when it
// has none, or nothing was built.
ZOLUserResult OpenMenuOf(ZOLDialog& owner);
// The menu key: the menu at the node that has the focus of a graph, else that of the dialog or of the nearest
// of its holders that has one.
ZOLUserResult OpenMenuByKey(ZOLDialog& dialog);

} // namespace trellis
