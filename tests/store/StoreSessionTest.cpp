#include "store/StoreFixture.h"

#include <filesystem>
#include <fstream>

namespace trellis::test {
namespace {

int CodeOfOpening(const std::string& url, std::vector<std::string>* parameters = nullptr) {
    try {
        StoreSession::Open(url);
    } catch (const StoreFailure& failure) {
        if (parameters)
            *parameters = failure.Parameters();
        return failure.Code();
    }
    return 0;
}

using StoreSessionTest = StoreFixture;

TEST_F(StoreSessionTest, ANewDatabaseHasACorporateDictionaryAndKeepsItsLeadingString) {
    const std::string leading = mine->Session().LeadingString();
    EXPECT_EQ(leading.size(), 8u);
    mine.reset();
    const auto again = Another();
    EXPECT_EQ(again->Session().LeadingString(), leading);
    EXPECT_EQ(again->Session().Name(), "bikes");
    EXPECT_EQ(again->Session().SchemaVersion(), StoreSession::NewestSchemaVersion());
    const auto corporate = again->Get<ConfigItemRow>(ConfigItemRow::CorporateId, error);
    ASSERT_TRUE(corporate);
    EXPECT_EQ(corporate->Row().designUuid, ConfigItemRow::CorporateDesign);
    EXPECT_EQ(corporate->Row().status, ConfigItemRow::Dictionary);
}

TEST_F(StoreSessionTest, CreatingNeverOverwrites) {
    try {
        StoreSession::Create(path);
        FAIL() << "an existing database was overwritten";
    } catch (const StoreFailure& failure) {
        EXPECT_EQ(failure.Code(), 60302);
    }
    EXPECT_EQ(CodeOfOpening(path), 0);
}

TEST_F(StoreSessionTest, ADatabaseOfANewerVersionIsRefusedByNameAndVersions) {
    mine->Session().Execute("UPDATE store_info SET schema_version = 4711");
    std::vector<std::string> parameters;
    EXPECT_EQ(CodeOfOpening(path, &parameters), 20912);
    EXPECT_EQ(parameters,
              (std::vector<std::string>{path, "4711", std::to_string(StoreSession::NewestSchemaVersion())}));
}

TEST_F(StoreSessionTest, WhatIsNoDatabaseIsRefusedAndLeftAlone) {
    const std::string words = folder.Write("notes.txt", std::string(5000, 'x'));
    const std::string empty = folder.Write("empty", "");
    const std::string foreign = folder.Path("foreign");
    std::filesystem::copy_file(empty, foreign);
    for (const std::string& url : {folder.Path("missing"), words, empty, foreign, folder.Path(),
                                   std::string("postgresql://host/base"), std::string("a\"b")}) {
        std::vector<std::string> parameters;
        EXPECT_EQ(CodeOfOpening(url, &parameters), 20901) << url;
        EXPECT_EQ(parameters.at(0), url);
    }
    EXPECT_EQ(TemporaryFolder::Read(words), std::string(5000, 'x'));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("missing")));
}

TEST_F(StoreSessionTest, ACutDatabaseIsUnreadable) {
    mine.reset();
    std::filesystem::resize_file(path, 2000);
    EXPECT_EQ(CodeOfOpening(path), 20901);
}

TEST_F(StoreSessionTest, ASecondWriterIsToldInPlainWordsAndMayTryAgain) {
    const auto other = Another();
    other->Session().Execute("PRAGMA busy_timeout=1"); // else it waits some seconds for the first
    NewCategory(*other, "COLOR");
    {
        const StoreTransaction first(mine->Session());
        EXPECT_FALSE(Save(*other));
        EXPECT_EQ(error.GetCode(), 20903);
        EXPECT_LE(error.GetMode(), 0);
        EXPECT_EQ(Parameter(0), path);
        EXPECT_EQ(Parameter(1), "another process is writing to it");
        EXPECT_TRUE(mine->Find(StoreQuery<CategoryRow>(), error).empty()) << "readers are never kept waiting";
    }
    EXPECT_TRUE(Save(*other));
}

TEST_F(StoreSessionTest, AReadOnlyDatabaseIsReadAndItsSavesAreRefusedForGood) {
    NewCategory(*mine, "COLOR");
    ASSERT_TRUE(Save(*mine));
    mine->Session().Execute("PRAGMA query_only=ON"); // rights of files do not bind the superuser
    ASSERT_TRUE(Category(*mine, "COLOR"));
    NewCategory(*mine, "SIZE");
    EXPECT_FALSE(Save(*mine));
    EXPECT_EQ(error.GetCode(), 20903);
    EXPECT_GT(error.GetMode(), 0);
    EXPECT_EQ(Parameter(1), "attempt to write a readonly database");
    EXPECT_TRUE(mine->HasUnsaved());
}

TEST_F(StoreSessionTest, ATransactionWithoutCommitLeavesNothing) {
    {
        StoreTransaction transaction(mine->Session());
        mine->Session().Execute("DELETE FROM config_item");
    }
    EXPECT_EQ(mine->Session().Number("SELECT count(*) FROM config_item"), 1);
}

TEST_F(StoreSessionTest, TextsComeBackOctetByOctet) {
    const std::string odd = "a'b\"c;--\n\xC3\x84 \xE2\x82\xAC :v0 %_";
    NewCategory(*mine, odd);
    ASSERT_TRUE(Save(*mine));
    const auto other = Another();
    ASSERT_TRUE(Category(*other, odd));
    EXPECT_EQ(Category(*other, odd)->Row().name, odd);
}

} // namespace
} // namespace trellis::test
