#include "store/StoreFixture.h"

#include <rapidcheck/gtest.h>

namespace trellis::test {
namespace {

using Query = StoreQuery<CategoryRow>;

std::vector<std::string> Names(Workspace& workspace, const Query& query) {
    ZOLGYRError error;
    std::vector<std::string> names;
    for (const auto& record : workspace.Find(query, error))
        names.push_back(record->Row().name + "|" + record->Row().owner + "|" +
                        std::to_string(record->Row().exclusivity));
    EXPECT_EQ(error.GetCode(), 0);
    return names;
}

std::string AnyWord() {
    return *rc::gen::element<std::string>("", "A", "B", "AB", "b", "\xC3\x84", "%", "_");
}

// Any query over the few words and numbers that the rows are made of.
Query AnyQuery() {
    Query query;
    if (*rc::gen::arbitrary<bool>())
        query.Where(&CategoryRow::owner, AnyWord());
    if (*rc::gen::arbitrary<bool>())
        query.WhereContains(&CategoryRow::name, AnyWord());
    if (*rc::gen::arbitrary<bool>())
        query.WhereIn(&CategoryRow::exclusivity,
                      *rc::gen::container<std::vector<std::int64_t>>(rc::gen::inRange<std::int64_t>(0, 4)));
    else if (*rc::gen::arbitrary<bool>())
        query.WhereIn(&CategoryRow::description, {AnyWord(), AnyWord(), AnyWord()});
    return query;
}

void ChangeAnything(Workspace& workspace, std::vector<RecordOf<CategoryRow>>& records, int& made) {
    ZOLGYRError error;
    const int action = *rc::gen::inRange(0, 5);
    if (action == 0 || records.empty()) {
        CategoryRow row;
        row.configItem = ConfigItemRow::CorporateId;
        row.name = AnyWord() + std::to_string(++made);
        row.owner = AnyWord();
        row.description = AnyWord();
        records.push_back(workspace.Create(row));
        return;
    }
    const auto record = records[*rc::gen::inRange<std::size_t>(0, records.size())];
    if (action == 1)
        workspace.Remove(*record, error);
    else if (action == 2)
        record->Change(&CategoryRow::owner, AnyWord(), error);
    else if (action == 3)
        record->Change(&CategoryRow::exclusivity, *rc::gen::inRange<std::int64_t>(0, 4), error);
    else
        workspace.DiscardUnsaved(*record, error);
}

RC_GTEST_PROP(StoreQueryTest, AQueryOverMemoryAndStoreEqualsSaveThenQuery, ()) {
    static const TemporaryFolder folder;
    static const std::string path = folder.Path("db");
    static const auto madeOnce =
        StoreSession::Create(path); // one file for all rounds: making it takes longest
    Workspace workspace(StoreSession::Open(path), "anna");
    workspace.Session().Execute("PRAGMA synchronous=OFF");
    workspace.Session().Execute("DELETE FROM category");
    std::vector<RecordOf<CategoryRow>> records;
    int made = 0;
    ZOLGYRError error;
    for (int round = *rc::gen::inRange(1, 4); round > 0; --round) {
        for (int i = *rc::gen::inRange(0, 12); i > 0; --i)
            ChangeAnything(workspace, records, made);
        const Query query = AnyQuery();
        const std::vector<std::string> before = Names(workspace, query);
        RC_ASSERT(workspace.Save(error));
        RC_ASSERT(Names(workspace, query) == before);
        Workspace other(StoreSession::Open(path), "bert");
        RC_ASSERT(Names(other, query) == before);
    }
}

class StoreQuerySetTest : public StoreFixture {};

TEST_F(StoreQuerySetTest, ASetLargerThanAnyStatementTakesFindsEachRowOnce) {
    std::vector<std::int64_t> wanted;
    for (int i = 0; i < 1500; ++i) {
        const auto record = NewCategory(*mine, "C" + std::to_string(i));
        if (i % 3)
            wanted.push_back(record->Id());
    }
    ASSERT_TRUE(Save(*mine));
    const auto other = Another();
    const auto found = other->Find(
        StoreQuery<CategoryRow>().WhereIn(static_cast<std::int64_t CategoryRow::*>(&RowHead::id), wanted),
        error);
    ASSERT_EQ(found.size(), wanted.size());
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_EQ(found[i]->Id(), wanted[i]);
}

TEST_F(StoreQuerySetTest, NoReferenceIsFoundAsZero) {
    EffectivityRow row;
    row.configItem = ConfigItemRow::CorporateId;
    row.optionName = "ON LINK";
    mine->Create(row);
    row.category = NewCategory(*mine, "COLOR")->Id();
    row.optionName = "RED";
    mine->Create(row);
    ASSERT_TRUE(Save(*mine));
    const auto other = Another();
    const auto found = other->Find(StoreQuery<EffectivityRow>().Where(&EffectivityRow::category, 0), error);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0]->Row().optionName, "ON LINK");
    EXPECT_EQ(found[0]->Row().category, 0);
}

} // namespace
} // namespace trellis::test
