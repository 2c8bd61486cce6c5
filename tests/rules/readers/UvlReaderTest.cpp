#include "rules/readers/UvlReader.h"

#include "rules/readers/ModelMeaning.h"

#include <gtest/gtest.h>

namespace trellis::test {
namespace {

std::string Read(std::string_view text) {
    const ModelReading reading = UvlReader::Read(text);
    return reading.problems.empty() ? Described(reading.model) : Problems(reading);
}

// The rules of the constraints alone, over features a to f.
std::string Constraint(const std::string& constraint) {
    const std::string text =
        Read("features\n\tr\n\t\toptional\n\t\t\ta\n\t\t\tb\n\t\t\tc\n\t\t\td\n\t\t\t\"e f\"\n"
             "constraints\n\t" +
             constraint + "\n");
    const std::size_t rules = text.find("constraints");
    return rules == std::string::npos ? text : text.substr(rules);
}

TEST(UvlReaderTest, GroupsBecomeCategoriesAndTheTreeBecomesRules) {
    EXPECT_EQ(Read(R"(namespace Sample

features
    Bike {abstract true}
        mandatory
            Frame
                alternative
                    Steel
                    Carbon
        optional
            Bell
            Lights
                or
                    Front
                    Rear
                mandatory
                    Dynamo
                        alternative
                            Hub
        alternative
            Town
            Race

constraints
    Race => Carbon
)"),
              "[Sample] mandatory: Bike\n"
              "[Bike]: Frame, Bell, Lights\n"
              "[Bike~1] exclusive mandatory: Town, Race\n"
              "[Frame] exclusive mandatory: Steel, Carbon\n"
              "[Lights]: Front, Rear\n"
              "[Lights~1]: Dynamo\n"
              "[Dynamo] exclusive: Hub\n"
              "mandatory: Bike: if (Bike) then Frame\n"
              "parent: Lights: if (Front or Rear) then Lights\n"
              "or: Lights: if (Lights) then Front or Rear\n"
              "parent: Lights~1: if (Dynamo) then Lights\n"
              "mandatory: Lights~1: if (Lights) then Dynamo\n"
              "parent: Dynamo: if (Hub) then Dynamo\n"
              "alternative: Dynamo: if (Dynamo) then Hub\n"
              "constraints 25: if (Race) then Carbon\n");
}

TEST(UvlReaderTest, BoundsOfAGroupAreToldByItsKind) {
    const auto group = [](const std::string& bounds) {
        return Read("features\n r\n  optional\n   p\n    " + bounds + "\n     a\n     b\n     c\n")
            .substr(26);
    };
    const std::string parent = "parent: p: if (a or b or c) then p\n";
    EXPECT_EQ(group("[0..*]"), "[p]: a, b, c\n" + parent);
    EXPECT_EQ(group("[*]"), "[p]: a, b, c\n" + parent);
    EXPECT_EQ(group("[0..1]"), "[p] exclusive: a, b, c\n" + parent);
    EXPECT_EQ(group("[1]"), "[p] exclusive: a, b, c\n" + parent + "[1]: p: if (p) then a or b or c\n");
    EXPECT_EQ(group("[1 .. 1]"),
              "[p] exclusive: a, b, c\n" + parent + "[1 .. 1]: p: if (p) then a or b or c\n");
    EXPECT_EQ(group("[1..3]"), "[p]: a, b, c\n" + parent + "[1..3]: p: if (p) then a or b or c\n");
    EXPECT_EQ(group("[3..3]"), "[p]: a, b, c\n" + parent + "mandatory: p: if (p) then a and b and c\n");
}

TEST(UvlReaderTest, ConstraintsTakeTheFormThatPeopleReadBest) {
    EXPECT_EQ(Constraint("a => b & !c"), "constraints 10: if (a) then b and not c\n");
    EXPECT_EQ(Constraint("a | b => c | d"), "constraints 10: if (a or b) then c or d\n");
    EXPECT_EQ(Constraint("a <=> b & c"), "constraints 10: if (a) then b and c\n"
                                         "constraints 10~1: if (b and c) then a\n");
    EXPECT_EQ(Constraint("a & !b"), "constraints 10: if (not a) then a\n"
                                    "constraints 10~1: if (b) then not b\n");
    EXPECT_EQ(Constraint("!a | b | !c | d"), "constraints 10: if (a and c) then b or d\n");
    EXPECT_EQ(Constraint("a | b | c"), "constraints 10: if (not a) then b or c\n");
    EXPECT_EQ(Constraint("a & b | c"), "constraints 10: if (not c) then a and b\n");
    EXPECT_EQ(Constraint("!(a & b & c)"), "constraints 10: if (a and b) then not c\n");
    EXPECT_EQ(Constraint("!(a => b)"), Constraint("a & !b"));
    EXPECT_EQ(Constraint("!(a <=> b)"), "constraints 10: if (a) then not b\n"
                                        "constraints 10~1: if (not a) then b\n");
    EXPECT_EQ(Constraint("a => (b => c)"), "constraints 10: if (a) then not b or c\n");
    EXPECT_EQ(Constraint("!!!a | ((\"e f\")) | !!b"), "constraints 10: if (a) then e f or b\n");
}

TEST(UvlReaderTest, RulesOfLargeGroupsFitAPage) {
    std::string text = "features\n r\n  optional\n   p\n    mandatory\n";
    for (int i = 0; i < 41; ++i)
        text += "     f" + std::to_string(i) + "\n";
    const ModelReading reading = UvlReader::Read(text);
    ASSERT_EQ(reading.model.rules.size(), 6u);
    std::size_t named = 0;
    for (const ModelRule& rule : reading.model.rules) {
        const std::size_t names =
            std::max(rule.term.condition.parts.size(), rule.term.consequence.parts.size());
        EXPECT_LE(names, 20u);
        named += names;
    }
    EXPECT_EQ(named, 2u * 41);
}

TEST(UvlReaderTest, WhatSaysNothingAboutChoicesIsPassedOver) {
    const std::string plain = Read("features\n\tr\n\t\toptional\n\t\t\ta\n\t\t\tb c\n");
    EXPECT_EQ(plain, "5 60718"); // a name with a blank needs quotes
    EXPECT_EQ(Read("\xEF\xBB\xBF// head\r\ninclude\r\n    Boolean.group-cardinality\r\n\r\n"
                   "features // the tree\r\n"
                   "    \"r\" {a 1, b 'x } y', c \"}\", d {e [1, 2]},\r\n  abstract}\r\n"
                   "        /* a remark\r\n over lines */\r\n"
                   "        optional\r\n"
                   "            Boolean a /* here */ {x}\r\n"
                   "            Integer\r\n"
                   "constraints\r\n"
                   "    (a\r\n   | // or\r\n     r)"),
              "[r~1] mandatory: r\n[r]: a, Integer\nconstraints 14: if (not a) then r\n");
}

TEST(UvlReaderTest, ATabIndentsToTheNextMultipleOfEight) {
    EXPECT_EQ(Read("features\n r\n\tor\n  \t  a\n          b\n"),
              "[r~1] mandatory: r\n[r] mandatory: a, b\n");
}

TEST(UvlReaderTest, NamesThatAreTooLongAreShortenedAndKeptInTheDescription) {
    const std::string beginning(38, 'x');
    const ModelReading reading =
        UvlReader::Read("features\n r\n  optional\n   " + beginning + "yyyy\n   " + beginning + "zzzz\n   " +
                        beginning + "~1\nconstraints\n " + beginning + "yyyy => " + beginning + "~1\n");
    ASSERT_EQ(Problems(reading), "");
    const std::vector<ModelOption>& options = reading.model.categories.at(1).options;
    EXPECT_EQ(options[0].name, beginning + "~2");
    EXPECT_EQ(options[0].description, beginning + "yyyy");
    EXPECT_EQ(options[1].name, beginning + "~3");
    EXPECT_EQ(options[2].name, beginning + "~1");
    EXPECT_EQ(options[2].description, "");
    const DirectiveTerm& term = reading.model.rules.back().term;
    EXPECT_EQ(term.condition.reference, (OptionReference{"r", beginning + "~2"}));
    EXPECT_EQ(term.consequence.reference, (OptionReference{"r", beginning + "~1"}));
}

TEST(UvlReaderTest, EveryBadLineOfATreeIsTold) {
    struct Case {
        const char* text;
        const char* problems;
    };
    constexpr Case cases[] = {
        {"", "0 60700"},
        {"namespace x\n// nothing\n", "0 60700"},
        {"features\n", "0 60700"},
        {"hello\n  there\n  world\n", "1 60701"},
        {"  indented\n  twice\n", "1 60701"},
        {"features\n r\nfeatures\n", "3 60703"},
        {"features x\n r\n", "1 60724"},
        {"imports\n a.b as c\n d\nfeatures\n r\n", "2 60707, 3 60707"},
        {"features\n ,\n", "2 60702"},
        {"features\n mandatory\n  a\n", "2 60713"},
        {"features\n r\n s\n", "3 60710"},
        {"features\n r\n  or\n", "3 60714"},
        {"features\n r\n  a\n   or\n    x\n  nor\n", "3 60712, 6 60712"},
        {"features\n r\n  or x\n   a\n", "3 60712"},
        {"features\n r\n  or\n   alternative\n    a\n   b\n", "4 60713"},
        {"features\n r\n  or\n     a\n   b\n", "5 60711"},
        {"features\n r\n  or\n   a\n   b\n   a\n", "6 60709"},
        {"features\n r\n  or\n   \"\"\n   \" \"\n   \"a\tb\"\n", "4 60708, 5 60708, 6 60708"},
        {"features\n r\n  or\n   \"a\n   b\n", "4 60704"},
        {"features\n r\n  or\n   a {x\n   b\n   c\n", "4 60705"},
        {"features\n r /* never\n  or\n   a\n", "2 60706"},
        {"features\n r\n  [2..3]\n   a\n   b\n   c\n", "3 60715"},
        {"features\n r\n  [3..2]\n   a\n   b\n   c\n", "3 60715"},
        {"features\n r\n  [x]\n   a\n", "3 60715"},
        {"features\n r\n  [1..2\n   a\n", "3 60712"},
        {"features\n r\n  or\n   Integer a\n   b cardinality [1..3]\n   c 7\n", "4 60716, 5 60717, 6 60718"},
        {"features\n r\xFF\n  \xC3\n", "2 60212, 3 60212"}};
    for (const Case& example : cases) {
        const ModelReading reading = UvlReader::Read(example.text);
        EXPECT_EQ(Problems(reading), example.problems) << example.text;
        EXPECT_TRUE(reading.model.categories.empty()) << example.text;
    }
}

TEST(UvlReaderTest, EveryBadConstraintIsToldWithItsPlace) {
    struct Case {
        const char* constraint;
        int number;
        std::vector<ZOLUnicodeString> parameters;
    };
    const Case cases[] = {{"a =>", 60719, {"6"}},         {"=> a", 60719, {"2", "=>"}},
                          {"a & | b", 60719, {"6", "|"}}, {"a b", 60720, {"4", "b"}},
                          {"a + b", 60720, {"4", "+"}},   {"a)", 60720, {"3", ")"}},
                          {"a = b", 60720, {"4", "="}},   {"(a | b\n  c)", 60720, {"3", "c"}},
                          {"(a", 60705, {"("}},           {"a | \"ä\" | b", 60721, {"6", "ä"}},
                          {"a | \"b", 60704, {"b"}}};
    for (const Case& example : cases) {
        const std::string text =
            "features\n r\n  optional\n   a\n   b\n   c\nconstraints\n\t" + std::string(example.constraint);
        const ModelReading reading = UvlReader::Read(text);
        ASSERT_EQ(reading.problems.size(), 1u) << example.constraint;
        EXPECT_EQ(reading.problems[0].line,
                  example.constraint[0] == '(' && example.constraint[2] == ' ' ? 9 : 8);
        EXPECT_EQ(reading.problems[0].error.GetCode(), example.number) << example.constraint;
        EXPECT_EQ(reading.problems[0].error.GetParameters(), example.parameters) << example.constraint;
    }
}

TEST(UvlReaderTest, AFeatureOfABadLineIsNotMissedInConstraints) {
    EXPECT_EQ(Read("features\n r\n  optional\n   a b\n   c\nconstraints\n a => c\n c => => c\n"),
              "4 60718, 8 60719");
}

} // namespace
} // namespace trellis::test
