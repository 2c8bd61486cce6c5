#include "support/Program.h"
#include "support/StoredDatabase.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

// Whole flows of a user who makes parts configurable and takes that away again, by the program alone: each run of
// it is a restart. What the messages said is compared with what the file then holds.

namespace {

using trellis::test::Program;
using trellis::test::ProgramResult;
using trellis::test::StoredDatabase;
using trellis::test::TemporaryFolder;

const char* const Structure = "record,id,number,revision,name,parent,child,position\n"
                              "part,b,BIKE,A,Bike,,,\n"
                              "part,f,FRAME,A,Frame,,,\n"
                              "part,w,WHEEL,A,Wheel,,,\n"
                              "link,,,,,b,f,10\n"
                              "link,,,,,b,w,20\n";

class ConfigurabilityJourneyTest : public testing::Test {
protected:
    ConfigurabilityJourneyTest() {
        EXPECT_EQ(Trellis({"db", "create"}).exitCode, 0);
        const ProgramResult import = Trellis({"import", "structure", _folder.Write("bike.csv", Structure)});
        EXPECT_EQ(import.exitCode, 0) << import.messages;
    }

    std::string File() const { return _folder.Path("bikes.db"); }
    StoredDatabase Stored() const { return StoredDatabase(File()); }

    ProgramResult Trellis(std::vector<std::string> arguments, const std::string& input = "") const {
        arguments.insert(arguments.begin(), {"--database", File()});
        return _program.Run(arguments, input);
    }
    // Plays a script in a process of its own, and gives its exit code; the transcript is shown when it differs.
    int Play(const std::string& script) {
        const ProgramResult result = Trellis({"script", "-"}, script);
        _transcript = result.output + result.messages;
        return result.exitCode;
    }
    bool Shown(const std::string& text) const { return _transcript.find(text) != std::string::npos; }

    int ConfigurableParts() const { return Stored().Count("configurable_part"); }
    // As somebody would have left it who put the part into a range of numbers.
    void GiveEffectivity(const std::string& number) const {
        Stored().Run("INSERT INTO effectivity SELECT 5000 + id, 1, 'test', 0, id, 'range', '', NULL, '', '', "
                     "0, 1, 9, '', '',"
                     " '', '', 0, '', '', 0 FROM config_item WHERE status = 'C' AND design_uuid ="
                     " (SELECT uuid FROM part WHERE number = '" +
                     number + "')");
    }
    void AddPerson(const std::string& name, const std::string& privilege) const {
        if (Stored().Count("role") == 0) {
            EXPECT_EQ(Trellis({"db", "role", "engineer"}).exitCode, 0);
        }
        EXPECT_EQ(Trellis({"db", "person", name, "--role", "engineer", "--privilege", privilege}).exitCode,
                  0);
    }

