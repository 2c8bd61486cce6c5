#include "motif/MotifMenu.h"

#include "motif/MotifQuirks.h"
#include "toolkit/Mnemonics.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"

#include <Xm/CascadeB.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/Separator.h>

#include <utility>

namespace trellis {

namespace {

// A pane that would be higher than the screen gets as many columns as it needs.
void FitToScreen(Widget pane) {
    XtWidgetGeometry natural = {};
    XtQueryGeometry(pane, nullptr, &natural);
    const int screen = HeightOfScreen(XtScreen(pane));
    const int columns = (natural.height + screen - 1) / screen;
    if (columns > 1)
        XtVaSetValues(pane, XmNpacking, XmPACK_COLUMN, XmNnumColumns, columns, nullptr);
}

} // namespace

MotifMenu::MotifMenu(Widget application) : _application(application) {}

MotifMenu::~MotifMenu() {
    Discard();
}

void MotifMenu::Discard() {
    _items.clear();
    Widget pane = std::exchange(_pane, nullptr);
    if (!pane)
        return;
    XtRemoveCallback(pane, MotifQuirks::Name(XmNdestroyCallback), &MotifMenu::GoneCB, this);
    XtRemoveCallback(pane, MotifQuirks::Name(XmNunmapCallback), &MotifMenu::DownCB, this);
    if (_isPopup)
        XtDestroyWidget(pane);
    else
        MotifQuirks::DestroyChildren(pane);
}

void MotifMenu::Begin(ZOLDlgMenuPane& menu, Widget pane) {
    Discard();
    _model = WeakCommand(&menu);
    _isDown = false;
    _pane = pane;
    XtAddCallback(pane, MotifQuirks::Name(XmNdestroyCallback), &MotifMenu::GoneCB, this);
    XtAddCallback(pane, MotifQuirks::Name(XmNunmapCallback), &MotifMenu::DownCB, this);
    FillPane(pane, menu);
}

void MotifMenu::Fill(ZOLDlgMenuPane& menu, Widget pane) {
    Begin(menu, pane);
    _isPopup = false;
}

void MotifMenu::PopUp(ZOLDlgMenuPane& menu, const MenuGesture& gesture) {
    Arg enabled = {MotifQuirks::Name(XmNpopupEnabled), XmPOPUP_KEYBOARD};
    Begin(menu, XmCreatePopupMenu(_application, MotifQuirks::Name("contextualMenu"), &enabled, 1));
    _isPopup = true;
    XButtonEvent place = gesture.press.value_or(XButtonEvent());
    place.x_root = gesture.x;
    place.y_root = gesture.y;
    if (gesture.press)
        MotifQuirks::NoteMenuPress(_application, place);
    XmMenuPosition(_pane, &place);
    XtManageChild(_pane);
    if (gesture.press)
        return;
    MotifQuirks::LetKeysWalkMenus(_application);
    XmProcessTraversal(_pane, XmTRAVERSE_CURRENT);
}

void MotifMenu::FillPane(Widget pane, const ZOLDialog& holder) {
    std::vector<ZOLDialog*> shown;
    std::vector<ZOLUnicodeString> titles;
    for (ZOLDialog* item : holder.GetChildren()) {
        if (item->GetVisibility() != ZOLShown || item->IsBeingDestroyed())
            continue;
        shown.push_back(item);
        titles.push_back(dynamic_cast<ZOLDlgSeparatorItem*>(item) ? ZOLUnicodeString() : item->GetTitle());
    }
    const std::vector<char> mnemonics = Mnemonics(titles);
    std::vector<Widget> widgets;
    for (std::size_t i = 0; i < shown.size(); ++i)
        widgets.push_back(MakeItem(pane, *shown[i], mnemonics[i]));
    XtManageChildren(widgets.data(), static_cast<Cardinal>(widgets.size()));
    FitToScreen(pane);
}

Widget MotifMenu::MakeItem(Widget pane, ZOLDialog& item, char mnemonic) {
    char* name = MotifQuirks::Name(item.GetName().ConvertToChar());
    if (dynamic_cast<ZOLDlgSeparatorItem*>(&item))
        return XtVaCreateWidget(name, xmSeparatorWidgetClass, pane, nullptr);
    const MotifQuirks::Text text(item.GetTitle());
    const bool isSubMenu = dynamic_cast<ZOLDlgSubMenu*>(&item);
    // Arrows walk within one group: no item may be a group of its own, as buttons elsewhere are.
    Widget made =
        XtVaCreateWidget(name, isSubMenu ? xmCascadeButtonWidgetClass : xmPushButtonWidgetClass, pane,
                         XmNlabelString, text.Get(), XmNmnemonic, static_cast<KeySym>(mnemonic), XmNsensitive,
                         item.GetSensitivity() == ZOLActive, XmNnavigationType, XmNONE, nullptr);
    if (isSubMenu) {
        Widget subMenu = XmCreatePulldownMenu(pane, name, nullptr, 0);
        FillPane(subMenu, item);
        XtVaSetValues(made, XmNsubMenuId, subMenu, nullptr);
        return made;
    }
    XtAddCallback(made, MotifQuirks::Name(XmNactivateCallback), &MotifMenu::ChosenCB, this);
    _items.emplace(made, WeakCommand(&item));
    return made;
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

// The window with the menu bar went.
void MotifMenu::GoneCB(Widget, XtPointer self, XtPointer) {
    auto* menu = static_cast<MotifMenu*>(self);
    menu->_pane = nullptr;
    menu->_items.clear();
    menu->_isDown = true;
}

void MotifMenu::TakeDown() {
    XtUnmanageChild(_pane);
}

void MotifMenu::Settle() {
    auto* model = dynamic_cast<ZOLDlgMenuPane*>(_model.Get());
    if (IsOpen() && !(model && model->IsOpen()))
        TakeDown();
    if (!_isDown)
        return;
    _isDown = false;
    _model = WeakCommand();
    Discard();
    if (model && model->IsOpen())
        model->Close();
}

} // namespace trellis
