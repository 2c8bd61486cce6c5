#include "values/ZOLGYRError.h"
#include "values/ZOLMsg.h"
#include "values/ZOLMsgCatalog.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

TEST(ZOLGYRErrorTest, SetReplacesTheCodeAndKeepsTheTexts) {
    ZOLGYRError error;
    error.Add("CB-LT");
    error.Set(20295, 0);
    error.Set(20297);
    EXPECT_EQ(error.GetMode(), 0);
    ASSERT_EQ(error.GetParameters().size(), 1u);

    const ZOLUnicodeString more[] = {"second", "third"};
    error.Set(50113, 1, "first", 2, more);
    EXPECT_EQ(error.GetParameters().size(), 3u);
    EXPECT_EQ(error.GetParameters().front(), "first");

    error.Set(60400, {"only"});
    EXPECT_EQ(error.GetMode(), 1) << "without a mode it stays";
    EXPECT_EQ(error.GetParameters(), std::vector<ZOLUnicodeString>{"only"});

    error.Clear();
    EXPECT_EQ(error.GetCode(), 0);
    EXPECT_EQ(error.GetMode(), -1);
    EXPECT_TRUE(error.GetParameters().empty());
    ZOLUnicodeString text("before");
    error.GetLongMsg(text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(ZOLGYRErrorTest, AnUnknownNumberShowsNumberAndParameters) {
    ZOLGYRError error;
    error.Set(-4711);
    error.Add("CB-LT");
    ZOLUnicodeString text;
    error.GetLongMsg(text);
    EXPECT_EQ(text, "Error 4711: CB-LT");
}

TEST(ZOLGYRErrorTest, TheTextOfANumberComesFromTheCatalogue) {
    ZOLGYRError error;
    error.Set(20295);
    error.Add("Cargo bike");
    ZOLUnicodeString text;
    error.GetLongMsg(text);
    EXPECT_GE(text.SearchSubString("Cargo bike", 0), 0);
    EXPECT_LT(text.SearchSubString("20295", 0), 0);
}

TEST(ZOLMsgTest, PlacesSegmentsAndSurplusParameters) {
    const ZOLUnicodeString text("The name{ %1} is taken{ in %2}. 100%%");
    EXPECT_EQ(ZOLMsg::BuildMessage(text, {}), "The name is taken. 100%");
    EXPECT_EQ(ZOLMsg::BuildMessage(text, {"A"}), "The name A is taken. 100%");
    EXPECT_EQ(ZOLMsg::BuildMessage(text, {"A", "B", "C", "D"}), "The name A is taken in B. 100%: C, D");
    EXPECT_EQ(ZOLMsg::BuildMessage("%1 and %1", {"{%2}"}), "{%2} and {%2}");
    EXPECT_EQ(ZOLMsg::BuildMessage("open {%1", {}), "open ");
}

RC_GTEST_PROP(ZOLMsgTest, AnyTemplateAndParametersAreHandled, (const std::string& text)) {
    const auto words = *rc::gen::container<std::vector<std::string>>(rc::gen::arbitrary<std::string>());
    std::vector<ZOLUnicodeString> parameters(words.begin(), words.end());
    const ZOLUnicodeString message = ZOLMsg::BuildMessage(text, parameters);
    RC_ASSERT(message == ZOLMsg::BuildMessage(text, parameters));
}

TEST(ZOLMsgCatalogTest, AMissingCatalogueOrKeyGivesNothing) {
    EXPECT_TRUE(ZOLMsgCatalog("nowhere").GetMsg("1").IsEmpty());
    EXPECT_TRUE(ZOLMsgCatalog("../en/messages").GetMsg("20265").IsEmpty());
    EXPECT_EQ(ZOLMsgCatalog("messages").HasMsg("1"), 0);
    EXPECT_EQ(ZOLMsgCatalog("RuleKeyWords").GetMsg("then"), "then");
}

} // namespace