    TemporaryFolder _folder;
    Program _program;
    std::string _transcript;
};

TEST_F(ConfigurabilityJourneyTest, APartIsMadeConfigurableOnceAndStaysSo) {
    EXPECT_EQ(Play("select BIKE\ncall SetConfigurable\nexpect nothing\nunsaved\n"), 0) << _transcript;
    EXPECT_EQ(ConfigurableParts(), 1);
    EXPECT_EQ(Play("select BIKE\nshow\ncall SetConfigurable\nexpect 20267\n"), 0) << _transcript;
    EXPECT_TRUE(Shown("[configurable]")) << _transcript;
    EXPECT_EQ(ConfigurableParts(), 1);
}

TEST_F(ConfigurabilityJourneyTest, WithEffectivitiesTheUserIsAskedAndANoKeepsAll) {
    EXPECT_EQ(Play("select BIKE\ncall SetConfigurable\nselect FRAME\ncall SetConfigurable\n"), 0)
        << _transcript;
    GiveEffectivity("BIKE");
    ASSERT_EQ(Stored().Count("effectivity"), 1);

    // No on the first does not spare the second, which has no effectivity and is not asked about.
    EXPECT_EQ(Play("answer 2\nselect BIKE WHEEL FRAME\ncall UnSetConfigurable\nexpect 20296\n"), 0)
        << _transcript;
    EXPECT_TRUE(Shown("BIKE")) << _transcript;
    EXPECT_EQ(ConfigurableParts(), 1);
    EXPECT_EQ(Stored().Count("effectivity"), 1);

    EXPECT_EQ(Play("answer 1\nselect BIKE\ncall UnSetConfigurable\nexpect 20296\n"), 0) << _transcript;
    EXPECT_EQ(ConfigurableParts(), 0);
    EXPECT_EQ(Stored().Count("effectivity"), 0);
    EXPECT_EQ(Play("select BIKE\ncall UnSetConfigurable\nexpect 20295\n"), 0) << _transcript;
}

TEST_F(ConfigurabilityJourneyTest, ARefusedRightHoldsUntilThePrivilegeOverridesIt) {
    AddPerson("one", "1");
    AddPerson("two", "2");
    AddPerson("nine", "9");
    EXPECT_EQ(Trellis({"db", "right", "refuse", "Set"}).exitCode, 0);
    EXPECT_EQ(Trellis({"db", "right", "refuse", "Unset"}).exitCode, 0);
    AddPerson("ten", "10");

    EXPECT_EQ(Play("login one\nselect BIKE\ncall SetConfigurable\n"), 1) << _transcript;
    EXPECT_TRUE(Shown("BIKE") && Shown("Set")) << _transcript;
    EXPECT_EQ(ConfigurableParts(), 0);
    EXPECT_EQ(Play("login two\nselect BIKE\ncall SetConfigurable\nexpect nothing\n"), 0) << _transcript;
    EXPECT_EQ(ConfigurableParts(), 1);

    EXPECT_EQ(Play("login nine\nselect BIKE\ncall UnSetConfigurable\n"), 1) << _transcript;
    EXPECT_EQ(ConfigurableParts(), 1);
    EXPECT_EQ(Play("login ten\nselect BIKE\ncall UnSetConfigurable\nexpect nothing\n"), 0) << _transcript;
    EXPECT_EQ(ConfigurableParts(), 0);
}

TEST_F(ConfigurabilityJourneyTest, MilestoneRightsKnowNoOverride) {
    AddPerson("one", "1");
    EXPECT_EQ(Trellis({"db", "right", "refuse", "ManageDateMilestone"}).exitCode, 0);
    AddPerson("ten", "10");
    EXPECT_EQ(
        Play("login ten\nselect BIKE\ncall SetConfigurable\ncall OpenMilestoneManagerRange\nexpect 60001\n"
             "call OpenMilestoneManagerDate\n"),
        1);
    EXPECT_TRUE(Shown("ManageDateMilestone") || Shown("date milestone")) << _transcript;
}

TEST_F(ConfigurabilityJourneyTest, ADictionaryIsDeletedOnlyAfterAYes) {
    const std::string dictionary =
        _folder.Write("options.csv", "record,category,name,description,mandatory,exclusive,default\n"
                                     "category,,Colour,,yes,yes,\n"
                                     "option,Colour,Red,,,,yes\n"
                                     "option,Colour,Blue,,,,\n");
    EXPECT_EQ(Play("select BIKE\ncall SetConfigurable\ncall DeleteDictionary\nexpect 20297\n"), 0)
        << _transcript;
    const ProgramResult import = Trellis({"import", "dictionary", dictionary, "--product", "BIKE"});
    EXPECT_EQ(import.exitCode, 0) << import.messages;
    EXPECT_EQ(Stored().Count("effectivity"), 2);

    EXPECT_EQ(Play("answer 2\nselect BIKE\ncall DeleteDictionary\nexpect 50060\nshow\n"), 0) << _transcript;
    EXPECT_TRUE(Shown("1 category and 2 options")) << _transcript;
    EXPECT_EQ(Play("answer 1\nselect BIKE\ncall DeleteDictionary\nexpect 50060\nshow\n"), 0) << _transcript;
    EXPECT_TRUE(Shown("[configurable]")) << _transcript;
    EXPECT_EQ(Stored().Count("effectivity"), 0);
    EXPECT_EQ(Stored().Count("category"), 0);
}

TEST_F(ConfigurabilityJourneyTest, ADictionaryOutlivesTheLossOfConfigurability) {
    const std::string dictionary =
        _folder.Write("options.csv", "record,category,name\ncategory,,Colour\noption,Colour,Red\n");
    EXPECT_EQ(Play("select BIKE\ncall SetConfigurable\n"), 0) << _transcript;
    EXPECT_EQ(Trellis({"import", "dictionary", dictionary, "--product", "BIKE"}).exitCode, 0);
    EXPECT_EQ(Play("select BIKE\ncall UnSetConfigurable\ncall SetConfigurable\nshow\n"), 0) << _transcript;
    EXPECT_TRUE(Shown("1 category and 1 option]")) << _transcript;
}

TEST_F(ConfigurabilityJourneyTest, OperationsToComeCheckAndThenSaySo) {
    EXPECT_EQ(Play("select BIKE\n"
                   "call OpenCategoryManager\nexpect 20265\n"
                   "call OpenRuleManager\nexpect 20265\n"
                   "call CleanDatabase\nexpect 20265\n"
                   "call SetConfigurable\n"
                   "call OpenRuleManager\nexpect 20297\n"
                   "call OpenCategoryManager\nexpect 60001\n"
                   "call Usage\nexpect 60001\n"
                   "call SetDefaultCH\nexpect 60001\n"
                   "select BIKE FRAME\n"
                   "call SetConfigHandler\nexpect 20269\n"
                   "call OpenMilestoneManagerDate\nexpect 60001\n"
                   "call OpenCategoryManager\nexpect 20265\n"),
              0)
        << _transcript;
    EXPECT_TRUE(Shown("OpenCategoryManager")) << _transcript;
}

} // namespace
