// Selections that are kept in files between runs of the program.

#include "support/Program.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>

namespace {

using trellis::test::Program;
using trellis::test::ProgramResult;
using trellis::test::TemporaryFolder;
using Json = nlohmann::json;

const char* const Dictionary = "record,category,name,mandatory,exclusive\n"
                               "category,,Drive,yes,yes\n"
                               "option,Drive,Mid motor,,\n"
                               "option,Drive,No motor,,\n"
                               "category,,Battery,no,yes\n"
                               "option,Battery,500 Wh,,\n"
                               "option,Battery,750 Wh,,\n";

class ConfigureFilesTest : public testing::Test {
protected:
    ConfigureFilesTest() {
        Fine({"db", "create"});
        Fine({"import", "structure", _folder.Write("s.csv", "record,id,number\npart,b,BIKE\n")});
        EXPECT_EQ(Trellis({"script", "-"}, "select BIKE\ncall SetConfigurable\n").exitCode, 0);
        Fine({"import", "dictionary", _folder.Write("d.csv", Dictionary), "--product", "BIKE"});
        Fine({"import", "rules", _folder.Write("a.rules", "rule: if (\"Mid motor\") then \"750 Wh\"\n"),
              "--product", "BIKE"});
    }
    ProgramResult Trellis(std::vector<std::string> arguments, const std::string& input = "") const {
        arguments.insert(arguments.begin(), {"--database", _folder.Path("a.db")});
        return Program().Run(arguments, input);
    }
    void Fine(const std::vector<std::string>& arguments) const {
        const ProgramResult result = Trellis(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.messages;
    }
    ProgramResult Configure(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--json", "configure", "--product", "BIKE"});
        return Trellis(arguments);
    }
    void ExpectRefused(const ProgramResult& result, int exitCode, const std::string& message) const {
        EXPECT_EQ(result.exitCode, exitCode) << result.messages;
        EXPECT_NE(result.messages.find(message), std::string::npos) << result.messages;
        EXPECT_EQ(result.output, "");
    }

    TemporaryFolder _folder;
    const std::string _file = _folder.Path("mine.json");
};

TEST_F(ConfigureFilesTest, WhatIsKeptIsTheSameSelectionAgainAndGrows) {
    const ProgramResult first = Configure({"--select", "Mid motor", "--reject", "500 Wh", "--keep", _file});
    EXPECT_EQ(first.exitCode, 0) << first.messages;
    EXPECT_EQ(Configure({"--selection", _file}).output, first.output);

    const Json kept = Json::parse(TemporaryFolder::Read(_file));
    EXPECT_EQ(kept["product"], "BIKE");
    EXPECT_EQ(kept["choices"].size(), 2U) << "what follows is found anew: " << kept;
    EXPECT_TRUE(kept["choices"][1]["rejected"].get<bool>());

    const std::string next = _folder.Path("next.json");
    const ProgramResult conflict =
        Configure({"--selection", _file, "--reject", "750 Wh", "--keep", next, "--repairs"});
    EXPECT_EQ(conflict.exitCode, 1);
    EXPECT_FALSE(Json::parse(conflict.output)["conflict"].is_null());
    EXPECT_EQ(Configure({"--selection", next, "--repairs"}).output, conflict.output)
        << "a conflict can be kept, and looked into later";
}

TEST_F(ConfigureFilesTest, AFileIsKeptOverItselfWithWhatTheWindowWroteIntoIt) {
    _folder.Write("mine.json", R"({"trellis selection": 1, "product": "BIKE", "ignored categories": ["Drive"],
        "choices": [{"category": "Battery", "option": "500 Wh", "rejected": true}]})");
    EXPECT_EQ(Configure({"--selection", _file, "--select", "750 Wh", "--keep", _file}).exitCode, 0);
    const Json kept = Json::parse(TemporaryFolder::Read(_file));
    EXPECT_EQ(kept["ignored categories"], Json::array({"Drive"})) << kept;
    EXPECT_EQ(kept["choices"].size(), 2U) << kept;
}

TEST_F(ConfigureFilesTest, OptionsThatAreGoneOrMovedAreToldAndTheFileStays) {
    const std::string content = R"({"trellis selection": 1, "choices": [
        {"category": "Battery", "option": "900 Wh"}, {"category": "Drive", "option": "500 Wh"},
        {"category": "Battery", "option": "750 Wh"}]})";
    _folder.Write("mine.json", content);
    const ProgramResult result = Configure({"--selection", _file, "--keep", _file});
    ExpectRefused(result, 2, "60749: There is no option \"Battery.900 Wh\".");
    ExpectRefused(result, 2, "60749: There is no option \"Drive.500 Wh\".");
    EXPECT_EQ(result.messages.find("750 Wh"), std::string::npos) << result.messages;
    EXPECT_EQ(TemporaryFolder::Read(_file), content);
}

TEST_F(ConfigureFilesTest, FilesThatCannotBeUsedAreToldByTheirNumber) {
    ExpectRefused(Configure({"--selection", _folder.Path("none.json")}), 2, "60634: ");
    ExpectRefused(Configure({"--selection", _folder.Path()}), 2, "60634: ");
    ExpectRefused(Configure({"--selection", _folder.Write("bad.json", "{]")}), 2, "60635: ");
    ExpectRefused(Configure({"--select", "500 Wh", "--keep", _folder.Path("no/folder.json")}), 3, "60631: ");
    ExpectRefused(Configure({"--select", "500 Wh", "--keep", _folder.Path()}), 3, "60631: ");
    EXPECT_TRUE(std::filesystem::is_directory(_folder.Path()));
}

} // namespace
