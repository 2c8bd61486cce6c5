#include "motif/MotifMenuBarPeer.h"

#include "motif/MotifView.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgSubMenu.h"

#include <Xm/CascadeB.h>
#include <Xm/RowColumn.h>

#include <algorithm>

namespace trellis {

MotifMenuBarPeer::MotifMenuBarPeer(MotifView& view, ZOLDlgMenuBar& bar) : MotifPeer(view, bar) {}

// The layout gives it its size; by itself it would take that of its titles.
Widget MotifMenuBarPeer::Build(Widget parent) {
    Arg arguments[] = {{MotifQuirks::Name(XmNresizeWidth), False},
                       {MotifQuirks::Name(XmNresizeHeight), False}};
    return XmCreateMenuBar(parent, MotifQuirks::Name("menuBar"), arguments, XtNumber(arguments));
}

std::vector<ZOLDialog*> MotifMenuBarPeer::ShownMenus() const {
    std::vector<ZOLDialog*> menus;
    for (ZOLDialog* menu : GetDialog().GetChildren())
        if (menu->GetVisibility() == ZOLShown && !menu->IsBeingDestroyed() &&
            dynamic_cast<ZOLDlgSubMenu*>(menu))
            menus.push_back(menu);
    return menus;
}

// What is open is not pulled from under the user: its closing marks the bar again.
void MotifMenuBarPeer::MirrorContent() {
    const std::vector<ZOLDialog*> menus = ShownMenus();
    const auto isOf = [](const Title& title, const ZOLDialog* menu) {
        return title.number == menu->GetNumber();
    };
    const bool isSame = std::equal(_titles.begin(), _titles.end(), menus.begin(), menus.end(), isOf);
    if (!isSame && !GetView().IsMenuOpen())
        MakeTitles(menus);
    else if (!isSame)
        return;
    for (std::size_t i = 0; i < menus.size(); ++i) {
        const Title& title = _titles[i];
        const char mnemonic = GetView().GetMnemonics().Of(*menus[i]);
        MotifQuirks::SetLabel(title.button, menus[i]->GetTitle());
        MotifQuirks::SetSensitive(title.button, menus[i]->GetSensitivity() == ZOLActive);
        XtVaSetValues(title.button, XmNmnemonic, static_cast<KeySym>(mnemonic), XmNsubMenuId, title.pane,
                      nullptr);
    }
}

void MotifMenuBarPeer::MakeTitles(const std::vector<ZOLDialog*>& menus) {
    _titles.clear();
    MotifQuirks::DestroyChildren(GetWidget());
    for (const ZOLDialog* menu : menus) {
        char* name = MotifQuirks::Name(menu->GetName().ConvertToChar());
        Widget pane = XmCreatePulldownMenu(GetWidget(), name, nullptr, 0);
        Widget button = XtVaCreateManagedWidget(name, xmCascadeButtonWidgetClass, GetWidget(), XmNsubMenuId,
                                                pane, nullptr);
        Connect<&MotifMenuBarPeer::Cascading>(button, XmNcascadingCallback);
        _titles.push_back({menu->GetNumber(), button, pane});
    }
}

Widget MotifMenuBarPeer::FindPane(const ZOLDialog& menu) const {
    for (const Title& title : _titles)
        if (title.number == menu.GetNumber())
            return title.pane;
    return nullptr;
}

// The native bar breaks its row in a narrow width, yet never tells how high it would be.
int MotifMenuBarPeer::FurtherRows(int width) const {
    Dimension margin = 0;
    XtVaGetValues(GetWidget(), XmNmarginWidth, &margin, nullptr);
    int more = 0;
    int right = margin;
    for (const Title& title : _titles) {
        const int wide = MotifQuirks::PlaceOf(title.button).width;
        if (right > margin && right + wide > width - margin) {
            ++more;
            right = margin;
        }
        right += wide;
    }
    return more;
}

// The native bar shows the pane that the button has when this returns: none for a menu in which nothing was
// built, until the bar is mirrored.
void MotifMenuBarPeer::Cascading(Widget button, XtPointer) {
    const auto title = std::find_if(_titles.begin(), _titles.end(),
                                    [button](const Title& shown) { return shown.button == button; });
    if (title == _titles.end())
        return;
    for (ZOLDialog* menu : ShownMenus())
        if (menu->GetNumber() == title->number) {
            if (static_cast<ZOLDlgSubMenu*>(menu)->UserOpen() != ZOLUserResult::Done)
                XtVaSetValues(button, XmNsubMenuId, nullptr, nullptr);
            return;
        }
}

} // namespace trellis
