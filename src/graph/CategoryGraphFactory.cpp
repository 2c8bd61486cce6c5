#include "entry/ZOLDictionary.h"
#include "graph/ZOLDlgCategoryGraph.h"

namespace {

constexpr int ControlsAndProduct = 3;
constexpr int AsResultPanelSays = -1;
constexpr int Width = 700; // in pixels, as the next
constexpr int Height = 400;

ZOLIQRDCategoryGraph* Make(ZOLDialog* parent, const ZOLString& name, const ZOLUnicodeString& title,
                           const ZOLDMInstance& scope, const ZOLListValZOLDMInstance& products) {
    if (products.Size() == 0)
        return new ZOLDlgCategoryGraph(parent, name, title, ControlsAndProduct, scope, products, {},
                                       AsResultPanelSays, 1, 0, Width, Height, 0);
    return new ZOLDlgCategoryGraph(parent, name, title, ControlsAndProduct, products, AsResultPanelSays,
                                   Width, Height, 0);
}

// Loading the library makes the panel known to hosts.
const ZOLDictionary static_command_ZOLDlgCategoryGraph(CategoryGraphName, reinterpret_cast<void*>(&Make));

} // namespace
