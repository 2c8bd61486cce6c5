#include "support/Program.h"
#include "support/StoredDatabase.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>

namespace {

using trellis::test::Program;
using trellis::test::ProgramResult;
using trellis::test::StoredDatabase;
using trellis::test::TemporaryFolder;

const char* const Structure = "record,id,number,name,link_id,parent,child\n"
                              "part,b,BIKE,Bike,,,\n"
                              "part,m,MOTOR,Motor,,,\n"
                              "part,w,WHEEL,Wheel,,,\n"
                              "part,l,LAMP,Lamp,,,\n"
                              "link,,,,b/1,b,m\n"
                              "link,,,,b/2,b,w\n"
                              "link,,,,b/3,b,w\n"
                              "link,,,,b/4,b,l\n";

const char* const Dictionary = "record,category,name,mandatory,exclusive\n"
                               "category,,Drive,yes,yes\n"
                               "option,Drive,Mid motor,,\n"
                               "option,Drive,No motor,,\n"
                               "category,,Battery,no,yes\n"
                               "option,Battery,500 Wh,,\n"
                               "option,Battery,750 Wh,,\n"
                               "category,,Light,no,yes\n"
                               "option,Light,Dynamo 2.0,,\n"
                               "option,Light,Main battery,,\n";

const char* const Rules = "rule \"power\": if (\"Drive\".\"Mid motor\") then \"Battery\".\"750 Wh\"\n"
                          "rule \"lamp\": if (\"Main battery\") then not \"No motor\"\n";

class RuleCommandsTest : public testing::Test {
protected:
    RuleCommandsTest() {
        Fine({"db", "create"});
        Fine({"import", "structure", _folder.Write("s.csv", Structure)});
        Trellis({"script", "-"}, "select BIKE\ncall SetConfigurable\n");
        Fine({"import", "dictionary", _folder.Write("d.csv", Dictionary), "--product", "BIKE"});
        Import(Rules);
    }
    ProgramResult Trellis(std::vector<std::string> arguments, const std::string& input = "") const {
        arguments.insert(arguments.begin(), {"--database", _folder.Path("a.db")});
        return _program.Run(arguments, input);
    }
    ProgramResult Fine(const std::vector<std::string>& arguments) const {
        const ProgramResult result = Trellis(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.messages;
        return result;
    }
    void Import(const std::string& rules) const {
        Fine({"import", "rules", _folder.Write("a.rules", rules), "--product", "BIKE", "--replace"});
    }
    ProgramResult Configure(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"configure", "--product", "BIKE"});
        return Trellis(arguments);
    }
    nlohmann::json ConfigureJson(std::vector<std::string> arguments, int exitCode = 0) const {
        arguments.insert(arguments.begin(), "--json");
        const ProgramResult result = Configure(arguments);
        EXPECT_EQ(result.exitCode, exitCode) << result.messages;
        return nlohmann::json::parse(result.output);
    }
    // Puts an effectivity on the link to the lamp, of an option or of several that must stand together.
    void LimitLampTo(int id, const std::vector<std::string>& options) const {
        const std::string number = std::to_string(990000 + id);
        const bool isPack = options.size() > 1;
        std::string sql = "INSERT INTO effectivity SELECT " + number + ", 1, '', 0, id, '" +
                          (isPack ? "pack', '" : "option', '" + options[0]) +
                          "', NULL, '', '', 0, 0, 0, '', '', '', '', 0, '', '', 0 FROM config_item LIMIT 1; "
                          "INSERT INTO link_effectivity SELECT " +
                          number + ", 1, '', 0, id, " + number +
                          " FROM link WHERE child_id = (SELECT id FROM part WHERE number = 'LAMP');";
        for (std::size_t i = 0; isPack && i < options.size(); ++i)
            sql += "INSERT INTO effectivity_option SELECT " + number + std::to_string(i) +
                   ", 1, '', 0, config_item_id, id, " + std::to_string(i) + ", '" + options[i] +
                   "' FROM effectivity WHERE id = " + number + ";";
        StoredDatabase(_folder.Path("a.db")).Run(sql);
    }

    TemporaryFolder _folder;
    Program _program;
};

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::vector<std::string> OptionsOf(const nlohmann::json& list) {
    std::vector<std::string> options;
    for (const nlohmann::json& each : list)
        options.push_back(each["option"]);
    return options;
}

using Names = std::vector<std::string>;

