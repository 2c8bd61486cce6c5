#include "cli/ScriptRunner.h"

#include "cli/DriverVerbs.h"
#include "panels/ZOLGYRDlgError.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "values/ZOLGYRError.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <sstream>

namespace {

using trellis::ExitCode;
using trellis::ScriptLine;
using trellis::ScriptParser;
using trellis::ScriptRunner;

// A panel that asks before it closes.
class AskingPanel : public ZOLDlgDialog {
    ZOL_META_OBJECT(AskingPanel, ZOLDlgDialog)
public:
    AskingPanel() : ZOLDlgDialog(nullptr, "AskingPanel", 0xc00) {
        _name = new ZOLDlgEditor(this, "NameEd");
        _list = new ZOLDlgMultiList(this, "List");
        const ZOLUnicodeString titles[] = {"Name"};
        _list->SetColumnTitles(1, titles);
        (new ZOLDlgPushButton(this, "Greyed"))->SetSensitivity(ZOLGreyed);
        AddAnalyseNotificationCB(this, GetDiaOKNotification(), ZOL_CALLBACK(&AskingPanel::OkCB));
        SetVisibility(ZOLShown);
    }

private:
    void OkCB(ZOLCommand*, ZOLNotification*, void*) {
        ZOLGYRError error;
        error.Set(50103, 0);
        if (ZOLGYRDlgError::Display(this, error, 1) != 1)
            return;
        _list->SetColumnItem(0, _name->GetText(), -1, 64);
        error.Set(50116, 0);
        ZOLGYRDlgError::Display(this, error, 0);
    }

    ZOLDlgEditor* _name;
    ZOLDlgMultiList* _list;
};

class ScriptRunnerTest : public testing::Test {
protected:
    ScriptRunnerTest() : _panel(new AskingPanel) {}
    ~ScriptRunnerTest() override { _panel->RequestDelayedDestruction(); }

    ExitCode Play(const std::string& script) {
        _problems.clear();
        _output.str("");
        const std::vector<ScriptLine> lines = ScriptParser::Parse(script, _problems);
        return _problems.empty() ? ScriptRunner(trellis::DriverVerbs(), _output).Run(lines, _problems)
                                 : ExitCode::WrongUse;
    }
    int FirstProblem() const { return _problems.empty() ? 0 : _problems.front().GetCode(); }
    bool Wrote(const std::string& text) const { return _output.str().find(text) != std::string::npos; }

    AskingPanel* _panel;
    std::ostringstream _output;
    std::vector<ZOLGYRError> _problems;
};

TEST_F(ScriptRunnerTest, AnsweredQuestionsAndExpectedMessagesAreFine) {
    EXPECT_EQ(Play("type NameEd \"Cargo \\\"bike\\\"\"\nanswer 1\nok\nexpect 50103 50116\ndescribe\n"),
              ExitCode::Fine)
        << _output.str();
    EXPECT_TRUE(Wrote("row \"Cargo \\\"bike\\\"\"")) << _output.str();
    EXPECT_EQ(Play("answer 2\nok\nlines List \"Cargo \\\"bike\\\"\"\nexpect nothing\n"), ExitCode::Fine)
        << _output.str();
}

TEST_F(ScriptRunnerTest, WhatNobodyExpectedIsAProblemOfItsLine) {
    EXPECT_EQ(Play("ok\n"), ExitCode::FoundProblem);
    EXPECT_EQ(FirstProblem(), 60623);
    EXPECT_EQ(Play("# first\nanswer 1\nok\ndescribe\n"), ExitCode::FoundProblem);
    ASSERT_EQ(FirstProblem(), 60623);
    EXPECT_EQ(_problems.front().GetParameters(), (std::vector<ZOLUnicodeString>{"3", "50116"}));
    EXPECT_TRUE(Wrote("> describe"));
    EXPECT_EQ(Play("answer 1 1\n"), ExitCode::FoundProblem);
    EXPECT_EQ(FirstProblem(), 60624);
    EXPECT_EQ(Play("answer 2\nok\nexpect 50103 50103\n"), ExitCode::FoundProblem);
    EXPECT_EQ(FirstProblem(), 60622);
}

TEST_F(ScriptRunnerTest, TheScriptEndsAtTheFirstVerbThatIsRefused) {
    for (const char* line :
         {"press Greyed", "press NoSuch", "rows List 7", "rows List x", "menu List Item", "click List",
          "toggle Greyed perhaps", "lines List nobody", "key List Enter", "key List Left"}) {
        EXPECT_EQ(Play(std::string(line) + "\ndescribe\n"), ExitCode::FoundProblem) << line;
        EXPECT_EQ(FirstProblem(), 60622) << line;
        EXPECT_FALSE(Wrote("> describe")) << line;
    }
}

TEST_F(ScriptRunnerTest, KeysGoToTheNamedWidget) {
    EXPECT_EQ(Play("type NameEd ab\nkey NameEd Home\nkey NameEd Delete\nkey NameEd Plus\ndescribe NameEd\n"),
              ExitCode::Fine)
        << _output.str();
    EXPECT_TRUE(Wrote("holds \"+b\"")) << _output.str();
}

TEST_F(ScriptRunnerTest, NothingIsPlayedWhenALineCannotBeUnderstood) {
    EXPECT_EQ(Play("type NameEd a\nfly\npress\npress a b\ntype NameEd \"open\n"), ExitCode::WrongUse);
    EXPECT_EQ(Play("type NameEd a\nfly\npress\npress a b\n"), ExitCode::WrongUse);
    EXPECT_EQ(_problems.size(), 3u);
    EXPECT_EQ(FirstProblem(), 60621);
    EXPECT_TRUE(_output.str().empty());
}

RC_GTEST_PROP(ScriptParserTest, QuotedWordsComeBackAsTheyWere, ()) {
    const auto words = *rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(rc::gen::nonEmpty(
        rc::gen::container<std::string>(rc::gen::element('a', ' ', '"', '\\', '\n', '#', '\t')))));
    std::string line = "verb";
    for (const std::string& word : words) {
        line += " \"";
        for (const char letter : word)
            line += letter == '\n'                    ? std::string("\\n")
                    : letter == '"' || letter == '\\' ? std::string("\\") + letter
                                                      : std::string(1, letter);
        line += '"';
    }
    std::vector<ZOLGYRError> problems;
    const auto lines = ScriptParser::Parse(line, problems);
    RC_ASSERT(problems.empty());
    RC_ASSERT(lines.size() == 1u);
    RC_ASSERT(std::vector<std::string>(lines[0].words.begin() + 1, lines[0].words.end()) == words);
}

RC_GTEST_PROP(ScriptParserTest, AnyTextIsCutOrTold, (const std::string& text)) {
    std::vector<ZOLGYRError> problems;
    for (const ScriptLine& line : ScriptParser::Parse(text, problems))
        RC_ASSERT(!line.words.empty());
}

} // namespace
