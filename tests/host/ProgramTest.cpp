#include "support/Program.h"
#include "support/StoredDatabase.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

using trellis::test::Program;
using trellis::test::ProgramResult;
using trellis::test::StoredDatabase;
using trellis::test::TemporaryFolder;

class ProgramTest : public testing::Test {
protected:
    std::string File() const { return _folder.Path("a.db"); }
    ProgramResult Trellis(std::vector<std::string> arguments, const std::string& input = "") const {
        arguments.insert(arguments.begin(), {"--database", File()});
        return _program.Run(arguments, input);
    }
    void CreateWithPart() const {
        ASSERT_EQ(Trellis({"db", "create"}).exitCode, 0);
        const ProgramResult import = Trellis(
            {"import", "structure", _folder.Write("a.csv", "record,id,number,name\npart,b,BIKE,Bike\n")});
        ASSERT_EQ(import.exitCode, 0) << import.messages;
    }

    TemporaryFolder _folder;
    Program _program;
};

// The exit code, the number and what the text must name.
void ExpectFailure(const ProgramResult& result, int exitCode, const std::string& number,
                   const std::string& named) {
    EXPECT_EQ(result.exitCode, exitCode);
    EXPECT_NE(result.messages.find(number + ": "), std::string::npos) << result.messages;
    EXPECT_NE(result.messages.find(named), std::string::npos) << result.messages;
}

TEST_F(ProgramTest, HelpAndVersionAreFineAndWrongUseIsTold) {
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{"--help"},
                                               {"--version"},
                                               {"db", "--help"},
                                               {"import", "structure", "--help"},
                                               {"script", "--verbs"}}) {
        const ProgramResult result = _program.Run(arguments);
        EXPECT_EQ(result.exitCode, 0) << arguments.front() << result.messages;
        EXPECT_FALSE(result.output.empty()) << arguments.front();
    }
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{"nonsense"},
                                               {"db"},
                                               {"import", "structure"},
                                               {"script"},
                                               {"tree", "--levels", "-1"},
                                               {"--no-such"}}) {
        const ProgramResult result = _program.Run(arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments.front();
        EXPECT_FALSE(result.messages.empty()) << arguments.front();
    }
}

TEST_F(ProgramTest, WithoutADisplayItNamesTheHeadlessWays) {
    const ProgramResult result = _program.Run({});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_NE(result.messages.find("script"), std::string::npos);
    EXPECT_EQ(std::count(result.messages.begin(), result.messages.end(), '\n'), 1);
}

TEST_F(ProgramTest, AnExistingDatabaseIsNeverOverwritten) {
    CreateWithPart();
    ExpectFailure(Trellis({"db", "create"}), 3, "60302", File());
    EXPECT_EQ(StoredDatabase(File()).Count("part"), 1);
}

TEST_F(ProgramTest, ADatabaseThatIsNotThereOrIsNoneIsTold) {
    ExpectFailure(Trellis({"db", "info"}), 3, "20901", File());
    EXPECT_FALSE(std::filesystem::exists(File()));
    _folder.Write("a.db", "This is no database, though it is long enough to be looked at as one.");
    ExpectFailure(Trellis({"tree"}), 3, "20901", File());
}

TEST_F(ProgramTest, ADatabaseOfANewerVersionIsRefusedUntouched) {
    CreateWithPart();
    StoredDatabase(File()).Run("UPDATE store_info SET schema_version = 9999");
    ExpectFailure(Trellis({"tree"}), 3, "20912", File());
    EXPECT_EQ(StoredDatabase(File()).Run("SELECT schema_version FROM store_info"), "9999");
}

TEST_F(ProgramTest, ARefusedSaveNamesWhatAndWritesNothing) {
    CreateWithPart();
    StoredDatabase(File()).Run("CREATE TRIGGER full BEFORE INSERT ON config_item BEGIN "
                               "SELECT RAISE(ABORT, 'the disk is full'); END");
    const ProgramResult result = Trellis({"script", "-"}, "select BIKE\ncall SetConfigurable\nunsaved\n");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.output.find("20903"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("the disk is full"), std::string::npos) << result.output;
    EXPECT_EQ(StoredDatabase(File()).Count("configurable_part"), 0);
}

TEST_F(ProgramTest, FilesThatCannotBeReadAreNamed) {
    CreateWithPart();
    const std::string missing = _folder.Path("missing.csv");
    ExpectFailure(Trellis({"import", "structure", missing}), 3, "60202", missing);
    ExpectFailure(Trellis({"import", "dictionary", missing, "--product", "BIKE"}), 3, "60202", missing);
    ExpectFailure(Trellis({"script", missing}), 3, "60620", missing);
    ExpectFailure(Trellis({"script", _folder.Path()}), 3, "60620", _folder.Path());
}