TEST_F(RuleCommandsTest, WhatFollowsIsToldWithTheRulesThatSaySo) {
    const nlohmann::json json = ConfigureJson({"--select", "Mid motor", "--why", "Battery.500 Wh"});
    EXPECT_EQ(OptionsOf(json["chosen"]), Names{"Mid motor"});
    EXPECT_EQ(OptionsOf(json["follows"]), Names{"750 Wh"});
    EXPECT_EQ(OptionsOf(json["excluded"]), (Names{"No motor", "500 Wh"}));
    EXPECT_EQ(json["open"][0]["category"], "Light");
    EXPECT_FALSE(json["open"][0]["needed"]);
    EXPECT_TRUE(json["conflict"].is_null());
    EXPECT_EQ(json["follows"][0]["reasons"][1]["name"], "power");
    EXPECT_EQ(json["why"]["state"], "rejected by the rules");
    EXPECT_EQ(json["why"]["reasons"].size(), 3u) << json["why"];

    const std::string text = Configure({"--select", "Mid motor", "--why", "500 Wh"}).output;
    for (const char* part : {"Chosen by the rules\n  Battery: 750 Wh\n", "rule \"power\"\n",
                             "\n\"Battery\".\"500 Wh\" is rejected by the rules, because of\n",
                             "category \"Battery\" takes one option at most"})
        EXPECT_TRUE(Has(text, part)) << part << "\n" << text;
    EXPECT_FALSE(Has(text, "\x1b"));
}

TEST_F(RuleCommandsTest, WithNothingChosenANeededCategoryIsOpen) {
    const nlohmann::json json = ConfigureJson({});
    EXPECT_TRUE(json["open"][0]["needed"]);
    EXPECT_EQ(OptionsOf(json["open"][0]["options"]), (Names{"Mid motor", "No motor"}));
}

TEST_F(RuleCommandsTest, AConflictTellsReasonsAndWaysOut) {
    const nlohmann::json json =
        ConfigureJson({"--select", "No motor", "Main battery", "--reject", "500 Wh", "--repairs"}, 1);
    EXPECT_EQ(OptionsOf(json["conflict"]["choices"]), (Names{"No motor", "Main battery"}));
    EXPECT_EQ(json["conflict"]["reasons"][2]["name"], "lamp");
    EXPECT_EQ(json["conflict"]["repairs"].size(), 2u);
    EXPECT_FALSE(json.contains("follows"));

    const ProgramResult text = Configure({"--select", "No motor", "--select", "Main battery", "--repairs"});
    EXPECT_EQ(text.exitCode, 1);
    EXPECT_TRUE(Has(text.output, "This cannot stand together\n  your choice \"Drive\".\"No motor\"\n"));
    EXPECT_TRUE(Has(text.output, "lets the rest stand\n  \"Drive\".\"No motor\"\n")) << text.output;
}

TEST_F(RuleCommandsTest, AnOptionIsFoundHoweverItIsWritten) {
    for (const char* word : {"Dynamo 2.0", "Light.Dynamo 2.0", "\"Light\".\"Dynamo 2.0\"", "\"Dynamo 2.0\""})
        EXPECT_EQ(OptionsOf(ConfigureJson({"--select", word})["chosen"]), Names{"Dynamo 2.0"}) << word;
}

TEST_F(RuleCommandsTest, UnknownNamesAreWrongUseWithASuggestion) {
    const ProgramResult options =
        Configure({"--select", "Mid moter", "--reject", "Light.Dinamo 2.0", "--why", "x"});
    EXPECT_EQ(options.exitCode, 2);
    EXPECT_TRUE(options.output.empty());
    for (const char* part :
         {"60749: ", "Did you mean \"Mid motor\"?", "Did you mean \"Light.Dynamo 2.0\"?", "\"x\"."})
        EXPECT_TRUE(Has(options.messages, part)) << options.messages;
    for (const char* command : {"configure", "check"}) {
        const ProgramResult product = Trellis({command, "--product", "TRAIN"});
        EXPECT_EQ(product.exitCode, 2);
        EXPECT_TRUE(Has(product.messages, "60603: ")) << product.messages;
        EXPECT_EQ(Trellis({command}).exitCode, 2);
    }
    EXPECT_TRUE(Has(Trellis({"check", "--product", "WHEEL"}).messages, "20265: "));
    EXPECT_TRUE(Has(Trellis({"configure", "--product", "corporate", "--bom"}).messages, "60633: "));
}

TEST_F(RuleCommandsTest, TheBillOfMaterialLeavesOutLinksOfRejectedOptions) {
    const auto parts = [&](const std::vector<std::string>& choices) {
        std::string text;
        std::vector<std::string> arguments = {"--bom"};
        arguments.insert(arguments.end(), choices.begin(), choices.end());
        const nlohmann::json json = ConfigureJson(arguments);
        for (const nlohmann::json& part : json["bill of material"])
            text += std::to_string(part["quantity"].get<int>()) + " " + part["name"].get<std::string>() +
                    (part["depends on open options"] ? "?; " : "; ");
        return text;
    };
    EXPECT_EQ(parts({}), "1 MOTOR Motor; 2 WHEEL Wheel; 1 LAMP Lamp; ");
    LimitLampTo(1, {"Main battery"});
    EXPECT_EQ(parts({}), "1 MOTOR Motor; 2 WHEEL Wheel; 1 LAMP Lamp?; ");
    EXPECT_EQ(parts({"--select", "Main battery"}), "1 MOTOR Motor; 2 WHEEL Wheel; 1 LAMP Lamp; ");
    EXPECT_EQ(parts({"--select", "No motor"}), "1 MOTOR Motor; 2 WHEEL Wheel; ");
    EXPECT_TRUE(Has(Configure({"--bom", "--select", "No motor"}).output,
                    "Of 1 links that are limited to options, 1 fell away"));
    LimitLampTo(2, {"No motor", "Dynamo 2.0"});
    EXPECT_EQ(parts({"--select", "Main battery"}), "1 MOTOR Motor; 2 WHEEL Wheel; 1 LAMP Lamp; ");
    EXPECT_EQ(parts({"--select", "No motor"}), "1 MOTOR Motor; 2 WHEEL Wheel; 1 LAMP Lamp?; ");
    EXPECT_EQ(parts({"--select", "No motor", "Dynamo 2.0"}), "1 MOTOR Motor; 2 WHEEL Wheel; 1 LAMP Lamp; ");
    EXPECT_EQ(parts({"--select", "No motor", "--reject", "Dynamo 2.0"}), "1 MOTOR Motor; 2 WHEEL Wheel; ");
}

