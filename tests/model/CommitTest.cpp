#include "model/ModelFixture.h"
#include "model/ZOLDMPubSub.h"
#include "model/ZOLDMWVTA.h"
#include "store/Workspace.h"

namespace trellis::test {
namespace {

class CommitTest : public ModelFixture {
protected:
    CommitTest() { EXPECT_TRUE(Import("parent,child,link_id\nbike,frame,f\nbike,wheel,w\n")); }

    // An effectivity that lies on a link, unsaved.
    RecordOf<LinkEffectivityRow> PutEffectivityOn(const ZOLDMInstance& link) {
        EffectivityRow row;
        row.configItem = ConfigItemRow::CorporateId;
        row.type = "range";
        const auto effectivity = Workspace::Current()->Create(row);
        LinkEffectivityRow hold;
        hold.link = link.GetCoid();
        hold.effectivity = effectivity->Id();
        return Workspace::Current()->Create(hold);
    }
};

TEST_F(CommitTest, ALinkGoesWithTheHoldOfItsEffectivitiesAndBothComeBackByRollBack) {
    ZOLDMInstance link = Links(Part("bike"))[1];
    const auto stored = PutEffectivityOn(link);
    ASSERT_EQ(ZOLDMWVTA::Commit(1, 1), 0);
    const auto fresh = PutEffectivityOn(link);
    link.Delete(1, 1, 1, 1, 1);
    EXPECT_FALSE(stored->IsAlive() || fresh->IsAlive());
    ZOLDMWVTA::RollBack(1);
    EXPECT_TRUE(stored->IsAlive() && fresh->IsAlive());

    link.Delete(1, 1, 1, 1, 1);
    ASSERT_EQ(ZOLDMWVTA::Commit(1, 1), 0);
    EXPECT_EQ(Stored("links"), "1");
    EXPECT_EQ(Stored("effectivities on links"), "0");
}

TEST_F(CommitTest, ACommitAgainstAnotherUsersChangeIsRefusedWithItsName) {
    Workspace other(StoreSession::Open(path), "bert");
    const auto theirs = other.FindFirst(StoreQuery<LinkRow>().Where(&LinkRow::clientIdentifier, "w"), error);
    theirs->Change(&LinkRow::name, "Wheel 1", error);
    ASSERT_TRUE(other.Commit(error));

    ZOLDMInstance link = ZOLDMInstance(_SEQUENCE_octet(theirs->Row().uuid), 0, 0, 0);
    ASSERT_GT(link.GetCoid(), 0);
    theirs->Change(&LinkRow::name, "Wheel 2", error);
    ASSERT_TRUE(other.Commit(error));
    link.Delete(1, 1, 1, 1, 1);
    error.Clear();
    EXPECT_EQ(ZOLDMWVTA::Commit(1, 1, error), 20902);
    ASSERT_EQ(error.GetParameters().size(), 2u);
    EXPECT_EQ(error.GetParameters()[0], "Wheel 1");
    EXPECT_EQ(error.GetParameters()[1], "bert");
    EXPECT_EQ(Stored("links"), "2");
}

TEST_F(CommitTest, EventsReachListenersAfterTheCommitAndNotBefore) {
    std::string heard;
    const int listener = ZOLDMPubSub::AddListener([&](const ZOLDMInstance& instance, int number) {
        heard += Name(instance) + " " + std::to_string(number) + ";";
    });
    ZOLDMPubSub::PublishEvent(Part("bike"), ZOLDMPubSub::ObjectChanged);
    ZOLDMPubSub::PublishEvent(ZOLDMInstance(_SEQUENCE_octet(ConfigItemRow::CorporateDesign), 0, 0, 0), 6);
    ZOLDMPubSub::PublishEvent(ZOLDMInstance(), 6);
    EXPECT_EQ(heard, "");
    EXPECT_EQ(ZOLDMWVTA::Commit(1, 1), 0);
    EXPECT_EQ(heard, std::string("bike 6;") + ConfigItemRow::CorporateDesign + " 6;");
    EXPECT_EQ(Stored("events"), "2");
    ZOLDMPubSub::RemoveListener(listener);
    ZOLDMPubSub::PublishEvent(Part("bike"), 6);
    EXPECT_EQ(ZOLDMWVTA::Commit(1, 1), 0);
    EXPECT_EQ(Stored("events"), "3");
}

TEST_F(CommitTest, ALinkTellsTheOlderOneItCameFromAsLongAsThatExists) {
    ZOLDMInstance older = Links(Part("bike"))[1];
    const ZOLDMInstance newer = Links(Part("bike"))[2];
    const auto record = Workspace::Current()->Get<LinkRow>(newer.GetCoid(), error);
    record->Change(&LinkRow::originUuid, older.GetUUId().Text(), error);
    ZOLListValZOLDMInstance found;
    newer.GetFather(1, "ZOLHISLK", {newer.GetUUId().Text()}, found);
    ASSERT_EQ(found.Size(), 1);
    EXPECT_EQ(found[1], older);
    older.GetFather(1, "ZOLHISLK", {older.GetUUId().Text()}, found);
    EXPECT_EQ(found.Size(), 0);
    older.Delete(1, 1, 1, 1, 1);
    newer.GetFather(1, "ZOLHISLK", {newer.GetUUId().Text()}, found);
    EXPECT_EQ(found.Size(), 0);
}

TEST_F(CommitTest, WithoutADatabaseCommitSaysSo) {
    DatabaseSession::Close();
    EXPECT_EQ(ZOLDMWVTA::Commit(1, 1), 60201);
    EXPECT_EQ(ZOLDMInstance::MustSendPubSubEvent(), 0);
}

} // namespace
} // namespace trellis::test
