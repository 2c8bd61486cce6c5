#include "support/ScreenUser.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContainer.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"

#include <X11/Xutil.h>
#include <Xm/Xm.h>

#include <algorithm>
#include <set>

namespace {

// What windows look like where a test can tell.
class MotifLooksTest : public ToolkitTest {
protected:
    static void SetUpTestSuite() { _user = new ScreenUser; }
    static void TearDownTestSuite() { delete _user; }

    struct Box {
        int left, top, right, bottom; // pixels of the root window
    };
    static Box BoxOf(Widget widget) {
        Position x = 0;
        Position y = 0;
        Dimension width = 0;
        Dimension height = 0;
        XtTranslateCoords(widget, 0, 0, &x, &y);
        XtVaGetValues(widget, XmNwidth, &width, XmNheight, &height, nullptr);
        return {x, y, x + width, y + height};
    }
    static Box BoxOf(ZOLDialog& dialog) { return BoxOf(_user->NativeOf(dialog)); }
    static bool IsInside(const Box& inner, const Box& outer) {
        return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
               inner.bottom <= outer.bottom;
    }
    static void Resize(ZOLDialog& window, unsigned width, unsigned height) {
        Widget shell = _user->NativeOf(window);
        XResizeWindow(XtDisplay(shell), XtWindow(shell), width, height);
        _user->Settle();
    }
    // The pixels that a dialog has on the screen.
    static std::vector<unsigned long> PixelsOf(ZOLDialog& dialog) {
        Widget widget = _user->NativeOf(dialog);
        const Box box = BoxOf(widget);
        XImage* image = XGetImage(XtDisplay(widget), RootWindowOfScreen(XtScreen(widget)), box.left, box.top,
                                  static_cast<unsigned>(box.right - box.left),
                                  static_cast<unsigned>(box.bottom - box.top), AllPlanes, ZPixmap);
        std::vector<unsigned long> pixels;
        for (int y = 0; y < image->height; ++y)
            for (int x = 0; x < image->width; ++x)
                pixels.push_back(XGetPixel(image, x, y));
        XDestroyImage(image);
        return pixels;
    }

