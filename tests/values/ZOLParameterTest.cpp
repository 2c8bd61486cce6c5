#include "values/ZOLParameter.h"
#include "values/ZOLCategory.h"
#include "values/ZOLOption.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <memory>
#include <string>

namespace {

ZOLParameter Nothing() {
    return {"", "", 0};
}

TEST(ZOLParameter, AReferenceIsReadAsItWasWrittenWhateverTheNamesHold) {
    EXPECT_TRUE(rc::check([](const std::string& before, const std::string& after) {
        const auto name =
            rc::gen::container<std::string>(rc::gen::elementOf(std::string("\"\".A \n\\\xc3\xa4")));
        const ZOLParameter written(*name, *name, 0);
        std::string rest = after;
        if (!rest.empty() && (rest[0] == '"' || rest[0] == '.'))
            rest.insert(0, " ");
        const ZOLUnicodeString text(before + written.GetParameterString().Bytes() + rest);
        ZOLParameter read = Nothing();
        int position = static_cast<int>(before.size());
        RC_ASSERT(ZOLParameter::ReadParameterString(text, position, read) == 1);
        RC_ASSERT(read == written);
        RC_ASSERT(position == text.GetLengthInByte() - static_cast<int>(rest.size()));
    }));
}

TEST(ZOLParameter, NotMayStandRightBeforeAReferenceThatHoldsKeywords) {
    const ZOLParameter parameter("not", "A and \"B\"", 1);
    EXPECT_EQ(parameter.GetParameterString(0), "\"not\".\"A and \"\"B\"\"\"");
    ZOLUnicodeString text;
    parameter.GetParameterString(text, 1);
    EXPECT_EQ(text, "not \"not\".\"A and \"\"B\"\"\"");
    ZOLParameter read = Nothing();
    int position = 3;
    EXPECT_EQ(ZOLParameter::ReadParameterString("not" + parameter.GetParameterString(), position, read), 1);
    EXPECT_EQ(read, ZOLParameter("not", "A and \"B\"", 0));
}

TEST(ZOLParameter, AnUnfinishedReferenceIsRefusedAndChangesNothing) {
    for (const char* text :
         {"", "A", "\"", "\"A", "\"A\"\"", "\"A\".", "\"A\".B", "\"A\".\"B", "\"A\".\"B\"\""}) {
        ZOLParameter read("KEPT", "KEPT", 1);
        int position = 0;
        EXPECT_EQ(ZOLParameter::ReadParameterString(text, position, read), 0) << text;
        EXPECT_EQ(position, 0) << text;
        EXPECT_EQ(read, ZOLParameter("KEPT", "KEPT", 1)) << text;
    }
    ZOLParameter read = Nothing();
    for (int outside : {-1, 4, 1000}) {
        int position = outside;
        EXPECT_EQ(ZOLParameter::ReadParameterString("\"A\"", position, read), 0) << outside;
    }
}

TEST(ZOLParameter, EqualityIsCategoryOptionAndSignAlone) {
    ZOLParameter a("COLOUR", "Colour of the frame", "RED", "Signal red", 0);
    a.SetParameterSource(ZOLParameter::SourceRule);
    a.SetCategoryExclusivity(1);
    EXPECT_EQ(a, ZOLParameter("COLOUR", "RED", 0));
    EXPECT_FALSE(a == ZOLParameter("COLOUR", "RED", 1));
    EXPECT_FALSE(a == ZOLParameter("LAMP", "RED", 0));
}

TEST(ZOLParameter, TakesItsCategoryFromTheCategoryAndItsSignFromTheOption) {
    const ZOLParameter parameter(ZOLCategory("COLOUR", "Colour of the frame", 1, 0),
                                 ZOLOption("RED", "Signal red", "OLD NAME", 1, 0));
    EXPECT_EQ(parameter, ZOLParameter("COLOUR", "RED", 1));
    EXPECT_EQ(parameter.GetCategoryExclusivity(), 1);
    EXPECT_EQ(parameter.GetParameterSource(), ZOLParameter::SourceUnset);
}

TEST(ParameterInList, LooksBetweenTwoPositionsBothIncluded) {
    const ZOLParameter wanted("C", "B", 0);
    ZOLParameter first("C", "A", 0);
    ZOLParameter second("C", "B", 0);
    ZOLListPtrZOLParameter list;
    EXPECT_EQ(ParameterInList(&wanted, list, 1, -1), 0);
    list.Append(&first);
    list.Append(&second);
    EXPECT_EQ(ParameterInList(&wanted, list, 1, -1), 1);
    EXPECT_EQ(ParameterInList(&wanted, list, 1, 1), 0);
    EXPECT_EQ(ParameterInList(&wanted, list, 1, 2), 1);
    EXPECT_EQ(ParameterInList(&wanted, list, 3, 9), 0);
    EXPECT_EQ(ParameterInList(nullptr, list, 1, -1), 0);
}

TEST(ZOLOptionAndZOLCategory, CopiesAreFoundAgainAfterAnEdit) {
    ZOLOption before("RED", "Signal red", "COLOUR", 0, 0);
    before.SetUsed(1);
    EXPECT_EQ(before, ZOLOption("RED", "Traffic red", "COLOUR", 1, 1));
    EXPECT_FALSE(before == ZOLOption("RED", "Signal red", "LAMP", 0, 0));
    EXPECT_EQ(ZOLCategory("COLOUR", "a", 1, 1), ZOLCategory("COLOUR", "b", 0, 0));
}

} // namespace
