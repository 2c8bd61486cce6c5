#include "store/StoreFixture.h"

namespace trellis::test {
namespace {

class FaultTest : public StoreFixture {
protected:
    // Everything that is stored of categories, in order.
    std::string Stored() {
        std::string text;
        for (const CategoryRow& row : mine->Session().Table<CategoryRow>().Select({}))
            text += row.name + "." + std::to_string(row.version) + " ";
        return text + std::to_string(mine->Session().Number("SELECT count(*) FROM event"));
    }
};

// Whatever statement of a save fails, the store is as before and the save can be repeated.
TEST_F(FaultTest, ASaveThatFailsAnywhereLeavesStoreAndMemoryAsTheyWere) {
    const auto changed = NewCategory(*mine, "A");
    const auto removed = NewCategory(*mine, "B");
    ASSERT_TRUE(Save(*mine));
    changed->Change(&CategoryRow::name, "A2", error);
    mine->Remove(*removed, error);
    const auto fresh = NewCategory(*mine, "B");
    mine->QueueEvent("x", 6);
    const std::string before = Stored();

    int n = 1;
    for (bool saved = false; !saved; ++n) {
        mine->Session().FailStatement(n);
        saved = Save(*mine);
        mine->Session().FailStatement(0);
        if (saved)
            break;
        EXPECT_EQ(error.GetCode(), 20903) << n;
        EXPECT_EQ(Stored(), before) << n;
        EXPECT_EQ(changed->GetState(), StoredObject::State::Changed);
        EXPECT_EQ(removed->GetState(), StoredObject::State::Removed);
        EXPECT_EQ(fresh->GetState(), StoredObject::State::New);
        EXPECT_FALSE(changed->IsStale());
    }
    EXPECT_GE(n, 6); // begin, delete, insert, update, key checks, event, commit
    EXPECT_EQ(Stored(), "A2.2 B.1 1");
}

TEST_F(FaultTest, ABulkWorkThatFailsAnywhereLeavesNothing) {
    const auto work = [](StoreSession& session) {
        for (const char* name : {"A", "B", "C"}) {
            CategoryRow row;
            row.id = session.NewRowId();
            row.version = 1;
            row.configItem = ConfigItemRow::CorporateId;
            row.name = name;
            session.Table<CategoryRow>().Insert(row);
        }
        return true;
    };
    for (int n = 1; n <= 5; ++n) {
        mine->Session().FailStatement(n);
        ZOLGYRError refused;
        EXPECT_FALSE(mine->RunBulk(work, refused)) << n;
        EXPECT_EQ(refused.GetCode(), 20903);
        mine->Session().FailStatement(0);
        EXPECT_EQ(StoredNames(), "") << n;
    }
    EXPECT_TRUE(mine->RunBulk(work, error));
    EXPECT_EQ(StoredNames(), "A B C ");
}

TEST_F(FaultTest, AQueryThatFailsGivesNothingAndACode) {
    NewCategory(*mine, "A");
    ASSERT_TRUE(Save(*mine));
    mine->Session().FailStatement(1);
    EXPECT_TRUE(mine->Find(StoreQuery<CategoryRow>(), error).empty());
    EXPECT_NE(error.GetCode(), 0);
    EXPECT_EQ(mine->Find(StoreQuery<CategoryRow>(), error).size(), 1u);
}

} // namespace
} // namespace trellis::test
