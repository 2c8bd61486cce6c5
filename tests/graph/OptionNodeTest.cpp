#include "graph/ZOLOptionNode.h"
#include "toolkit/ZOLGraphArc.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace trellis::test {

// An option under a node, so that it has an arc.
class OptionNode : public testing::Test {
protected:
    // Goes through operations by their letters: s S select by user and rule, u unselect, r R reject by user and rule,
    // x end the rejection.
    void Do(const std::string& letters) {
        for (const char letter : letters)
            Do(letter);
    }
    void Do(char letter) {
        switch (letter) {
        case 's':
            return node.SetUserSelected();
        case 'S':
            return node.SetRuleSelected();
        case 'u':
            return node.UnsetSelected();
        case 'r':
            return node.SetUserRejected();
        case 'R':
            return node.SetRuleRejected();
        case 'x':
            return node.UnsetRejected();
        default:
            FAIL() << letter;
        }
    }
    // "selected rejected colour highlight shadow line".
    std::string State() const {
        const auto letter = [](int user, int rule) { return user ? "u" : rule ? "r" : "-"; };
        return std::string(letter(node.IsUserSelected(), node.IsRuleSelected())) +
               letter(node.IsUserRejected(), node.IsRuleRejected()) + " " + std::to_string(node.getColor()) +
               (node.getHighlight() ? " lit" : "") + (node.isShadowIn() ? " in" : "") +
               (arc->getLineType() == 2 ? " dashed" : "");
    }

    ZOLGraphNode parent{"COLOUR", " "};
    ZOLOptionNode node{ZOLOption("RED", "a colour", "COLOUR", 0, 0), 1, 1};
    ZOLGraphArc* arc = new ZOLGraphArc(&parent, &node);
};

TEST_F(OptionNode, GoesFromStateToStateAsItsTableSays) {
    struct Step {
        const char* way; // operations that lead to the state, then the one that is looked at
        const char* state;
    };
    const Step steps[] = {
        {"", "-- 6"},
        // from nothing
        {"s", "u- 6 lit in"},
        {"S", "r- 7 in"},
        {"u", "-- 6"},
        {"r", "-u 12 dashed"},
        {"R", "-r 254 dashed"},
        {"x", "-- 6"},
        // from selected by the user
        {"sS", "u- 6 lit in"},
        {"su", "-- 6"},
        {"sr", "-u 12 dashed"},
        {"sR", "u- 6 lit in"},
        {"sx", "u- 6 lit in"},
        // from selected by a rule
        {"Ss", "u- 6 lit in"},
        {"Su", "-- 6"},
        {"Sr", "ru 12 dashed"},
        {"SR", "r- 7 in"},
        {"Sx", "r- 7 in"},
        // from rejected by the user
        {"rs", "u- 6 lit in"},
        {"rS", "ru 7 in dashed"},
        {"ru", "-u 12 dashed"},
        {"rR", "-u 12 dashed"},
        {"rx", "-- 6"},
        // from rejected by a rule
        {"Rs", "ur 6 lit in dashed"},
        {"RS", "rr 7 in dashed"},
        {"Ru", "-r 254 dashed"},
        {"Rr", "-u 12 dashed"},
        {"Rx", "-- 6"},
        // from selected by the user, rejected by a rule
        {"Rsu", "-r 254 dashed"},
        {"Rsr", "-u 12 dashed"},
        {"RsS", "ur 6 lit in dashed"},
        {"Rsx", "u- 6 lit in"},
        // from selected by a rule, rejected by the user
        {"Srs", "u- 6 lit in"},
        {"Sru", "-u 12 dashed"},
        {"Srx", "r- 7 in"},
        {"SrR", "ru 12 dashed"},
        // from both by a rule
        {"RSs", "ur 6 lit in dashed"},
        {"RSu", "-r 254 dashed"},
        {"RSr", "ru 12 dashed"},
        {"RSx", "r- 7 in"},
    };
    for (const Step& step : steps) {
        node.Reset();
        Do(step.way);
        EXPECT_EQ(State(), step.state) << step.way;
    }
}

TEST_F(OptionNode, UnHighlightDrawsWhatTheFieldsHold) {
    for (const char* way : {"", "s", "S", "r", "R", "Sr", "Rs"}) {
        node.Reset();
        Do(way);
        const std::string before = State();
        node.Highlight();
        EXPECT_EQ(node.getColor(), 112) << way;
        node.UnHighlight();
        EXPECT_EQ(State(), before) << way;
    }
}

TEST_F(OptionNode, IgnoringEndsBothStatesAndOnlyWhereItIsPossible) {
    Do("Rs");
    node.SetIgnored();
    EXPECT_EQ(State(), "-- 66");
    node.UnsetIgnored();
    EXPECT_EQ(State(), "-- 6");
    ZOLOptionNode plain(ZOLOption("BLUE", "", "COLOUR", 0, 0), 0, 1);
    plain.SetUserSelected();
    plain.SetIgnored();
    EXPECT_TRUE(plain.IsUserSelected());
}

TEST_F(OptionNode, ItsMarkTellsTheStateThatShowsAndItsAlertWhatIsWrongBesides) {
    struct Case {
        const char* way;
        const char* words;
    };
    const Case cases[] = {
        {"", "undecided"},
        {"s", "chosen by the user"},
        {"S", "chosen by a rule"},
        {"r", "rejected by the user"},
        {"R", "rejected by a rule"},
        {"Sr", "rejected by the user"},
        {"rS", "chosen by a rule"},
        {"Rsu", "rejected by a rule"},
        {"sR", "chosen by the user"},
    };
    for (const Case& c : cases) {
        node.Reset();
        Do(c.way);
        EXPECT_STREQ(WordsFor(node.getMark()), c.words) << c.way;
        node.HighlightConflict();
        node.Highlight();
        EXPECT_STREQ(WordsFor(node.getMark()), c.words) << c.way;
        EXPECT_EQ(node.getAlert(), NodeAlert::Conflict) << c.way;
        node.ClearConflict();
        EXPECT_EQ(node.getAlert(), NodeAlert::None) << c.way;
    }
    node.HighlightIrresolution();
    node.SetIgnored();
    EXPECT_EQ(node.getMark(), NodeMark::Ignored);
    EXPECT_EQ(node.getAlert(), NodeAlert::None);
}

TEST_F(OptionNode, ALongDescriptionIsCutInItsText) {
    const auto text = [](const char* description, int withDescription) {
        return ZOLOptionNode(ZOLOption("X", description, "C", 0, 0), 0, withDescription).getText().Bytes();
    };
    EXPECT_EQ(text("1234567890123456789012345", 1), "X (1234567890123456789012345)");
    EXPECT_EQ(text("12345678901234567890123456", 1), "X (1234567890123456789012...)");
    EXPECT_EQ(text("", 1), "X");
    EXPECT_EQ(text("told", 0), "X");
}

} // namespace trellis::test
