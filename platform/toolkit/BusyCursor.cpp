#include "toolkit/BusyCursor.h"

#include "toolkit/ToolkitView.h"

namespace trellis {

namespace {
bool isCursorUp = false;
}

bool BusyCursor::IsUp() {
    return isCursorUp;
}

void BusyCursor::Set(bool isUp) {
    if (isUp == isCursorUp)
        return;
    isCursorUp = isUp;
    if (ToolkitView* view = ToolkitView::Current())
        view->SetBusy(isUp);
}

} // namespace trellis
