#pragma once

#include "toolkit/LayoutTypes.h"

#include <optional>

namespace trellis {

// WindowMemory: the size of the navigator's window, kept from one run to the next in trellis/navigator in the user's
// state folder (XDG). What is not a sensible size there counts as nothing; a file that cannot be written is no error.
class WindowMemory {
public:
    static std::optional<LayoutSize> Size();
    static void Keep(LayoutSize size);
};

} // namespace trellis
