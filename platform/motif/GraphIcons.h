#pragma once

#include "motif/Theme.h"

#include <cairo.h>

#include <string_view>

namespace trellis {

// GraphIcons: the small pictures of nodes, drawn by lines so that they stay sharp at every size. Their names
// are those that pixmaps have without a path.
class GraphIcons {
public:
    static constexpr int Size = 16; // units of the drawing, to each side

    // Draws the picture with its top left corner at (x, y); an unknown name draws nothing.
    static void Draw(cairo_t* context, std::string_view name, double x, double y);
};

} // namespace trellis
