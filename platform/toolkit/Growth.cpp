#include "toolkit/Growth.h"

#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgSeparator.h"

#include <algorithm>

namespace trellis {

namespace {

bool Grows(LayoutHints::Growth growth, const ZOLDialog& dialog) {
    return growth == LayoutHints::ByClass ? dialog.GrowsByClass() : growth == LayoutHints::Grows;
}

} // namespace

bool GrowsHorizontally(const ZOLDialog& dialog) {
    if (dynamic_cast<const ZOLDlgSeparator*>(&dialog))
        return dialog.GetOwner() && dialog.GetOwner()->GetLayoutHints().orientation == 0;
    return Grows(dialog.GetLayoutHints().horizontal, dialog);
}

bool GrowsVertically(const ZOLDialog& dialog) {
    return Grows(dialog.GetLayoutHints().vertical, dialog);
}

bool AnyChildGrows(const ZOLDialog& dialog) {
    const auto& children = dialog.GetChildren();
    return std::any_of(children.begin(), children.end(),
                       [](const ZOLDialog* child) { return TakesRoom(*child) && GrowsVertically(*child); });
}

bool TakesRoom(const ZOLDialog& child) {
    if (!child.IsLaidOut() || child.IsBeingDestroyed())
        return false;
    if (dynamic_cast<const ZOLDlgLabel*>(&child))
        return !child.GetTitle().IsEmpty();
    return dynamic_cast<const ZOLDlgSeparator*>(&child) || child.GetVisibility() == ZOLShown;
}

} // namespace trellis
