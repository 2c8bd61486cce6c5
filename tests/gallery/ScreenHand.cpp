// The hand at a real screen.

#include "gallery/GalleryHand.h"

#include "support/ScreenGestures.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDlgMenuPane.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"
#include "toolkit/ZOLGraphViewer.h"

#include <gtest/gtest.h>

#include <Xm/ComboBox.h>
#include <Xm/List.h>

#include <map>

namespace {

using Driver = ZOLUserDriver;

// One for the program; it has to end before the program does.
ScreenUser* theUser = nullptr;
ScreenGestures* theGestures = nullptr;

class Screen : public testing::Environment {
public:
    void SetUp() override {
        theUser = new ScreenUser;
        theGestures = new ScreenGestures(*theUser);
    }
    void TearDown() override {
        delete theGestures;
        delete theUser;
    }
};

const testing::Environment* const screen = testing::AddGlobalTestEnvironment(new Screen);

const trellis::TextMeasure& Measure() {
    return trellis::ToolkitView::Current()->GetTextMeasure();
}

bool IsSeen(Widget widget) {
    XWindowAttributes attributes;
    return widget && XtIsRealized(widget) &&
           XGetWindowAttributes(XtDisplay(widget), XtWindow(widget), &attributes) &&
           attributes.map_state == IsViewable;
}

ScreenUser::Place RowPlace(ZOLDialog& list, int row) {
    constexpr int InsideTheFirstColumn = 20;
    const int height = Measure().GetRowHeight();
    const auto* columns = dynamic_cast<ZOLDlgMultiList*>(&list);
    const int header = columns ? height + 1 : 0;
    return theUser->PlaceIn(list, InsideTheFirstColumn, header + row * height + height / 2);
}

struct KeyName {
    const char* name;
    ScreenUser::Modifiers modifiers = {};
};

const KeyName& NameOf(ZOLUserKey key) {
    static const std::map<ZOLUserKey, KeyName> names = {
        {ZOLUserKey::Return, {"Return"}},
        {ZOLUserKey::Space, {"space"}},
        {ZOLUserKey::Up, {"Up"}},
        {ZOLUserKey::Down, {"Down"}},
        {ZOLUserKey::Left, {"Left"}},
        {ZOLUserKey::Right, {"Right"}},
        {ZOLUserKey::End, {"End"}},
        {ZOLUserKey::Tab, {"Tab"}},
        {ZOLUserKey::Menu, {"Menu"}},
        {ZOLUserKey::Escape, {"Escape"}},
        {ZOLUserKey::ShiftSpace, {"space", {"Shift_L"}}},
    };
    return names.at(key);
}

class ScreenHand final : public GalleryHand {
public:
    void Click(ZOLDialog& widget) override { theUser->Click(widget); }
    void ClickRow(ZOLDialog& list, int row, RowTaking taking) override {
        theUser->Click(RowPlace(list, row), 1, HeldFor(taking));
    }
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
        theUser->Click(theGestures->PlaceOf(graph, graph.FindDrawn(path)), 1, modifiers);
    }
    void ClickForMenu(ZOLDialog& owner, const std::vector<std::string>& items) override {
        Widget root = theGestures->RootOf(owner);
        theUser->Click(owner, 3);
        theGestures->ClickItems(root, items);
    }
    void ClickMenuBar(ZOLDialog& bar, const std::vector<std::string>& items) override {
        theGestures->ClickItems(theUser->NativeOf(bar), items);
    }
    void ClickNodeForMenu(ZOLDialog& viewer, const std::vector<ZOLUnicodeString>& path,
                          const std::string& item) override {
        auto& graph = static_cast<ZOLGraphViewer&>(viewer);
        Widget root = theGestures->RootOf(viewer);
        theUser->Click(theGestures->PlaceOf(graph, graph.FindDrawn(path)), 3);
        theGestures->ClickItems(root, {item});
    }
    void ClickButton(ZOLDialog& dialog, ZOLDialogButton button) override {
        if (button == ZOLDialogButton())
            theUser->PressCloseBox(dialog);
        else
            theUser->Click(theUser->MiddleOf(theGestures->ButtonOf(dialog, button)));
    }
    void TurnWheel(ZOLDialog& widget, int steps) override {
        theUser->Wheel(theUser->MiddleOf(widget), steps);
    }
    void Focus(ZOLDialog& widget) override { theGestures->Focus(theUser->NativeOf(widget)); }
    void Type(ZOLDialog&, const std::string& text) override { theUser->Type(text); }
    void Press(ZOLDialog&, ZOLUserKey key) override {
        const KeyName& name = NameOf(key);
        theUser->Press(name.name, name.modifiers);
    }
    void ChooseInGroup(ZOLDialog& radio) override {
        Focus(*radio.GetOwner());
        Press(radio, ZOLUserKey::Up); // from the first round to the last
    }
    void StepDown(ZOLDialog&, RowTaking taking) override {
        theUser->Press("Down", HeldFor(taking));
        if (taking == RowTaking::Too)
            theUser->Press("space");
    }
    void WalkInMenu(ZOLDialog& owner, const std::vector<std::string>& items) override {
        Press(owner, ZOLUserKey::Menu);
        if (ZOLDlgMenuPane* menu = ZOLDlgMenuPane::GetOpenMenu())
            theGestures->WalkDown(*menu, items);
    }
    void WalkInMenuBar(ZOLDialog& bar, const std::vector<std::string>& items) override {
        theGestures->WalkInBar(bar, items);
    }
    void WalkToButton(ZOLDialog& dialog, ZOLDialogButton button) override {
        theGestures->WalkToButton(dialog, button);
    }
    void WhenAsked(std::function<void(ZOLDialog& box)> act) override {
        theUser->WhenItIs([before = Driver::Top()] { return Driver::Top() != before; },
                          [act = std::move(act)] { act(*Driver::Top()); });
    }
    void ForgetQuestions() override { theUser->Forget(); }

private:
    static const ScreenUser::Modifiers& HeldFor(RowTaking taking) {
        static const ScreenUser::Modifiers held[] = {{}, {"Shift_L"}, {"Control_L"}};
        return held[static_cast<int>(taking)];
    }
};

} // namespace

GalleryHand& TheHand() {
    static ScreenHand hand;
    return hand;
}
