#pragma once

#include <vector>

namespace trellis {

// One menu of the navigator by the resource names of its items; an empty name is a line between them.
struct NavigatorMenu {
    const char* name;
    std::vector<const char*> items;

    // The menus of the bar, from left to right.
    static const std::vector<NavigatorMenu>& Bar();
    // The menus of the module's operations, which are both in the bar and in the menu of a node.
    static const std::vector<NavigatorMenu>& Operations();
    // What stands below those in the menu of a node.
    static const std::vector<const char*>& OfNode();
};

} // namespace trellis