    static inline ScreenUser* _user = nullptr;
};

TEST_F(MotifLooksTest, InAWindowThatIsTooSmallTheButtonsStayAndTheFocusIsScrolledIntoSight) {
    ListeningPanel* panel = OpenPanel("Panel", nullptr, 0x2c00);
    std::vector<ZOLDlgCheckButton*> checks;
    for (int i = 0; i < 30; ++i)
        checks.push_back(new ZOLDlgCheckButton(panel, ("Check" + std::to_string(i)).c_str()));
    _user->Settle();
    Resize(*panel, 200, 150);

    EXPECT_TRUE(IsInside(BoxOf(_user->PartOf(*panel, "*OK")), BoxOf(*panel)));
    EXPECT_TRUE(IsInside(BoxOf(*checks.front()), BoxOf(*panel)));
    EXPECT_FALSE(IsInside(BoxOf(*checks.back()), BoxOf(*panel)));
    _user->Click(*checks.front());
    for (int i = 0; i < 29; ++i)
        _user->Press("Tab");
    EXPECT_TRUE(IsInside(BoxOf(*checks.back()), BoxOf(*panel)));
    _user->Press("space");
    EXPECT_TRUE(checks.back()->IsOn());
    Resize(*panel, 1, 1);
    Resize(*panel, 500, 1200);
    EXPECT_TRUE(IsInside(BoxOf(*checks.front()), BoxOf(*panel)));
    EXPECT_TRUE(IsInside(BoxOf(*checks.back()), BoxOf(*panel)));
}

TEST_F(MotifLooksTest, TheWantedSizeOfAWindowNeitherHidesWhatItHoldsNorKeepsTheWindowFromShrinking) {
    ListeningPanel* panel = OpenPanel();
    panel->SetRectDimensions(500, 120);
    std::vector<ZOLDlgCheckButton*> checks;
    for (int i = 0; i < 8; ++i)
        checks.push_back(new ZOLDlgCheckButton(panel, ("Check" + std::to_string(i)).c_str()));
    _user->Settle();
    EXPECT_TRUE(IsInside(BoxOf(*checks.back()), BoxOf(*panel))) << "it opens higher than wanted";
    EXPECT_EQ(BoxOf(*panel).right - BoxOf(*panel).left, 500);
    const int height = BoxOf(*panel).bottom - BoxOf(*panel).top;
    Resize(*panel, 300, height);
    EXPECT_TRUE(IsInside(BoxOf(*checks.back()), BoxOf(*panel))) << "without bars, as all fits";
}

TEST_F(MotifLooksTest, AContainerScrollsOverHundredsOfChecks) {
    ListeningPanel* panel = OpenPanel();
    auto* container = new ZOLDlgContainer(panel, "Container");
    std::vector<ZOLDlgCheckButton*> checks;
    for (int i = 0; i < 300; ++i)
        checks.push_back(new ZOLDlgCheckButton(container, ("Check" + std::to_string(i)).c_str()));
    auto* below = new ZOLDlgPushButton(panel, "Below");
    _user->Settle();
    EXPECT_TRUE(IsInside(BoxOf(*below), BoxOf(*panel)));
    EXPECT_LT(BoxOf(*container).bottom, BoxOf(*below).top);
    EXPECT_GT(BoxOf(*checks.back()).top, BoxOf(*container).bottom);
    _user->Click(*checks.front());
    for (int i = 0; i < 299; ++i)
        _user->Press("Tab");
    EXPECT_TRUE(IsInside(BoxOf(*checks.back()), BoxOf(*container)));
}

TEST_F(MotifLooksTest, TheTitleOfAFieldStandsBesideItAndGoesWithIt) {
    ListeningPanel* panel = OpenPanel();
    auto* combo = new ZOLDlgCombo(panel, "Dictionary");
    combo->SetTitle("Dictionary");
    _user->Settle();
    Widget title = _user->PartOf(*panel, "*fieldTitle");
    ASSERT_TRUE(title);
    EXPECT_TRUE(XtIsManaged(title));
    EXPECT_LT(BoxOf(title).right, BoxOf(*combo).left);
    EXPECT_EQ(BoxOf(title).top, BoxOf(*combo).top);
    combo->SetVisibility(ZOLHidden);
    _user->Settle();
    EXPECT_FALSE(XtIsManaged(title));
}

TEST_F(MotifLooksTest, WhatStandsInAGreyedFrameTurnsGreyAndBack) {
    ListeningPanel* panel = OpenPanel();
    auto* frame = new ZOLDlgFrame(panel, "Frame");
    auto* list = new ZOLDlgMultiList(frame, "List");
    list->SetColumnItem(0, "Battery");
    auto* editor = new ZOLDlgEditor(frame, "Editor");
    editor->SetText("large");
    auto* combo = new ZOLDlgCombo(frame, "Combo");
    combo->SetField("large");
    auto* button = new ZOLDlgPushButton(frame, "Button");
    auto* last = new ZOLDlgPushButton(panel, "Last");
    _user->Click(*last); // so that none of them has the keyboard
    _user->MoveTo(ScreenUser::Place{0, 0});
    const std::vector<ZOLDialog*> dialogs = {list, editor, combo, button};
    const auto pictures = [&] {
        std::vector<std::vector<unsigned long>> all;
        for (ZOLDialog* dialog : dialogs)
            all.push_back(PixelsOf(*dialog));
        return all;
    };
    const auto before = pictures();
    frame->SetSensitivity(ZOLGreyed);
    _user->Settle();
    const auto greyed = pictures();
    for (std::size_t i = 0; i < dialogs.size(); ++i)
        EXPECT_NE(before[i], greyed[i]) << dialogs[i]->GetName().ConvertToChar();
    frame->SetSensitivity(ZOLActive);
    _user->Settle();
    EXPECT_EQ(pictures(), before);
}

TEST_F(MotifLooksTest, TextsOfAllScriptsAndLengthsAreShownAndKept) {
    ListeningPanel* panel = OpenPanel();
    const std::vector<std::string> texts = {"\xe8\x87\xaa\xe8\xa1\x8c\xe8\xbb\x8a",
                                            "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d",
                                            "\xd9\x85\xd8\xb1\xd8\xad\xd8\xa8\xd8\xa7",
                                            "\xf0\x9f\x9a\xb2 bike",
                                            std::string(500, 'w'),
                                            "\xff\xfe"};
    for (const std::string& text : texts) {
        auto* editor = new ZOLDlgEditor(panel, "Editor");
        editor->SetText(text);
        auto* combo = new ZOLDlgCombo(panel, "Combo");
        combo->SetLine(text);
        combo->SetSelect(0);
        combo->SetTitle(text);
        auto* button = new ZOLDlgPushButton(panel, "Button");
        button->SetTitle(text);
        panel->SetTitle(text);
        _user->Settle();
        EXPECT_EQ(editor->GetText(), ZOLUnicodeString(text));
        EXPECT_EQ(combo->GetField(), ZOLUnicodeString(text));
    }
}

TEST_F(MotifLooksTest, LettersThatTheFontLacksAreKeptWhileTheUserTypesBesideThem) {
    ListeningPanel* panel = OpenPanel();
    auto* editor = new ZOLDlgEditor(panel, "Editor");
    editor->SetText("\xe8\x87\xaa");
    _user->Click(*editor);
    _user->Type("a");
    EXPECT_NE(editor->GetText().SearchSubString("a"), -1);
    EXPECT_NE(editor->GetText().SearchSubString("\xe8\x87\xaa"), -1);
}

} // namespace
