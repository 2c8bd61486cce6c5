#pragma once

#include "toolkit/ZOLDialog.h"

class ZOLDlgWindow;

// ZOLDlgMenuBar: the bar of menus along the top edge of a window, over its whole width. It holds ZOLDlgSubMenu, whose
// titles stand in it; a hidden one is left out, a greyed one cannot be opened. Each of them holds ZOLDlgPushItem,
// ZOLDlgSeparatorItem and further ZOLDlgSubMenu.
//
// A menu of the bar sends its visibility notification to its fathers just before it appears, so that it may be
// built or greyed then; one without items does not appear. Items send what they always do.
//
//     auto* bar = new ZOLDlgMenuBar(this, "MenuBar");
//     auto* part = new ZOLDlgSubMenu(bar, "Part");            // "Part.Title: Part"
//     AddAnalyseNotificationCB(part, part->GetVisibilityNotification(), ZOL_CALLBACK(&Window::GreyItemsCB));
//     auto* item = new ZOLDlgPushItem(part, "SetConfigurable"); // "SetConfigurable.Title: Set configurable"
//
// A driver uses it by `Menu(bar, "Part/SetConfigurable")`.
class TRELLIS_API ZOLDlgMenuBar : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgMenuBar, ZOLDialog)
public:
    // A window shows one bar; of several, the first that is shown.
    ZOLDlgMenuBar(ZOLDlgWindow* father, const ZOLString& name, unsigned long style = 0);
    // The bar that stands in a dialog; null when it has none that is shown.
    static const ZOLDlgMenuBar* Find(const ZOLDialog& window);

    const char* GetKind() const override;
    // One line with its titles.
    void DescribeTo(trellis::DialogDescription& description) const override;
    trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const override;
};
