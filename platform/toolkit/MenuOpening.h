#pragma once

#include "toolkit/ZOLUserResult.h"

#include <string>

class ZOLDialog;

namespace trellis {

// Whether the menu that is open belongs to that dialog, or is that dialog.
bool HasOpenMenu(const ZOLDialog& owner);
// Opens the contextual menu of a dialog, or a menu of a menu bar; one that a click on a node has opened stays as
// it is. NotThere when it has none, or nothing was built.
ZOLUserResult OpenMenuOf(ZOLDialog& owner);
// What is to be opened for a path of items: of a menu bar the menu that the first step names, which is taken off
// the path, or null when it has no such menu; else the dialog itself.
ZOLDialog* TakeMenuHolder(ZOLDialog& owner, std::string& path);
// The menu key: the menu at the node that has the focus of a graph, else that of the dialog or of the nearest
// of its holders that has one.
ZOLUserResult OpenMenuByKey(ZOLDialog& dialog);

} // namespace trellis