TEST_F(ProgramTest, ABadStructureFileIsRefusedWholeWithEveryLine) {
    CreateWithPart();
    const std::string file = _folder.Write("bad.csv", "record,id,number,name,parent,child\n"
                                                      "part,n,NEW,New,,\n"
                                                      "link,,,,n,nowhere\n"
                                                      "\"part,x\n");
    const ProgramResult result = Trellis({"import", "structure", file});
    ExpectFailure(result, 1, "60203", file);
    EXPECT_NE(result.messages.find("line 3: "), std::string::npos) << result.messages;
    EXPECT_NE(result.messages.find("line 4: "), std::string::npos) << result.messages;
    EXPECT_EQ(StoredDatabase(File()).Count("part"), 1);
}

TEST_F(ProgramTest, WrongSettingsKeepItFromStarting) {
    const std::string key = "ZOLWVTA.QRD.UPPERCASE_CFG_ID";
    ExpectFailure(_program.Run({"--set", key + "=perhaps", "config"}), 3, "60012", key);
    ExpectFailure(_program.Run({"--set", "nonsense", "config"}), 3, "60601", "nonsense");

    const std::string file = _folder.Write("trellis.conf", "LANGUAGE\n");
    _program.environment["TRELLIS_SITE_FOLDER"] = _folder.Path();
    ExpectFailure(_program.Run({"config"}), 3, "60011", file + ", line 1");
}

TEST_F(ProgramTest, TheDatabaseOfTheSiteWinsOverTheCommandLine) {
    CreateWithPart();
    _folder.Write("trellis.conf", "DATABASE = " + File() + "\n");
    _program.environment["TRELLIS_SITE_FOLDER"] = _folder.Path();
    const ProgramResult result = _program.Run({"--database", _folder.Path("other.db"), "tree"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.messages.find("60602"), std::string::npos) << result.messages;
    EXPECT_NE(result.output.find("BIKE"), std::string::npos);
}

TEST_F(ProgramTest, MissingTextsAreToldWithTheirFolder) {
    _program.environment["TRELLIS_RESOURCES"] = _folder.Path("nowhere");
    ExpectFailure(_program.Run({"config"}), 3, "60605", _folder.Path("nowhere"));
}

TEST_F(ProgramTest, ConfigTellsWhereEachValueComesFrom) {
    _program.environment["TRELLIS_ZOLWVTA_QRD_UPPERCASE_CFG_ID"] = "on";
    const std::string output = _program.Run({"--json", "config"}).output;
    EXPECT_NE(output.find("environment, TRELLIS_ZOLWVTA_QRD_UPPERCASE_CFG_ID"), std::string::npos);
    EXPECT_NE(output.find("built in"), std::string::npos);
}

TEST_F(ProgramTest, AdministratorValuesAreThoseOfTheDatabase) {
    CreateWithPart();
    EXPECT_EQ(Trellis({"db", "value", "NO_SUCH_VALUE", "x"}).exitCode, 2);
    EXPECT_EQ(Trellis({"db", "value", "QRD_PROPOSED_EFF", "Y"}).exitCode, 0);
    EXPECT_NE(Trellis({"config"}).output.find("QRD_PROPOSED_EFF = Y\n"), std::string::npos);
    EXPECT_EQ(Trellis({"db", "value", "QRD_PROPOSED_EFF", ""}).exitCode, 0);
    EXPECT_NE(Trellis({"config"}).output.find("(not set: off)"), std::string::npos);
}

TEST_F(ProgramTest, TheFontIsASettingThatTheCommandLineOverrides) {
    _program.environment["TRELLIS_FONT_SIZE"] = "14";
    EXPECT_NE(_program.Run({"config"}).output.find("FONT.SIZE = 14\n"), std::string::npos);
    const std::string output = _program.Run({"--font-size", "12", "--font", "Sans", "config"}).output;
    EXPECT_NE(output.find("FONT.SIZE = 12\n"), std::string::npos);
    EXPECT_NE(output.find("FONT.FAMILY = Sans\n"), std::string::npos);
    for (const char* wrong : {"large", "0", "12pt"})
        EXPECT_EQ(_program.Run({"--font-size", wrong, "config"}).exitCode, 2) << wrong;
}

TEST_F(ProgramTest, CheckFindsWhatAnotherProgramBroke) {
    CreateWithPart();
    EXPECT_EQ(Trellis({"db", "check"}).exitCode, 0);
    StoredDatabase(File()).Run(
        "INSERT INTO link SELECT 77, 1, '', 0, uuid, 'x', id, 4711, 'lost', 1, '', '' FROM part");
    const ProgramResult result = Trellis({"db", "check"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_FALSE(result.output.empty());
}

} // namespace
