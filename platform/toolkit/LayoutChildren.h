#pragma once

#include "toolkit/ZOLDialog.h"

#include <cstddef>
#include <vector>

namespace trellis {

// What the layout asks of the dialogs that it places.

// Editors and combos: what a label or a title of their own stands before.
bool IsField(const ZOLDialog& dialog);
bool HasTitleBefore(const ZOLDialog& dialog);
// Its pages lie on top of each other.
bool IsTabs(const ZOLDialog& dialog);
// Those that take room, in order. A menu bar stands apart, along the edge.
std::vector<const ZOLDialog*> ChildrenWithRoom(const ZOLDialog& holder);
// The room of the spaces between so many neighbours, in pixels.
int Gaps(std::size_t count, int spacing);

} // namespace trellis
