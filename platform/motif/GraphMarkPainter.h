#pragma once

#include "motif/Theme.h"
#include "toolkit/LayoutTypes.h"
#include "toolkit/NodeMark.h"

#include <cairo.h>

namespace trellis {

// GraphMarkPainter: draws the box that tells who decided on an option. What the user did is filled, what a rule did
// is an outline; a tick takes the option, a cross leaves it out; an ignored one is dashed, an undecided one empty.
class GraphMarkPainter {
public:
    // Into a square at that corner; nothing for a mark of groups.
    static void Draw(cairo_t* context, NodeMark mark, double x, double y, double side);
};

} // namespace trellis
