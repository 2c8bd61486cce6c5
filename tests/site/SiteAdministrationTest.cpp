#include "site/SiteFixture.h"

#include "store/Workspace.h"

#include <functional>

namespace trellis::test {

using Administration = SiteFixture;

TEST_F(Administration, PeopleRightsAndValuesSurviveARestart) {
    SiteAdministration::AddRole("engineer", "", error);
    SiteAdministration::SetPerson({"bo", "Bo", "", "engineer", "", 2}, error);
    SiteAdministration::SetPerson({"bo", "Bo", "Berg", "", "", 3}, error);
    SiteAdministration::SetRight({"Set", "engineer", "", "", false}, error);
    SiteAdministration::SetAdministratorValue("QRD_PROPOSED_EFF", ZOLIQrdServices::Group, "Y", error);
    SiteAdministration::SetAdministratorValue("QRD_ALLOWED_EFF_TYPE", ZOLIQrdServices::Group, "DATE", error);
    SiteAdministration::SetAdministratorValue("QRD_ALLOWED_EFF_TYPE", ZOLIQrdServices::Group, "", error);
    EXPECT_EQ(CreateServices()->GetValue("QRD_PROPOSED_EFF", "QRDAdmin"), "Y") << "before the save";
    ASSERT_TRUE(SiteAdministration::Save(error));
    ASSERT_EQ(TakeCode(), 0);
    ASSERT_TRUE(DatabaseSession::Open(path, error));
    const std::vector<PersonEntry> persons = SiteAdministration::Persons();
    ASSERT_EQ(persons.size(), 1u);
    EXPECT_EQ(persons[0].lastName + persons[0].role, "Berg");
    EXPECT_EQ(persons[0].privilege, 3);
    ASSERT_EQ(SiteAdministration::Rights().size(), 1u);
    EXPECT_EQ(SiteAdministration::Rights()[0].role, "engineer");
    EXPECT_EQ(CreateServices()->GetValue("QRD_PROPOSED_EFF", "QRDAdmin"), "Y");
    EXPECT_EQ(CreateServices()->GetValue("QRD_PROPOSED_EFF", "Other"), "");
    EXPECT_EQ(CreateServices()->GetValue("QRD_ALLOWED_EFF_TYPE", "QRDAdmin"), "");
}

TEST_F(Administration, IsForAdministratorsOnceThereIsOne) {
    SiteAdministration::SetPerson({"bo", "", "", "", "", 9}, error);
    As("bo");
    EXPECT_TRUE(SiteAdministration::SetPerson({"chief", "", "", "", "", 10}, error))
        << "nobody has privilege 10 yet";
    EXPECT_FALSE(SiteAdministration::SetPerson({"bo", "", "", "", "", 10}, error));
    EXPECT_EQ(TakeCode(), 60502);
    EXPECT_EQ(parameters, "bo;");
    EXPECT_FALSE(SiteAdministration::SetAdministratorValue("A", "QRDAdmin", "1", error));
    EXPECT_EQ(TakeCode(), 60502);
    EXPECT_EQ(CreateServices()->GetValue("A", "QRDAdmin"), "");
    As("chief");
    EXPECT_TRUE(SiteAdministration::RemovePerson("bo", error));
}

TEST_F(Administration, EveryWrongRequestIsNamedAndChangesNothing) {
    SiteAdministration::AddSite("Oslo", error);
    SiteAdministration::AddRole("engineer", "", error);
    SiteAdministration::SetPerson({"bo", "", "", "engineer", "", 0}, error);
    ASSERT_EQ(TakeCode(), 0);
    EXPECT_FALSE(SiteAdministration::AddSite("Oslo", error));
    EXPECT_EQ(TakeCode(), 60504);
    EXPECT_EQ(parameters, "site;Oslo;");
    EXPECT_FALSE(SiteAdministration::AddRole("engineer", "", error));
    EXPECT_EQ(TakeCode(), 60504);
    EXPECT_FALSE(SiteAdministration::AddRole("engineer", "Nowhere", error));
    EXPECT_EQ(TakeCode(), 60503);
    EXPECT_EQ(parameters, "organization;Nowhere;");
    EXPECT_FALSE(SiteAdministration::AddOrganization("Design", "Nowhere", error));
    EXPECT_EQ(TakeCode(), 60503);
    EXPECT_FALSE(SiteAdministration::AddSite("", error));
    EXPECT_EQ(TakeCode(), 60506);
    EXPECT_FALSE(SiteAdministration::SetPerson({"al", "", "", "nobody", "", 0}, error));
    EXPECT_EQ(TakeCode(), 60503);
    EXPECT_FALSE(SiteAdministration::RemovePerson("al", error));
    EXPECT_EQ(TakeCode(), 60503);
    EXPECT_FALSE(SiteAdministration::SetRight({"Sett", "", "", "", true}, error));
    EXPECT_EQ(TakeCode(), 60505);
    EXPECT_FALSE(SiteAdministration::SetRight({"Set", "", "", "Nowhere", true}, error));
    EXPECT_EQ(TakeCode(), 60503);
    EXPECT_FALSE(SiteAdministration::RemoveRight({"Set", "", "", "", true}, error));
    EXPECT_EQ(TakeCode(), 60503);
    EXPECT_FALSE(SiteAdministration::RemoveRole("engineer", "", error));
    EXPECT_EQ(TakeCode(), 60508);
    EXPECT_EQ(parameters, "engineer;bo;");
    EXPECT_EQ(SiteAdministration::Persons().size(), 1u);
    EXPECT_TRUE(SiteAdministration::Rights().empty());
    DatabaseSession::Close();
    EXPECT_FALSE(SiteAdministration::AddSite("Delft", error));
    EXPECT_EQ(TakeCode(), 60507);
}

// A store that cannot be read must not look like one in which there is nothing yet.
TEST_F(Administration, AFailedReadRefusesTheChangeAndDoublesNothing) {
    SiteAdministration::AddRole("engineer", "", error);
    SiteAdministration::SetRight({"Set", "engineer", "", "", false}, error);
    SiteAdministration::SetPerson({"bo", "", "", "", "", 0}, error);
    SiteAdministration::SetAdministratorValue("A", ZOLIQrdServices::Group, "1", error);
    ASSERT_TRUE(SiteAdministration::Save(error));
    const std::function<bool()> changes[] = {
        [this] {
            return SiteAdministration::SetPerson({"bo", "Bo", "", "", "", 0}, error);
        },
        [this] {
            return SiteAdministration::SetRight({"Set", "engineer", "", "", true}, error);
        },
        [this] { return SiteAdministration::SetAdministratorValue("A", ZOLIQrdServices::Group, "2", error); },
        [this] { return SiteAdministration::RemovePerson("bo", error); },
        [this] { return SiteAdministration::RemoveRole("engineer", "", error); }};
    for (const auto& change : changes) {
        ASSERT_TRUE(DatabaseSession::Open(path, error));
        SiteAdministration::Persons(); // the directory is read
        for (int n = 1;; ++n) {
            Workspace::Current()->Session().FailStatement(n);
            const bool done = change();
            Workspace::Current()->Session().FailStatement(0);
            EXPECT_EQ(done, TakeCode() == 0) << n;
            if (done)
                break;
            EXPECT_TRUE(DatabaseSession::UnsavedChanges().empty()) << n;
        }
        EXPECT_EQ(Workspace::Current()->Find(StoreQuery<PersonRow>(), error).size() +
                      Workspace::Current()->Find(StoreQuery<RightRow>(), error).size() +
                      Workspace::Current()->Find(StoreQuery<AdministratorValueRow>(), error).size(),
                  DatabaseSession::UnsavedChanges()[0].kind == UnsavedChange::Kind::Removed ? 2u : 3u);
        ASSERT_TRUE(DatabaseSession::DiscardUnsaved(error));
    }
}

TEST_F(Administration, ARemovedRoleTakesItsRightsAlong) {
    SiteAdministration::AddRole("engineer", "", error);
    SiteAdministration::SetRight({"Set", "engineer", "", "", false}, error);
    SiteAdministration::SetRight({"Unset", "", "", "", false}, error);
    ASSERT_TRUE(SiteAdministration::Save(error));
    EXPECT_TRUE(SiteAdministration::RemoveRole("engineer", "", error));
    EXPECT_TRUE(SiteAdministration::Save(error));
    ASSERT_EQ(SiteAdministration::Rights().size(), 1u);
    EXPECT_EQ(SiteAdministration::Rights()[0].function, "Unset");
}

} // namespace trellis::test
