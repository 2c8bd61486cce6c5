#pragma once

class ZOLDialog;

namespace trellis {

// Whether the dialog takes room that is left, by its hints and its class.
bool GrowsHorizontally(const ZOLDialog& dialog);
bool GrowsVertically(const ZOLDialog& dialog);
// Whether any child that takes part in the layout grows downwards.
bool AnyChildGrows(const ZOLDialog& dialog);
// Whether the child takes part in the layout of its owner: it is shown, and stands on the owner's surface. A
// hidden label or separator keeps its room.
bool TakesRoom(const ZOLDialog& child);

} // namespace trellis