TEST_F(RuleCommandsTest, CheckTellsFindingsWithReasons) {
    EXPECT_EQ(Fine({"check", "--product", "BIKE"}).output, "nothing is wrong\n");
    Import(std::string(Rules) + "rule \"never\": if (\"500 Wh\") then not \"500 Wh\"\n"
                                "rule \"again\": if (\"Mid motor\") then not \"No motor\"\n");
    const ProgramResult text = Trellis({"check", "--product", "BIKE"});
    EXPECT_EQ(text.exitCode, 1);
    for (const char* part : {"can never be chosen: \"Battery\".\"500 Wh\"\n  rule \"never\": ",
                             "says nothing new: rule \"again\": ", "\nfindings: 2\n"})
        EXPECT_TRUE(Has(text.output, part)) << part << "\n" << text.output;
    const ProgramResult result = Trellis({"check", "--product", "BIKE", "--json"});
    EXPECT_EQ(result.exitCode, 1);
    const nlohmann::json json = nlohmann::json::parse(result.output);
    EXPECT_EQ(json[0]["kind"], "never chosen");
    EXPECT_EQ(json[0]["reasons"][0]["name"], "never");
}

TEST_F(RuleCommandsTest, RulesAreExportedToTheOutputOrToAWholeFile) {
    const std::string file = _folder.Write("out.rules", "what stood here before");
    EXPECT_EQ(Fine({"export", "rules", "--product", "BIKE"}).output, Rules);
    Fine({"export", "rules", file, "--product", "BIKE"});
    EXPECT_EQ(TemporaryFolder::Read(file), Rules);
    for (const auto& entry : std::filesystem::directory_iterator(_folder.Path()))
        EXPECT_FALSE(Has(entry.path().filename(), ".new")) << "the file was replaced by one that is gone";
    EXPECT_EQ(Trellis({"export", "rules", _folder.Path(), "--product", "BIKE"}).exitCode, 3);
    const ProgramResult failed =
        Trellis({"export", "rules", _folder.Path("nowhere/out.rules"), "--product", "BIKE"});
    EXPECT_EQ(failed.exitCode, 3);
    EXPECT_TRUE(Has(failed.messages, "60631: ")) << failed.messages;
}

TEST_F(RuleCommandsTest, ABadFileOfRulesIsRefusedWholeWithEveryLine) {
    const std::string file = _folder.Write("bad.rules", "rule \"good\": if (\"750 Wh\") then \"Mid motor\"\n"
                                                        "rule \"bad\": if (\"700 Wh\") then \"Mid motor\"\n"
                                                        "rul: x\n");
    const ProgramResult result = Trellis({"import", "rules", file, "--product", "BIKE"});
    EXPECT_EQ(result.exitCode, 1);
    for (const char* part :
         {"line 2: ", "At character 17: ", "Did you mean \"500 Wh\"?", "line 3: ", "60203: "})
        EXPECT_TRUE(Has(result.messages, part)) << part << "\n" << result.messages;
    EXPECT_EQ(Fine({"export", "rules", "--product", "BIKE"}).output, Rules);
    const std::string missing = _folder.Path("missing.rules");
    EXPECT_EQ(Trellis({"import", "rules", missing, "--product", "BIKE"}).exitCode, 3);
}

TEST_F(RuleCommandsTest, TheSampleIsConfiguredByRulesWithoutFindings) {
    const std::string samples = TRELLIS_SAMPLES "/cargo-bikes/";
    Fine({"import", "structure", samples + "structure.csv"});
    Fine({"script", samples + "make-configurable.script"});
    Fine({"import", "dictionary", samples + "dictionary.csv", "--product", "CB-LT"});
    Fine({"import", "rules", samples + "long-tail.rules", "--product", "CB-LT"});
    EXPECT_EQ(Fine({"check", "--product", "CB-LT"}).output, "nothing is wrong\n");
    const std::string text =
        Fine({"configure", "--product", "CB-LT", "--select", "Child seat rear", "--bom", "--levels", "1"})
            .output;
    EXPECT_TRUE(Has(text, "Mudguards: Mudguards long\n")) << text;
    EXPECT_TRUE(Has(text, "1   SYS-14 A Stand\n")) << text;
}

} // namespace
