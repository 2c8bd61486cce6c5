#include "toolkit/ToolkitView.h"

namespace trellis {

namespace {
ToolkitView* chosenView = nullptr;
}

ToolkitView::~ToolkitView() = default;

ToolkitView* ToolkitView::Current() {
    return chosenView;
}

void ToolkitView::Choose(ToolkitView* view) {
    chosenView = view;
}

} // namespace trellis
