#include "model/ModelFixture.h"
#include "store/Workspace.h"

namespace trellis::test {
namespace {

class DatabaseSessionTest : public ModelFixture {
protected:
    std::string Damage() {
        ZOLListValZOLUnicodeString problems;
        EXPECT_TRUE(DatabaseSession::Check(problems, error));
        std::string text;
        for (const ZOLUnicodeString& problem : problems)
            text += problem.Bytes() + "\n";
        return text;
    }
    void Execute(const std::string& sql) { Workspace::Current()->Session().Execute(sql); }
};

TEST_F(DatabaseSessionTest, DescribingTellsFileNameAndCounts) {
    ASSERT_TRUE(Import("parent,child\nbike,frame\nbike,wheel\n"));
    EXPECT_EQ(Stored("file"), path);
    EXPECT_EQ(Stored("name"), "bikes");
    EXPECT_EQ(Stored("parts"), "3");
    EXPECT_EQ(Stored("links"), "2");
    EXPECT_EQ(Stored("dictionaries"), "1");
}

TEST_F(DatabaseSessionTest, AFailedOpenLeavesTheOpenDatabase) {
    EXPECT_FALSE(DatabaseSession::Open(folder.Path("missing"), error));
    EXPECT_EQ(error.GetCode(), 20901);
    EXPECT_GT(error.GetMode(), 0);
    EXPECT_TRUE(DatabaseSession::IsOpen());
    EXPECT_EQ(Stored("name"), "bikes");
    ZOLGYRError second;
    EXPECT_FALSE(DatabaseSession::Create(path, second));
    EXPECT_EQ(second.GetCode(), 60302);
}

TEST_F(DatabaseSessionTest, WithoutADatabaseTheQuestionsSaySo) {
    DatabaseSession::Close();
    ZOLListValZOLUnicodeString problems;
    EXPECT_FALSE(DatabaseSession::Check(problems, error));
    EXPECT_EQ(error.GetCode(), 60201);
    EXPECT_TRUE(DatabaseSession::Describe(error).empty());
    EXPECT_TRUE(DatabaseSession::UnsavedChanges().empty());
}

TEST_F(DatabaseSessionTest, ASoundDatabaseHasNothingToTell) {
    ASSERT_TRUE(Import("parent,child\nbike,frame\nbike,wheel\nframe,wheel\n"));
    EXPECT_EQ(Damage(), "");
}

TEST_F(DatabaseSessionTest, DamageIsFoundAndNamed) {
    ASSERT_TRUE(Import("parent,child,link_id\nbike,frame,f\nframe,tube,t\ntube,clamp,c\n"));
    Execute("PRAGMA foreign_keys=OFF");
    Execute("UPDATE link SET child_id = (SELECT id FROM part WHERE number = 'frame') WHERE client_identifier "
            "= 't'");
    Execute("UPDATE link SET parent_id = 4711 WHERE client_identifier = 'c'");
    for (int i = 0; i < 2; ++i) {
        CategoryRow row;
        row.id = 10 + i;
        row.configItem = ConfigItemRow::CorporateId;
        row.name = "COLOR";
        Workspace::Current()->Session().Table<CategoryRow>().Insert(row);
    }
    const std::string damage = Damage();
    EXPECT_NE(damage.find("contains itself, or one that does: frame"), std::string::npos) << damage;
    EXPECT_NE(damage.find("contains itself, or one that does: bike"), std::string::npos) << damage;
    EXPECT_EQ(damage.find("does: clamp"), std::string::npos) << damage;
    EXPECT_NE(damage.find("refers to a missing one: link"), std::string::npos) << damage;
    EXPECT_NE(damage.find("twice in a dictionary: COLOR"), std::string::npos) << damage;
}

TEST_F(DatabaseSessionTest, UnsavedChangesAreListedByObjectAndCanBeDiscarded) {
    ASSERT_TRUE(Import("parent,child,link_id\nbike,frame,f\n"));
    CategoryRow row;
    row.configItem = ConfigItemRow::CorporateId;
    row.name = "COLOR";
    Workspace::Current()->Create(row);
    ZOLDMInstance link = Links(Part("bike"))[1];
    link.Delete(1, 1, 1, 1, 1);
    ConfigurablePartRow configurable;
    configurable.partUuid = Part("bike").GetUUId().Text();
    Workspace::Current()->Create(configurable);
    std::string changes;
    for (const UnsavedChange& change : DatabaseSession::UnsavedChanges())
        changes += std::to_string(static_cast<int>(change.kind)) + " " + change.what.Bytes() + " " +
                   change.object.Bytes() + ";";
    EXPECT_EQ(changes, "2 link f;0 configurable part bike;0 category COLOR;");
    EXPECT_TRUE(DatabaseSession::DiscardUnsaved(error));
    EXPECT_TRUE(DatabaseSession::UnsavedChanges().empty());
    EXPECT_GT(link.GetCoid(), 0);
}

} // namespace
} // namespace trellis::test
