#include "navigator/NavigatorResultPanel.h"

#include "values/Settings.h"

namespace trellis {

int NavigatorResultPanel::IsAdvancedMode() const {
    return Settings::Current().IsOn("CONFIGURE.ADVANCED");
}

int NavigatorResultPanel::FiltersCategories() const {
    return Settings::Current().IsOn("CONFIGURE.FILTER_CATEGORIES");
}

int NavigatorResultPanel::KeepsProducts() const {
    return Settings::Current().IsOn("CONFIGURE.KEEP_PRODUCTS");
}

} // namespace trellis
