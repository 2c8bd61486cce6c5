#include "gallery/LayoutPage.h"

#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgContainer.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMotif.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgSelectorList.h"
#include "toolkit/ZOLDlgSplitter.h"
#include "toolkit/ZOLDlgTabContainer.h"

namespace trellis {

namespace {

constexpr int CheckCount = 40;
constexpr int PaneWidth = 12;        // characters
constexpr int PaneHeight = 4;        // lines
constexpr int ContainerHeight = 150; // pixels
constexpr int GridColumns = 3;
constexpr int NativeHeight = 40; // pixels

} // namespace

void LayoutPage::Build(ZOLDlgFrame* holder) {
    ZOLDlgFrame* left = AddColumn(holder, "Left");
    BuildSplitter(AddGrowingFrame(left, "SplitterFrame"));
    BuildGrid(AddFrame(left, "GridFrame"));
    ZOLDlgFrame* right = AddColumn(holder, "Right");
    BuildContainer(AddGrowingFrame(right, "ContainerFrame"));
    BuildTabs(AddFrame(right, "TabFrame"));
    auto* native = new ZOLDlgMotif(AddFrame(right, "NativeFrame"), "Native");
    native->SetRectDimensions(0, NativeHeight);
}

void LayoutPage::BuildSplitter(ZOLDlgFrame* frame) {
    auto* splitter = new ZOLDlgSplitter(frame, "Splitter");
    splitter->SetDefaultOrientation(1);
    for (const char* name : {"LeftPane", "MiddlePane", "RightPane"}) {
        auto* pane = new ZOLDlgSelectorList(splitter, name);
        pane->SetVisibleTextWidth(PaneWidth);
        pane->SetVisibleTextHeight(PaneHeight);
        ZOLUnicodeString text;
        for (int line = 1; line <= PaneHeight; ++line)
            if (GetResourceValueFromKey("Cell.Name", text, {ZOLUnicodeString::FromNumber(line)}) == 1)
                pane->SetLine(text);
    }
    AddExample(splitter);
}

void LayoutPage::BuildContainer(ZOLDlgFrame* frame) {
    auto* container = new ZOLDlgContainer(frame, "Container");
    container->SetRectDimensions(0, ContainerHeight);
    for (int number = 1; number <= CheckCount; ++number) {
        ZOLUnicodeString title;
        GetResourceValueFromKey("Check.Title", title, {ZOLUnicodeString::FromNumber(number)});
        auto* check = new ZOLDlgCheckButton(container, "Check" + std::to_string(number));
        check->SetTitle(title);
        Log(check, check->GetChkBModifyNotification(),
            [=](const ZOLNotification&) { return check->GetTitle(); });
    }
    AddExample(container);
}

void LayoutPage::BuildTabs(ZOLDlgFrame* frame) {
    auto* tabs = new ZOLDlgTabContainer(frame, "Tabs");
    for (const char* name : {"FirstPage", "SecondPage", "GreyedPage"})
        new ZOLDlgLabel(new ZOLDlgTabPage(tabs, name), "PageLabel");
    tabs->GetPages().back()->SetSensitivity(ZOLGreyed);
    AddExample(tabs, [=] { tabs->SetSelectedPage(tabs->GetPages()[1]); });
    Log(tabs, tabs->GetTabSelectNotification(),
        [=](const ZOLNotification&) { return tabs->GetSelectedPage()->GetTitle(); });
}

void LayoutPage::BuildGrid(ZOLDlgFrame* frame) {
    frame->SetGridConstraints(GridColumns);
    for (const char* name : {"Grid1", "Grid2", "Grid3", "Grid4", "Grid5", "Grid6"})
        AddExample(new ZOLDlgPushButton(frame, name));
}

} // namespace trellis
