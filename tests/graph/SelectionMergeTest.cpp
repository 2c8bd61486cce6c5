#include "graph/SelectionMerge.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <vector>

namespace trellis::test {

namespace {

// A selection in words: "+A1" chosen by the user, "-A2" rejected by the user, "*A3" chosen by a rule, "/A4" rejected
// by a rule, "?A5" chosen and "!A6" rejected without a source. The letter is the category.
class Selection {
public:
    ~Selection() { ZOLDeleteElements(_list); }

    explicit Selection(const std::vector<std::string>& words) {
        for (const std::string& word : words)
            _list.Append(Make(word).release());
    }

    static std::unique_ptr<ZOLParameter> Make(const std::string& word, bool isExclusive = false) {
        const std::size_t sign = Signs.find(word[0]);
        auto parameter =
            std::make_unique<ZOLParameter>(word.substr(1, 1), word.substr(1), static_cast<int>(sign % 2));
        constexpr ZOLParameter::ZOLParameterSource sources[] = {
            ZOLParameter::SourceUser, ZOLParameter::SourceRule, ZOLParameter::SourceUnset};
        parameter->SetParameterSource(sources[sign / 2]);
        parameter->SetCategoryExclusivity(isExclusive);
        return parameter;
    }

    std::string Click(const std::string& option, bool isExclusive, bool isAdvanced, bool manages = true) {
        SelectionMerge(_list, {isAdvanced, manages})
            .Select(Make("+" + option, isExclusive), [](const ZOLUnicodeString& category) {
                static const ZOLListValZOLUnicodeString names = [] {
                    ZOLListValZOLUnicodeString list;
                    for (const char* name : {"A1", "A2", "A3"})
                        list.Append(name);
                    return list;
                }();
                return category == "A" ? &names : nullptr;
            });
        return Text();
    }
    std::string Reject(const std::string& option, bool isExclusive, bool isAdvanced) {
        SelectionMerge(_list, {isAdvanced, true}).Reject(Make("-" + option, isExclusive));
        return Text();
    }
    std::string Text() const {
        std::string text;
        for (const ZOLParameter* parameter : _list) {
            const int source = parameter->GetParameterSource();
            const std::size_t group = source == ZOLParameter::SourceUser   ? 0
                                      : source == ZOLParameter::SourceRule ? 1
                                                                           : 2;
            text += Signs[2 * group + static_cast<std::size_t>(parameter->IsNot())];
            text += parameter->GetOption().Bytes() + " ";
        }
        return text;
    }

private:
    static constexpr std::string_view Signs = "+-*/?!";

    ZOLListPtrZOLParameter _list;
};

} // namespace

TEST(SelectionMergeTest, AClickSelectsAndTakesBack) {
    EXPECT_EQ(Selection({"+B1"}).Click("A1", false, false), "+B1 +A1 ");
    EXPECT_EQ(Selection({"+A1", "+B1"}).Click("A1", false, false), "+B1 ");
    EXPECT_EQ(Selection({"-A1"}).Click("A1", false, false), "+A1 ") << "simple mode replaces a rejection";
    EXPECT_EQ(Selection({"-A1"}).Click("A1", false, true), "") << "advanced mode takes it away";
}

TEST(SelectionMergeTest, InAnExclusiveCategoryTheSelectionMovesOrGoes) {
    EXPECT_EQ(Selection({}).Click("A1", true, false), "-A2 -A3 +A1 ");
    EXPECT_EQ(Selection({"+A1", "-A2", "-A3"}).Click("A2", true, false), "-A3 -A1 +A2 ");
    EXPECT_EQ(Selection({"+A1", "-A2", "-A3"}).Click("A2", true, true), "-A3 ")
        << "it takes a second click to select";
    EXPECT_EQ(Selection({"*A1"}).Click("A2", true, false), "*A1 -A3 +A2 ") << "what a rule chose stays";
    EXPECT_EQ(Selection({}).Click("A1", true, false, false), "+A1 ") << "without rejecting";
    EXPECT_EQ(Selection({"+A1", "!A2"}).Click("A1", true, false), "")
        << "rejections without source go with their selection";
    EXPECT_EQ(Selection({}).Click("B1", true, false), "+B1 ") << "a category without node";
}

TEST(SelectionMergeTest, ARejectionTurnsOnAndOffUnlessASelectionNeedsIt) {
    EXPECT_EQ(Selection({}).Reject("A1", false, false), "-A1 ");
    EXPECT_EQ(Selection({"-A1"}).Reject("A1", false, false), "");
    EXPECT_EQ(Selection({"+A1"}).Reject("A1", false, false), "-A1 ");
    EXPECT_EQ(Selection({"+A1"}).Reject("A1", false, true), "") << "advanced mode ends the selection first";
    EXPECT_EQ(Selection({"+A2", "/A1"}).Reject("A1", true, false), "+A2 /A1 ") << "with its old source";
    EXPECT_EQ(Selection({"+B1", "-A1"}).Reject("A1", true, false), "+B1 ");
}

// Whatever is clicked: other categories are left alone, in their order, and no option of the category is there twice.
TEST(SelectionMergeTest, NothingElseIsTouched) {
    const std::vector<std::string> pool = {"+A1", "-A2", "*A3", "!A2", "?A1", "+B1", "-B2", "/C1"};
    rc::check([&] {
        auto words = *rc::gen::unique<std::vector<std::string>>(rc::gen::elementOf(pool));
        std::map<std::string, bool> options;
        std::erase_if(words,
                      [&](const std::string& word) { return !options.emplace(word.substr(1), true).second; });
        const bool isExclusive = *rc::gen::arbitrary<bool>();
        const bool isAdvanced = *rc::gen::arbitrary<bool>();
        const std::string option = *rc::gen::element<std::string>("A1", "A2", "A3");
        Selection selection(words);
        const std::string text = *rc::gen::arbitrary<bool>()
                                     ? selection.Click(option, isExclusive, isAdvanced)
                                     : selection.Reject(option, isExclusive, isAdvanced);
        std::string others;
        for (const std::string& word : words)
            if (word[1] != 'A')
                others += word + " ";
        std::string othersAfter;
        std::istringstream pieces(text);
        std::map<std::string, int> seen;
        for (std::string piece; pieces >> piece;) {
            if (piece[1] != 'A')
                othersAfter += piece + " ";
            else
                RC_ASSERT(++seen[piece.substr(1)] == 1);
        }
        RC_ASSERT(othersAfter == others);
    });
}

} // namespace trellis::test
