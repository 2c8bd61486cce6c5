#pragma once

#include "model/DatabaseSession.h"
#include "model/StructureImport.h"
#include "navigator/NavigatorWindow.h"
#include "support/StoredDatabase.h"
#include "support/TemporaryFolder.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLUserDriver.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace trellis::test {

// The navigator on BIKE, which holds FRAME and WHEEL (the link is called "front"); FRAME holds TUBE.
class NavigatorFixture : public testing::Test {
protected:
    using Driver = ZOLUserDriver;
    using Path = std::vector<ZOLUnicodeString>;

    NavigatorFixture() : _session(HostOptions{_folder.Path("a.db"), {}, false, "", "", ""}) {
        setenv("XDG_STATE_HOME", _folder.Path("state").c_str(), 1);
        ZOLGYRError error;
        DatabaseSession::Create(_folder.Path("a.db"), error);
        ImportReport report;
        StructureImport::ReadText("record,id,number,name,parent,child,position,link_name\n"
                                  "part,b,BIKE,Bike,,,,\npart,f,FRAME,Frame,,,,\npart,t,TUBE,Tube,,,,\n"
                                  "part,w,WHEEL,Wheel,,,,\n"
                                  "link,,,,b,f,10,\nlink,,,,b,w,20,front\nlink,,,,f,t,10,\n",
                                  StructureImport::Form::Csv, "test", report, error);
        EXPECT_EQ(error.GetCode(), 0);
        Open();
    }
    ~NavigatorFixture() override {
        EXPECT_EQ(Driver::PendingAnswers(), 0);
        for (const Driver::Message& message : Driver::TakeMessages())
            ADD_FAILURE() << "nobody read: " << message.text.Bytes();
        if (!_hasLeft)
            _window->RequestDelayedDestruction();
        CallbackScope::FreeGivenUp();
        EXPECT_EQ(Driver::Top(), nullptr);
    }

    void Open() {
        _session.OpenDatabase();
        _window = new NavigatorWindow(_session);
        _window->SetVisibility(ZOLShown);
        _graph = static_cast<ZOLGraphViewer*>(Driver::Find(_window, "Structure"));
        _bar = Driver::Find(_window, "MenuBar");
    }
    NavigatorNode* Node(const Path& path) const {
        return static_cast<NavigatorNode*>(Driver::Node(_graph, path));
    }
    void Click(const Path& path, bool extend = false) { Driver::Click(_graph, Node(path), extend); }
    // Chooses the node alone, whatever was chosen, and leaves its branch as it is.
    void Choose(const Path& path) {
        Driver::ContextClick(_graph, Node(path));
        Driver::Key(_graph, ZOLUserKey::Escape);
    }
    void Call(const Path& path, const std::string& item) {
        Driver::ContextClick(_graph, Node(path));
        Driver::Menu(_graph, item);
    }
    bool Sees(const std::string& text) const {
        return Driver::Describe(_window).find(text) != std::string::npos;
    }
    // What stands below a node, line by line.
    std::vector<std::string> Below(const Path& path) const {
        std::vector<std::string> lines;
        for (const ZOLGraphArc* arc : Node(path)->ChildArcs())
            lines.push_back(arc->GetChild()->getText().Bytes());
        return lines;
    }
    std::vector<int> TakeCodes() {
        std::vector<int> codes;
        for (const Driver::Message& message : Driver::TakeMessages())
            codes.push_back(message.code);
        return codes;
    }
    int Stored(const std::string& fromWhere) const {
        return StoredDatabase(_folder.Path("a.db")).Count(fromWhere);
    }

    TemporaryFolder _folder;
    HostSession _session;
    NavigatorWindow* _window;
    ZOLGraphViewer* _graph;
    ZOLDialog* _bar;
    bool _hasLeft = false;
};

} // namespace trellis::test
