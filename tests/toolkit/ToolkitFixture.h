#pragma once

#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLInteractiveApplication.h"
#include "toolkit/ZOLUserDriver.h"
#include "values/ZOLVar.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

// A panel for tests: it writes down what it is told, and can do something when it is.
class ListeningPanel : public ZOLDlgDialog {
public:
    using Reaction = std::function<void(ZOLCommand* sender, ZOLNotification* notification, void* data)>;

    explicit ListeningPanel(ZOLDialog* father = nullptr, const char* name = "Panel", unsigned long style = 0)
        : ZOLDlgDialog(father, name, style) {}

    void Listen(ZOLCommand* sender, ZOLNotification* notification, void* data = nullptr) {
        AddAnalyseNotificationCB(sender, notification, ZOL_CALLBACK(&ListeningPanel::HeardCB), data);
    }
    void ListenAlso(ZOLCommand* sender, ZOLNotification* notification) {
        AddAnalyseNotificationCB(sender, notification, ZOL_CALLBACK(&ListeningPanel::HeardAlsoCB));
    }
    void HeardCB(ZOLCommand* sender, ZOLNotification* notification, void* data) {
        heard.push_back(std::string(sender->GetName().View()));
        if (reaction)
            reaction(sender, notification, data);
    }
    void HeardAlsoCB(ZOLCommand* sender, ZOLNotification*, void*) {
        heard.push_back("also " + std::string(sender->GetName().View()));
    }

    std::vector<std::string> heard;
    Reaction reaction;
};

using Heard = std::vector<std::string>;

// Frees what a test made, and fails it where a question came up that it did not expect, an answer was not
// used, or an error was shown that it did not read.
class ToolkitTest : public testing::Test {
protected:
    // The panel of the test, shown; freed with the fixture unless the test did.
    ListeningPanel* OpenPanel(const char* name = "Panel", ZOLDialog* father = nullptr,
                              unsigned long style = 0) {
        auto* panel = new ListeningPanel(father, name, style);
        panel->SetVisibility(ZOLShown);
        _panels.push_back(ZOLVar<ZOLDialog>(panel));
        return panel;
    }
    static std::string ReasonOf(const std::function<void()>& verb) {
        try {
            verb();
        } catch (const ZOLUserDriver::Refused& refused) {
            return refused.what();
        }
        return "not refused";
    }
    void TearDown() override {
        for (ZOLVar<ZOLDialog>& panel : _panels)
            panel->RequestDelayedDestruction();
        trellis::CallbackScope::FreeGivenUp();
        _panels.clear();
        for (const ZOLUserDriver::Message& message : ZOLUserDriver::TakeMessages())
            ADD_FAILURE() << "nobody read: " << message.title.Bytes() << ": " << message.text.Bytes();
        EXPECT_EQ(ZOLUserDriver::PendingAnswers(), 0);
        ZOLUserDriver::Answer({});
        ZOLUserDriver::WhenAsked({});
        EXPECT_EQ(ZOLInteractiveApplication::GetApplication()->CountDialogs(), 0) << "a panel was not ended";
    }

private:
    std::vector<ZOLVar<ZOLDialog>> _panels;
};
