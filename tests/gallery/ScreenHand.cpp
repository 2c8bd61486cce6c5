// The hand at a real screen.

#include "gallery/GalleryHand.h"

#include "support/ScreenUser.h"
#include "toolkit/GraphDrawing.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"
#include "toolkit/ZOLGraphViewer.h"

#include <gtest/gtest.h>

#include <Xm/ComboBox.h>
#include <Xm/List.h>

#include <map>

namespace {

// One for the program; it has to end before the program does.
ScreenUser* theUser = nullptr;

class Screen : public testing::Environment {
public:
    void SetUp() override { theUser = new ScreenUser; }
    void TearDown() override { delete theUser; }
};

const testing::Environment* const screen = testing::AddGlobalTestEnvironment(new Screen);

const trellis::TextMeasure& Measure() {
    return trellis::ToolkitView::Current()->GetTextMeasure();
}

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

// The application that all windows and menus hang below. It outlives what it is asked for, which a click may end.
Widget RootOf(Widget widget) {
    while (XtParent(widget))
        widget = XtParent(widget);
    return widget;
}

ScreenUser::Place RowPlace(ZOLDialog& list, int row) {
    constexpr int InsideTheFirstColumn = 20;
    const int height = Measure().GetRowHeight();
    const auto* columns = dynamic_cast<ZOLDlgMultiList*>(&list);
    const int header = columns ? height + 1 : 0;
    return theUser->PlaceIn(list, InsideTheFirstColumn, header + row * height + height / 2);
}

ScreenUser::Place NodePlace(ZOLGraphViewer& viewer, ZOLGraphNode* node) {
    constexpr int Margin = 8; // around the drawing
    theUser->Settle();
    const trellis::GraphDrawing& drawing = viewer.GetDrawing(Measure());
    const int position = drawing.Position(node);
    if (position < 0)
        return theUser->PlaceIn(viewer, -Margin, -Margin);
    const trellis::LayoutRectangle place = drawing.Nodes()[static_cast<std::size_t>(position)].place;
    const trellis::LayoutPoint corner = viewer.GetViewPoint(Measure());
    return theUser->PlaceIn(viewer, Margin + place.x + place.width / 2 - corner.x,
                            Margin + place.y + place.height / 2 - corner.y);
}

struct KeyName {
    const char* name;
    ScreenUser::Modifiers modifiers = {};
};

const KeyName& NameOf(ZOLUserKey key) {
    static const std::map<ZOLUserKey, KeyName> names = {
        {ZOLUserKey::Return, {"Return"}}, {ZOLUserKey::Space, {"space"}},
        {ZOLUserKey::Up, {"Up"}},         {ZOLUserKey::Down, {"Down"}},
        {ZOLUserKey::Left, {"Left"}},     {ZOLUserKey::Right, {"Right"}},
        {ZOLUserKey::End, {"End"}},       {ZOLUserKey::Tab, {"Tab"}},
        {ZOLUserKey::Menu, {"Menu"}},     {ZOLUserKey::ShiftSpace, {"space", {"Shift_L"}}},
    };
    return names.at(key);
}

class ScreenHand final : public GalleryHand {
public:
    void Click(ZOLDialog& widget) override { theUser->Click(widget); }
    void ClickRow(ZOLDialog& list, int row) override { theUser->Click(RowPlace(list, row)); }
    void DoubleClickRow(ZOLDialog& list, int row) override { theUser->DoubleClick(RowPlace(list, row)); }
    void ClickLineOfCombo(ZOLDialog& combo, int line) override {
        constexpr int Arrow = 10; // pixels from the right end
        theUser->Click(theUser->PlaceIn(combo, -Arrow, Arrow));
        Widget list = theUser->PartOf(combo, "*List");
        Position x = 0;
        Position y = 0;
        Dimension width = 0;
        Dimension height = 0;
        if (!IsSeen(list) || !XmListPosToBounds(list, line + 1, &x, &y, &width, &height))
            return;
        theUser->PauseBetweenClicks();
        const ScreenUser::Place middle = theUser->MiddleOf(list);
        Dimension all = 0;
        XtVaGetValues(list, XmNheight, &all, nullptr);
        theUser->Click({middle.x, middle.y - all / 2 + y + height / 2});
    }
    void ClickPage(ZOLDialog& tabs, const std::string& name) override {
        constexpr double Bold = 1.1; // as wide as plain letters, about
        const int padding = Measure().GetPixels(12);
        int x = 0;
        for (const ZOLDlgTabPage* page : static_cast<ZOLDlgTabContainer&>(tabs).GetPages()) {
            const int width = static_cast<int>(Bold * Measure().GetTextWidth(page->GetTitle())) + 2 * padding;
            if (page->GetName() == name)
                return theUser->Click(theUser->PlaceIn(tabs, x + width / 2, Measure().GetRowHeight() / 2));
            x += width;
        }
    }
    void ClickNode(ZOLDialog& viewer, const std::vector<ZOLUnicodeString>& path, bool extend) override {
        auto& graph = static_cast<ZOLGraphViewer&>(viewer);
        const ScreenUser::Modifiers modifiers =
            extend ? ScreenUser::Modifiers{"Control_L"} : ScreenUser::Modifiers{};
        theUser->Click(NodePlace(graph, graph.FindDrawn(path)), 1, modifiers);
    }
    void ClickForMenu(ZOLDialog& owner, const std::vector<std::string>& items) override {
        Widget root = RootOf(theUser->NativeOf(owner));
        theUser->Click(owner, 3);
        ClickItems(root, items);
    }
    void ClickMenuBar(ZOLDialog& bar, const std::vector<std::string>& items) override {
        ClickItems(theUser->NativeOf(bar), items);
    }
    void ClickNodeForMenu(ZOLDialog& viewer, const std::vector<ZOLUnicodeString>& path,
                          const std::string& item) override {
        auto& graph = static_cast<ZOLGraphViewer&>(viewer);
        Widget root = RootOf(theUser->NativeOf(viewer));
        theUser->Click(NodePlace(graph, graph.FindDrawn(path)), 3);
        ClickItems(root, {item});
    }
    void ClickButton(ZOLDialog& dialog, ZOLDialogButton button) override {
        constexpr const char* parts[] = {"", "*OK", "*Cancel", "*Help", "*Apply"};
        theUser->Click(theUser->MiddleOf(theUser->PartOf(dialog, parts[static_cast<int>(button)])));
    }
    // From widget to widget with Tab, until the keyboard is there.
    void Focus(ZOLDialog& widget) override {
        constexpr int MostWidgets = 80;
        Widget native = theUser->NativeOf(widget);
        for (int step = 0; step < MostWidgets; ++step) {
            if (IsInside(XmGetFocusWidget(ShellOf(native)), native))
                return;
            theUser->Press("Tab");
        }
        ADD_FAILURE() << "Tab does not reach " << widget.GetName().ConvertToChar();
    }
    void Type(ZOLDialog&, const std::string& text) override { theUser->Type(text); }
    void Press(ZOLDialog&, ZOLUserKey key) override {
        const KeyName& name = NameOf(key);
        theUser->Press(name.name, name.modifiers);
    }
    void ChooseInGroup(ZOLDialog& radio) override {
        Focus(*radio.GetOwner());
        Press(radio, ZOLUserKey::Up); // from the first round to the last
    }
    void PressFirstItem(ZOLDialog& owner, const std::string&) override {
        Press(owner, ZOLUserKey::Menu);
        Press(owner, ZOLUserKey::Return);
    }

private:
    static void ClickItems(Widget root, const std::vector<std::string>& items) {
        for (const std::string& name : items) {
            Widget item = XtNameToWidget(root, ("*" + name).c_str());
            if (!IsSeen(item))
                return;
            theUser->PauseBetweenClicks();
            theUser->Click(theUser->MiddleOf(item));
        }
    }
};

} // namespace

GalleryHand& TheHand() {
    static ScreenHand hand;
    return hand;
}
