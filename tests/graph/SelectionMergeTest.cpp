#include "graph/SelectionMerge.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
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

// What a click makes of a list, told by what is true of the list as a whole instead of one element after the other.
class ExpectedMerge {
public:
    ExpectedMerge(std::vector<std::string> words, std::string clicked, bool isExclusive, bool isAdvanced)
        : _words(std::move(words)),
          _clicked(std::move(clicked)),
          _isExclusive(isExclusive),
          _isAdvanced(isAdvanced) {}

    std::string Select(bool managesRejection) const {
        const bool wasSelected = HasAny([&](const auto& word) { return IsClicked(word) && IsPlain(word); });
        const auto isUsersRival = [&](const std::string& word) { return IsRival(word) && word[0] == '+'; };
        const bool isBlocked = _isAdvanced && HasAny([&](const auto& word) {
                                   return IsClicked(word) || (_isExclusive && isUsersRival(word));
                               });
        const bool adds = !wasSelected && !isBlocked;
        std::string text = Without([&](const std::string& word) {
            const bool isLoneRejection = wasSelected && IsRival(word) && word[0] == '!';
            return IsClicked(word) || (_isExclusive && (isUsersRival(word) || isLoneRejection));
        });
        for (const char* option : {"A1", "A2", "A3"}) {
            const bool isTold = HasAny([&](const auto& word) {
                return word.substr(1) == option && (_isAdvanced || word[0] != '+');
            });
            if (_isExclusive && adds && managesRejection && _clicked[0] == 'A' && option != _clicked &&
                !isTold)
                text += std::string("-") + option + " ";
        }
        return adds ? text + "+" + _clicked + " " : text;
    }

    std::string Reject() const {
        const auto isOld = [&](const std::string& word) { return IsClicked(word) && !IsPlain(word); };
        const bool isTakenBack =
            HasAny([&](const auto& word) { return IsClicked(word) && _isAdvanced; }) || HasAny(isOld);
        const bool isNeeded =
            _isExclusive && HasAny([&](const auto& word) { return IsRival(word) && IsPlain(word); });
        const std::string text = Without([&](const std::string& word) { return IsClicked(word); });
        if (!isTakenBack)
            return text + "-" + _clicked + " ";
        if (!isNeeded)
            return text;
        const auto old = std::find_if(_words.rbegin(), _words.rend(), isOld);
        return text + (old == _words.rend() ? "!" : old->substr(0, 1)) + _clicked + " ";
    }

private:
    static bool IsPlain(const std::string& word) {
        return std::string("+*?").find(word[0]) != std::string::npos;
    }
    bool IsClicked(const std::string& word) const { return word.substr(1) == _clicked; }
    // Another option of the same category.
    bool IsRival(const std::string& word) const { return word[1] == _clicked[0] && !IsClicked(word); }
    template <class Condition>
    bool HasAny(Condition condition) const {
        return std::any_of(_words.begin(), _words.end(), condition);
    }
    template <class Condition>
    std::string Without(Condition condition) const {
        std::string text;
        for (const std::string& word : _words)
            if (!condition(word))
                text += word + " ";
        return text;
    }

    std::vector<std::string> _words;
    std::string _clicked;
    bool _isExclusive;
    bool _isAdvanced;
};

// Lists may hold one option twice, with one sign or with both: rules and terms are not merged by clicks.
TEST(SelectionMergeTest, AnyListBecomesWhatTheWholeOfItSays) {
    EXPECT_TRUE(rc::check([] {
        const auto word = rc::gen::apply([](char sign, const std::string& option) { return sign + option; },
                                         rc::gen::elementOf(std::string("+-*/?!")),
                                         rc::gen::element<std::string>("A1", "A2", "A3", "B1", "B2"));
        const auto words = *rc::gen::container<std::vector<std::string>>(word);
        const bool isExclusive = *rc::gen::arbitrary<bool>();
        const bool isAdvanced = *rc::gen::arbitrary<bool>();
        const bool manages = *rc::gen::arbitrary<bool>();
        const auto clicked = *rc::gen::element<std::string>("A1", "A2", "A3", "A4", "B1");
        const ExpectedMerge expected(words, clicked, isExclusive, isAdvanced);
        RC_ASSERT(Selection(words).Click(clicked, isExclusive, isAdvanced, manages) ==
                  expected.Select(manages));
        RC_ASSERT(Selection(words).Reject(clicked, isExclusive, isAdvanced) == expected.Reject());
    }));
}

} // namespace trellis::test
