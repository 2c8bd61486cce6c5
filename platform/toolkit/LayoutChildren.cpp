#include "toolkit/LayoutChildren.h"

#include "toolkit/Growth.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgTabContainer.h"

namespace trellis {

bool IsField(const ZOLDialog& dialog) {
    return dynamic_cast<const ZOLDlgEditor*>(&dialog) || dynamic_cast<const ZOLDlgCombo*>(&dialog);
}

bool HasTitleBefore(const ZOLDialog& dialog) {
    return IsField(dialog) && !dialog.GetTitle().IsEmpty();
}

bool IsTabs(const ZOLDialog& dialog) {
    return dynamic_cast<const ZOLDlgTabContainer*>(&dialog);
}

std::vector<const ZOLDialog*> ChildrenWithRoom(const ZOLDialog& holder) {
    std::vector<const ZOLDialog*> children;
    for (const ZOLDialog* child : holder.GetChildren())
        if (TakesRoom(*child) && !dynamic_cast<const ZOLDlgMenuBar*>(child))
            children.push_back(child);
    return children;
}

int Gaps(std::size_t count, int spacing) {
    return count > 1 ? static_cast<int>(count - 1) * spacing : 0;
}

} // namespace trellis
