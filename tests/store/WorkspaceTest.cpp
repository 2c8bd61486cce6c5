#include "store/StoreFixture.h"

namespace trellis::test {
namespace {

using State = StoredObject::State;

class WorkspaceTest : public StoreFixture {
protected:
    // A part with one link below, its dictionary effectivity on the link, all stored.
    void StoreLink() {
        PartRow part;
        part.uuid = std::string(50, 'a');
        parent = mine->Create(part);
        part.uuid = std::string(50, 'b');
        child = mine->Create(part);
        LinkRow row;
        row.uuid = std::string(50, 'c');
        row.parent = parent->Id();
        row.child = child->Id();
        link = mine->Create(row);
        EffectivityRow effectivityRow;
        effectivityRow.configItem = ConfigItemRow::CorporateId;
        effectivity = mine->Create(effectivityRow);
        ASSERT_TRUE(mine->Commit(error));
    }
    LinkEffectivityRow Hold() const {
        LinkEffectivityRow row;
        row.link = link->Id();
        row.effectivity = effectivity->Id();
        return row;
    }

    RecordOf<PartRow> parent;
    RecordOf<PartRow> child;
    RecordOf<LinkRow> link;
    RecordOf<EffectivityRow> effectivity;
};

TEST_F(WorkspaceTest, ASaveStoresWhatChangedAndWhoChangedIt) {
    const auto color = NewCategory(*mine, "COLOR");
    EXPECT_EQ(StoredNames(), "");
    ASSERT_TRUE(Save(*mine));
    EXPECT_EQ(StoredNames(), "COLOR ");
    EXPECT_EQ(color->GetState(), State::Clean);
    EXPECT_EQ(color->Row().lastModifier, "anna");
    EXPECT_GT(color->Row().lastUpdate, 0);

    ASSERT_TRUE(color->Change(&CategoryRow::name, "COLOUR", error));
    ASSERT_TRUE(Save(*mine));
    EXPECT_EQ(Category(*Another(), "COLOUR")->Version(), 2);
}

TEST_F(WorkspaceTest, SettingTheStoredValueMakesNothingDirty) {
    const auto color = NewCategory(*mine, "COLOR");
    ASSERT_TRUE(Save(*mine));
    color->Change(&CategoryRow::name, "COLOR", error);
    EXPECT_FALSE(mine->HasUnsaved());
    color->Change(&CategoryRow::name, "SIZE", error);
    EXPECT_TRUE(mine->HasUnsaved());
    color->Change(&CategoryRow::name, "COLOR", error);
    EXPECT_FALSE(mine->HasUnsaved());
    EXPECT_EQ(color->GetState(), State::Clean);
}

TEST_F(WorkspaceTest, ARefusedSaveWritesNothingAndNamesObjectAndOtherUser) {
    const auto color = NewCategory(*mine, "COLOR");
    const auto size = NewCategory(*mine, "SIZE");
    const auto wheel = NewCategory(*mine, "WHEEL");
    ASSERT_TRUE(Save(*mine));
    const auto other = Another("bert");
    for (const char* name : {"COLOR", "SIZE"})
        Category(*other, name)->Change(&CategoryRow::description, "theirs", error);
    ASSERT_TRUE(Save(*other));

    NewCategory(*mine, "BRAKE");
    for (const auto& category : {color, size, wheel})
        category->Change(&CategoryRow::description, "mine", error);
    EXPECT_FALSE(Save(*mine));
    EXPECT_EQ(error.GetCode(), 20902);
    EXPECT_EQ(Parameter(0), "COLOR");
    EXPECT_EQ(Parameter(1), "bert");
    EXPECT_TRUE(color->IsStale() && size->IsStale());
    EXPECT_FALSE(wheel->IsStale());
    EXPECT_EQ(color->Row().description, "mine");
    EXPECT_EQ(StoredNames(), "COLOR SIZE WHEEL ");

    for (const auto& category : {color, size})
        mine->DiscardUnsaved(*category, error);
    EXPECT_EQ(color->Row().description, "theirs");
    EXPECT_TRUE(Save(*mine));
    EXPECT_EQ(StoredNames(), "COLOR SIZE WHEEL BRAKE ");
    EXPECT_EQ(Category(*Another(), "WHEEL")->Row().description, "mine");
}

TEST_F(WorkspaceTest, ChangingOrRemovingWhatAnotherUserRemovedIsRefusedByName) {
    const auto color = NewCategory(*mine, "COLOR");
    ASSERT_TRUE(Save(*mine));
    const auto other = Another();
    other->Remove(*Category(*other, "COLOR"), error);
    ASSERT_TRUE(Save(*other));

    color->Change(&CategoryRow::name, "COLOUR", error);
    EXPECT_FALSE(Save(*mine));
    EXPECT_EQ(error.GetCode(), 20904);
    EXPECT_EQ(Parameter(0), "COLOUR");
    mine->Remove(*color, error);
    EXPECT_FALSE(Save(*mine));
    EXPECT_EQ(error.GetCode(), 20904);
    mine->DiscardUnsaved(error);
    EXPECT_EQ(color->GetState(), State::Gone);
    EXPECT_FALSE(mine->HasUnsaved());
}

TEST_F(WorkspaceTest, NamesCanBeSwappedFreedAndTakenInOneSave) {
    const auto a = NewCategory(*mine, "A");
    const auto b = NewCategory(*mine, "B");
    const auto c = NewCategory(*mine, "C");
    ASSERT_TRUE(Save(*mine));
    a->Change(&CategoryRow::name, "B", error);
    b->Change(&CategoryRow::name, "A", error);
    mine->Remove(*c, error);
    NewCategory(*mine, "C");
    EXPECT_TRUE(Save(*mine));
    EXPECT_EQ(StoredNames(), "B A C ");
}

TEST_F(WorkspaceTest, ANameThatAnotherUserTookRefusesTheWholeSave) {
    const auto other = Another();
    NewCategory(*other, "COLOR");
    ASSERT_TRUE(Save(*other));
    NewCategory(*mine, "SIZE");
    const auto color = NewCategory(*mine, "COLOR");
    EXPECT_FALSE(Save(*mine));
    EXPECT_EQ(error.GetCode(), 20903);
    EXPECT_NE(Parameter(1).find("COLOR"), std::string::npos);
    EXPECT_EQ(color->GetState(), State::New);
    color->Change(&CategoryRow::name, "COLOUR", error);
    EXPECT_TRUE(Save(*mine));
}

TEST_F(WorkspaceTest, OptionNamesAreUniqueInADictionaryAndFreeOnLinks) {
    const auto color = NewCategory(*mine, "COLOR");
    EffectivityRow row;
    row.configItem = ConfigItemRow::CorporateId;
    row.optionName = "RED";
    mine->Create(row);
    mine->Create(row);
    row.category = color->Id();
    mine->Create(row);
    ASSERT_TRUE(Save(*mine));
    mine->Create(row);
    EXPECT_FALSE(Save(*mine));
    EXPECT_EQ(error.GetCode(), 20903);
}

TEST_F(WorkspaceTest, ARowThatRefersToAMissingOneIsNotStored) {
    const auto color = NewCategory(*mine, "COLOR");
    ASSERT_TRUE(Save(*mine));
    const auto other = Another();
    other->Remove(*Category(*other, "COLOR"), error);
    ASSERT_TRUE(Save(*other));
    EffectivityRow option;
    option.configItem = ConfigItemRow::CorporateId;
    option.category = color->Id();
    mine->Create(option);
    EXPECT_FALSE(Save(*mine));
    EXPECT_EQ(error.GetCode(), 20903);
}

TEST_F(WorkspaceTest, HandlesOfRemovedAndUnloadedObjectsAnswerButRefuseChanges) {
    const auto removed = NewCategory(*mine, "COLOR");
    const auto unloaded = NewCategory(*mine, "SIZE");
    ASSERT_TRUE(Save(*mine));
    mine->Remove(*removed, error);
    mine->Unload(*unloaded);
    for (const auto& category : {removed, unloaded}) {
        ZOLGYRError refused;
        EXPECT_FALSE(category->Change(&CategoryRow::name, "X", refused));
        EXPECT_EQ(refused.GetCode(), 60301);
    }
    EXPECT_EQ(unloaded->Row().name, "SIZE");
    const auto again = Category(*mine, "SIZE");
    EXPECT_NE(again, unloaded);
    EXPECT_TRUE(again->IsSame(*unloaded));
    ASSERT_TRUE(Save(*mine));
    mine.reset();
    EXPECT_EQ(removed->Row().name, "COLOR");
    EXPECT_FALSE(again->Change(&CategoryRow::name, "X", error));
}

TEST_F(WorkspaceTest, CleanObjectsFollowTheStoreAndChangedOnesKeepTheirChange) {
    const auto color = NewCategory(*mine, "COLOR");
    const auto size = NewCategory(*mine, "SIZE");
    ASSERT_TRUE(Save(*mine));
    const auto other = Another();
    for (const char* name : {"COLOR", "SIZE"})
        Category(*other, name)->Change(&CategoryRow::description, "theirs", error);
    ASSERT_TRUE(Save(*other));
    size->Change(&CategoryRow::description, "mine", error);
    ASSERT_EQ(mine->Find(StoreQuery<CategoryRow>(), error).size(), 2u);
    EXPECT_EQ(color->Row().description, "theirs");
    EXPECT_EQ(size->Row().description, "mine");
}

TEST_F(WorkspaceTest, RollBackUndoesTheModelAloneAndCommitWritesBoth) {
    StoreLink();
    const auto stored = mine->Create(Hold());
    ASSERT_TRUE(Save(*mine));
    const auto color = NewCategory(*mine, "COLOR");
    mine->Remove(*stored, ChangeHome::Model, error);
    mine->Remove(*link, error);
    EXPECT_FALSE(mine->Get<LinkRow>(link->Id(), error));

    mine->RollBack();
    EXPECT_TRUE(link->IsAlive() && stored->IsAlive());
    EXPECT_EQ(color->GetState(), State::New);

    mine->Remove(*stored, ChangeHome::Model, error);
    mine->Remove(*link, error);
    ASSERT_TRUE(mine->Commit(error));
    EXPECT_FALSE(mine->HasUnsaved());
    EXPECT_EQ(link->GetState(), State::Gone);
    EXPECT_EQ(mine->Session().Number("SELECT count(*) FROM link"), 0);
    EXPECT_EQ(StoredNames(), "COLOR ");
}

TEST_F(WorkspaceTest, ASaveLeavesPendingRemovalsOfTheModelAlone) {
    StoreLink();
    const auto fresh = mine->Create(Hold());
    mine->Remove(*fresh, ChangeHome::Model, error);
    mine->Remove(*link, error);
    effectivity->Change(&EffectivityRow::description, "kept", error);
    mine->Remove(*effectivity, ChangeHome::Model, error);
    ASSERT_TRUE(Save(*mine));
    EXPECT_EQ(mine->Session().Number("SELECT count(*) FROM link_effectivity"), 1);
    EXPECT_EQ(mine->Session().Text("SELECT description FROM effectivity"), "kept");
    EXPECT_FALSE(link->IsAlive() || fresh->IsAlive());
    EXPECT_TRUE(mine->HasUnsaved());
    ASSERT_TRUE(mine->Commit(error));
    EXPECT_EQ(mine->Session().Number("SELECT count(*) FROM link_effectivity"), 0);
    EXPECT_EQ(mine->Session().Number("SELECT count(*) FROM effectivity"), 0);
}

TEST_F(WorkspaceTest, ARemovalByTheServiceOutlivesARollBack) {
    StoreLink();
    mine->Remove(*effectivity, ChangeHome::Model, error);
    mine->Remove(*effectivity, error);
    mine->RollBack();
    EXPECT_FALSE(effectivity->IsAlive());
    ASSERT_TRUE(Save(*mine));
    EXPECT_EQ(mine->Session().Number("SELECT count(*) FROM effectivity"), 0);
    EXPECT_EQ(error.GetCode(), 0);
    mine->Remove(*effectivity, error);
    EXPECT_EQ(error.GetCode(), 60301);
}

TEST_F(WorkspaceTest, DiscardingAllBringsBackWhatIsStored) {
    const auto color = NewCategory(*mine, "COLOR");
    const auto size = NewCategory(*mine, "SIZE");
    ASSERT_TRUE(Save(*mine));
    color->Change(&CategoryRow::name, "X", error);
    mine->Remove(*size, error);
    const auto fresh = NewCategory(*mine, "BRAKE");
    EXPECT_EQ(mine->Unsaved().size(), 3u);
    mine->DiscardUnsaved(error);
    EXPECT_FALSE(mine->HasUnsaved());
    EXPECT_EQ(color->Row().name, "COLOR");
    EXPECT_TRUE(size->IsAlive());
    EXPECT_EQ(fresh->GetState(), State::Gone);
}

TEST_F(WorkspaceTest, EventsAreDeliveredAfterTheSaveThatStoredThem) {
    const auto color = NewCategory(*mine, "COLOR");
    ASSERT_TRUE(Save(*mine));
    const auto other = Another();
    Category(*other, "COLOR")->Change(&CategoryRow::description, "theirs", error);
    ASSERT_TRUE(Save(*other));

    std::vector<std::int64_t> heard;
    int once = 0;
    once = mine->AddEventListener([&](const EventRow&) { mine->RemoveEventListener(once); });
    mine->AddEventListener([&](const EventRow& event) { heard.push_back(event.number); });
    color->Change(&CategoryRow::description, "mine", error);
    mine->QueueEvent("x", 6);
    mine->QueueEvent("x", 7);
    EXPECT_FALSE(Save(*mine));
    EXPECT_TRUE(heard.empty());
    mine->DiscardUnsaved(*color, error);
    ASSERT_TRUE(Save(*mine));
    EXPECT_EQ(heard, (std::vector<std::int64_t>{6, 7}));
    EXPECT_EQ(mine->Session().Number("SELECT count(*) FROM event"), 2);
    ASSERT_TRUE(Save(*mine));
    EXPECT_EQ(heard.size(), 2u);
}

TEST_F(WorkspaceTest, ASaveKeepsACodeThatStandsAndStillSaves) {
    NewCategory(*mine, "COLOR");
    error.Set(20267, 0);
    EXPECT_TRUE(mine->Save(error));
    EXPECT_EQ(error.GetCode(), 20267);
    EXPECT_EQ(StoredNames(), "COLOR ");
}

} // namespace
} // namespace trellis::test
