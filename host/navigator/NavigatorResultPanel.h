#pragma once

#include "panels/ZOLDMDlgResultPanel.h"

namespace trellis {

// NavigatorResultPanel: answers for the navigator how panels start, from the settings CONFIGURE....
class NavigatorResultPanel : public ZOLDMDlgResultPanel {
public:
    int IsAdvancedMode() const override;
    int FiltersCategories() const override;
    int KeepsProducts() const override;
};

} // namespace trellis
