// What holds for every widget of the gallery, in the view of this program.

#include "gallery/GalleryCase.h"
#include "gallery/GalleryWindow.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLInteractiveApplication.h"

#include <gtest/gtest.h>

namespace {

using Driver = ZOLUserDriver;

class GalleryTest : public testing::TestWithParam<GalleryCase> {
protected:
    GalleryTest() {
        const trellis::CallbackScope scope;
        _window = new trellis::GalleryWindow;
        _window->SetVisibility(ZOLShown);
    }
    ~GalleryTest() override {
        _window->RequestDelayedDestruction();
        trellis::CallbackScope::FreeGivenUp();
        EXPECT_TRUE(Driver::TakeMessages().empty());
        EXPECT_EQ(ZOLInteractiveApplication::GetApplication()->CountDialogs(), 0);
    }

    void SetUp() override { _hand.ClickPage(*Find("Subjects"), GetParam().page); }

    ZOLDialog* Find(const std::string& path) const { return Driver::Find(_window, path); }
    ZOLDialog* FindWidget() const { return Find(std::string(GetParam().page) + '/' + GetParam().widget); }
    void Operate(const GalleryCase::Gesture& gesture) { gesture(_hand, *FindWidget()); }
    void ClickTool(const char* name) { _hand.Click(*Find(std::string("Tools/") + name)); }

    // The values that came from the sender of this case.
    GalleryCase::News News() const {
        const std::string sender = GetParam().sender ? GetParam().sender : GetParam().widget;
        const auto* log = static_cast<ZOLDlgMultiList*>(Find("Log"));
        GalleryCase::News news;
        for (int row = 0; row < log->GetLineCount(); ++row)
            if (Cell(*log, row, 1) == sender)
                news.push_back(Cell(*log, row, static_cast<int>(GetParam().told)));
        return news;
    }
    static std::string Cell(const ZOLDlgMultiList& log, int row, int column) {
        ZOLUnicodeString text;
        log.GetColumnItem(column, text, row);
        return text.Bytes();
    }

    GalleryHand& _hand = TheHand();
    trellis::GalleryWindow* _window;
};

TEST_P(GalleryTest, TheMouseOperatesIt) {
    Operate(GetParam().byMouse);
    EXPECT_EQ(News(), GetParam().newsOfMouse) << Driver::Describe(_window);
}

TEST_P(GalleryTest, TheKeyboardOperatesIt) {
    if (GetParam().byKeys)
        Operate(GetParam().byKeys);
    EXPECT_EQ(News(), GetParam().newsOfKeys) << Driver::Describe(_window);
}

TEST_P(GalleryTest, WhatCodeSetsTwiceTellsNobody) {
    for (int time = 0; time < 2; ++time)
        ClickTool("SetByCode");
    EXPECT_EQ(News(), GalleryCase::News());
    EXPECT_EQ(static_cast<ZOLDlgMultiList*>(Find("Log"))->GetLineCount(), 2) << "one remark for each time";
}

TEST_P(GalleryTest, GreyedItTellsNothingAndActiveAgainItDoes) {
    ClickTool("Greyed");
    Operate(GetParam().byMouse);
    EXPECT_EQ(News(), GalleryCase::News());
    static_cast<ZOLDlgCheckButton*>(Find("Tools/Greyed"))->SetState(ZOLOff, 1);
    Operate(GetParam().byMouse);
    EXPECT_EQ(News(), GetParam().newsOfMouse);
}

TEST_P(GalleryTest, ItMayBeDestroyedInItsOwnNotificationAndMadeAnew) {
    ClickTool("EndsSender");
    Operate(GetParam().byMouse);
    ASSERT_FALSE(News().empty());
    EXPECT_EQ(News().size(), 1u) << "what is gone tells nothing";
    static_cast<ZOLDlgCheckButton*>(Find("Tools/EndsSender"))->SetState(ZOLOff, 1);
    ClickTool("Build");
    Operate(GetParam().byMouse);
    EXPECT_EQ(News().size(), 1 + GetParam().newsOfMouse.size());
}

INSTANTIATE_TEST_SUITE_P(EveryClass, GalleryTest, testing::ValuesIn(GalleryCases()),
                         [](const testing::TestParamInfo<GalleryCase>& info) { return info.param.name; });

} // namespace
