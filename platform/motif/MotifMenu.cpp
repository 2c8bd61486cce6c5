#include "motif/MotifMenu.h"

#include "motif/MotifQuirks.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"

#include <Xm/CascadeB.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/Separator.h>

#include <utility>

namespace trellis {

MotifMenu::~MotifMenu() {
    Discard();
}

void MotifMenu::Discard() {
    _items.clear();
    if (Widget menu = std::exchange(_menu, nullptr)) {
        XtRemoveCallback(menu, MotifQuirks::Name(XmNdestroyCallback), &MotifMenu::GoneCB, this);
        XtRemoveCallback(menu, MotifQuirks::Name(XmNunmapCallback), &MotifMenu::DownCB, this);
        XtDestroyWidget(menu);
    }
}

void MotifMenu::Open(ZOLDlgContextualMenu& menu, Widget parent, int rootX, int rootY) {
    Discard();
    _model = WeakCommand(&menu);
    _isDown = false;
    Arg enabled = {MotifQuirks::Name(XmNpopupEnabled), XmPOPUP_KEYBOARD};
    _menu = XmCreatePopupMenu(parent, MotifQuirks::Name("contextualMenu"), &enabled, 1);
    XtAddCallback(_menu, MotifQuirks::Name(XmNdestroyCallback), &MotifMenu::GoneCB, this);
    XtAddCallback(_menu, MotifQuirks::Name(XmNunmapCallback), &MotifMenu::DownCB, this);
    Fill(_menu, menu);
    XButtonPressedEvent place = {};
    place.x_root = rootX;
    place.y_root = rootY;
    XmMenuPosition(_menu, &place);
    XtManageChild(_menu);
}

void MotifMenu::Fill(Widget pane, const ZOLDialog& holder) {
    for (ZOLDialog* item : holder.GetChildren())
        if (item->GetVisibility() == ZOLShown && !item->IsBeingDestroyed())
            AddItem(pane, *item);
}

void MotifMenu::AddItem(Widget pane, ZOLDialog& item) {
    char* name = MotifQuirks::Name(item.GetName().ConvertToChar());
    if (dynamic_cast<ZOLDlgSeparatorItem*>(&item)) {
        XtVaCreateManagedWidget(name, xmSeparatorWidgetClass, pane, nullptr);
        return;
    }
    const MotifQuirks::Text text(item.GetTitle());
    const Boolean isSensitive = item.GetSensitivity() == ZOLActive;
    if (dynamic_cast<ZOLDlgSubMenu*>(&item)) {
        Widget subMenu = XmCreatePulldownMenu(pane, name, nullptr, 0);
        Fill(subMenu, item);
        XtVaCreateManagedWidget(name, xmCascadeButtonWidgetClass, pane, XmNlabelString, text.Get(),
                                XmNsubMenuId, subMenu, XmNsensitive, isSensitive, nullptr);
        return;
    }
    Widget button = XtVaCreateManagedWidget(name, xmPushButtonWidgetClass, pane, XmNlabelString, text.Get(),
                                            XmNsensitive, isSensitive, nullptr);
    XtAddCallback(button, MotifQuirks::Name(XmNactivateCallback), &MotifMenu::ChosenCB, this);
    _items.emplace(button, WeakCommand(&item));
}

void MotifMenu::ChosenCB(Widget button, XtPointer self, XtPointer) {
    const auto& items = static_cast<MotifMenu*>(self)->_items;
    const auto found = items.find(button);
    auto* item = found == items.end() ? nullptr : dynamic_cast<ZOLDlgPushItem*>(found->second.Get());
    if (item)
        item->UserActivate();
}

void MotifMenu::DownCB(Widget, XtPointer self, XtPointer) {
    static_cast<MotifMenu*>(self)->_isDown = true;
}

// The window with the menu went.
void MotifMenu::GoneCB(Widget, XtPointer self, XtPointer) {
    auto* menu = static_cast<MotifMenu*>(self);
    menu->_menu = nullptr;
    menu->_items.clear();
    menu->_isDown = true;
}

void MotifMenu::Settle() {
    auto* model = dynamic_cast<ZOLDlgContextualMenu*>(_model.Get());
    if (_menu && !_isDown && !(model && model->IsOpen()))
        XtUnmanageChild(_menu);
    if (!_isDown)
        return;
    _isDown = false;
    _model = WeakCommand();
    Discard();
    if (model && model->IsOpen())
        model->Close();
}

} // namespace trellis
