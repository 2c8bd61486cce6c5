#include "support/ScreenGestures.h"

#include "toolkit/GraphDrawing.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLGraphViewer.h"
#include "toolkit/ZOLUserDriver.h"

#include <gtest/gtest.h>

#include <Xm/Xm.h>

namespace {

bool IsInside(Widget widget, Widget holder) {
    while (widget && widget != holder)
        widget = XtParent(widget);
    return widget != nullptr;
}

bool IsSeen(Widget widget) {
    XWindowAttributes attributes;
    return widget && XtIsRealized(widget) &&
           XGetWindowAttributes(XtDisplay(widget), XtWindow(widget), &attributes) &&
           attributes.map_state == IsViewable;
}

Widget ShellOf(Widget widget) {
    while (widget && !XtIsShell(widget))
        widget = XtParent(widget);
    return widget;
}

Widget ItemIn(Widget root, const std::string& name) {
    return XtNameToWidget(root, ("*" + name).c_str());
}

// How many items there are before it that the keyboard stops at.
int PositionOf(const ZOLDialog& menu, const std::string& item) {
    int position = 0;
    for (const ZOLDialog* entry : menu.GetChildren()) {
        if (entry->GetName() == item)
            return position;
        if (entry->GetSensitivity() == ZOLActive && !dynamic_cast<const ZOLDlgSeparatorItem*>(entry))
            ++position;
    }
    ADD_FAILURE() << "no item " << item;
    return 0;
}

} // namespace

ScreenUser::Place ScreenGestures::PlaceOf(ZOLGraphViewer& viewer, const ZOLGraphNode* node) {
    constexpr int Margin = 8; // around the drawing
    _user.Settle();
    const trellis::TextMeasure& measure = trellis::ToolkitView::Current()->GetTextMeasure();
    const trellis::GraphDrawing& drawing = viewer.GetDrawing(measure);
    const int position = drawing.Position(node);
    if (position < 0)
        return _user.PlaceIn(viewer, -Margin, -Margin);
    const trellis::LayoutRectangle place = drawing.Nodes()[static_cast<std::size_t>(position)].place;
    const trellis::LayoutPoint corner = viewer.GetViewPoint(measure);
    return _user.PlaceIn(viewer, Margin + place.x + place.width / 2 - corner.x,
                         Margin + place.y + place.height / 2 - corner.y);
}

Widget ScreenGestures::ButtonOf(ZOLDialog& dialog, ZOLDialogButton button) {
    constexpr const char* parts[] = {"", "*OK", "*Cancel", "*Help", "*Apply"};
    return _user.PartOf(dialog, parts[static_cast<int>(button)]);
}

Widget ScreenGestures::RootOf(ZOLDialog& dialog) {
    Widget widget = _user.NativeOf(dialog);
    while (XtParent(widget))
        widget = XtParent(widget);
    return widget;
}

void ScreenGestures::ClickItems(Widget root, const Names& items) {
    for (const std::string& name : items) {
        Widget item = ItemIn(root, name);
        if (!IsSeen(item))
            return;
        _user.PauseBetweenClicks();
        _user.Click(_user.MiddleOf(item));
    }
}

void ScreenGestures::PressLetters(Widget root, const Names& items) {
    for (const std::string& name : items) {
        Widget item = ItemIn(root, name);
        if (!IsSeen(item))
            return;
        KeySym letter = NoSymbol;
        XtVaGetValues(item, XmNmnemonic, &letter, nullptr);
        ASSERT_NE(letter, static_cast<KeySym>(NoSymbol)) << name << " has no letter";
        _user.Type({static_cast<char>(std::tolower(static_cast<int>(letter)))});
    }
}

void ScreenGestures::WalkDown(ZOLDialog& menu, const Names& items) {
    ZOLDialog* pane = &menu;
    for (std::size_t level = 0; level < items.size(); ++level) {
        const bool isLast = level + 1 == items.size();
        PressOften("Down", PositionOf(*pane, items[level]));
        if (!isLast)
            pane = ZOLUserDriver::Find(pane, items[level]);
        _user.Press(isLast ? "Return" : "Right");
    }
}

void ScreenGestures::WalkInBar(ZOLDialog& bar, const Names& items) {
    _user.Press("F10");
    PressOften("Right", PositionOf(bar, items.front()));
    _user.Press("Down");
    WalkDown(*ZOLUserDriver::Find(&bar, items.front()), {items.begin() + 1, items.end()});
}

void ScreenGestures::Focus(Widget widget) {
    constexpr int MostWidgets = 80;
    if (!widget || XtIsShell(widget)) // the keyboard came with the window
        return;
    for (int step = 0; step < MostWidgets; ++step) {
        if (IsInside(XmGetFocusWidget(ShellOf(widget)), widget))
            return;
        _user.Press("Tab");
    }
    ADD_FAILURE() << "Tab does not reach " << XtName(widget);
}

void ScreenGestures::WalkToButton(ZOLDialog& dialog, ZOLDialogButton button) {
    Focus(ButtonOf(dialog, button));
    _user.Press("space");
}

void ScreenGestures::PressOften(const char* key, int times) {
    for (int time = 0; time < times; ++time)
        _user.Press(key);
}
