#include "site/SiteFixture.h"

#include <set>

namespace trellis::test {

using Rights = SiteFixture;

TEST_F(Rights, WithoutPersonsTheSystemUserHasEveryRightAndIsTold) {
    EXPECT_FALSE(GetSecurityManager()->CheckLogin(error));
    EXPECT_EQ(error.GetMode(), -1);
    EXPECT_EQ(TakeCode(), 60500);
    for (const GuardedFunction& function : RightTable::Functions())
        EXPECT_EQ(RightTable::Refusal(function.name, ""), 0) << function.name;
    SiteAdministration::SetRight({"Set", "", "", "", false}, error);
    EXPECT_EQ(RightTable::Refusal("Set", ""), 60510) << "refused to all";
}

TEST_F(Rights, TheMostSpecialRowDecides) {
    SiteAdministration::AddSite("Oslo", error);
    SiteAdministration::AddSite("Delft", error);
    SiteAdministration::AddOrganization("Design", "Oslo", error);
    SiteAdministration::AddRole("designer", "Design", error);
    SiteAdministration::AddRole("designer", "", error);
    SiteAdministration::SetPerson({"bo", "Bo", "Berg", "designer", "Design", 0}, error);
    ASSERT_EQ(TakeCode(), 0);
    As("bo");
    const struct {
        RightEntry row;
        const char* what;
        int here, elsewhere; // refusal of "Set" at the own site and at Delft, after the row was added
    } steps[] = {
        {{"", "", "", "", false}, "everything refused to all", 60510, 60510},
        {{"", "", "", "Oslo", true}, "but not at the own site", 0, 60510},
        {{"Set", "", "", "", false}, "a named function is more special than a site", 60510, 60510},
        {{"Set", "designer", "", "", true}, "the role of the same name elsewhere is another", 60510, 60510},
        {{"", "designer", "Design", "", true}, "the role is more special than the function", 0, 0},
        {{"Set", "designer", "Design", "Delft", false}, "role, function and site", 0, 60510},
    };
    for (const auto& step : steps) {
        SiteAdministration::SetRight(step.row, error);
        ASSERT_EQ(TakeCode(), 0) << step.what;
        EXPECT_EQ(RightTable::Refusal("Set", ""), step.here) << step.what;
        EXPECT_EQ(RightTable::Refusal("Set", "Delft"), step.elsewhere) << step.what;
    }
    EXPECT_FALSE(RightTable::IsGranted("Set")) << "allowed, but by no row that names it";
    SiteAdministration::RemoveRight(steps[5].row, error);
    EXPECT_EQ(RightTable::Refusal("Set", "Delft"), 0);
    EXPECT_EQ(SiteAdministration::Rights().size(), 5u);
}

TEST_F(Rights, NamedUsersAreJudgedAsThemselves) {
    SiteAdministration::AddOrganization("Design", "", error);
    SiteAdministration::AddRole("designer", "Design", error);
    SiteAdministration::SetRight({"ManageRules", "designer", "Design", "", false}, error);
    SiteAdministration::SetPerson({"bo", "", "", "designer", "Design", 10}, error);
    ASSERT_EQ(TakeCode(), 0);
    const ZOLIQrdSCManager_var manager = GetSecurityManager();
    EXPECT_FALSE(manager->HasRight("bo", "Design", "QRD", "CFG", "ManageRules", ""))
        << "privileges do not count";
    EXPECT_TRUE(manager->HasRight("bo", "Design", "QRD", "CFG", "ManageCH", ""));
    EXPECT_FALSE(manager->HasRight("bo", "Sales", "QRD", "CFG", "ManageCH", ""))
        << "not of that organization";
    EXPECT_FALSE(manager->HasRight("nobody", "", "QRD", "CFG", "ManageCH", ""));
    EXPECT_FALSE(manager->HasRight("bo", "", "OTHER", "CFG", "ManageCH", ""));
}

TEST_F(Rights, AnUnknownFunctionIsRefused) {
    EXPECT_EQ(RightTable::Refusal("set", ""), 60509);
    EXPECT_FALSE(RightTable::Permits("set", "", error));
    EXPECT_EQ(TakeCode(), 60509);
    EXPECT_EQ(parameters, "anna;");
}

TEST_F(Rights, EveryFunctionHasARefusalOfItsOwnThatNamesIt) {
    std::set<int> numbers;
    for (const GuardedFunction& function : RightTable::Functions()) {
        EXPECT_TRUE(numbers.insert(function.refusal).second);
        error.Set(function.refusal);
        ZOLUnicodeString message;
        error.GetLongMsg(message);
        EXPECT_GE(message.SearchSubString(ZOLUnicodeString("\"") + function.name + "\""), 0) << function.name;
    }
    error.Clear();
}

TEST_F(Rights, TheCurrentPersonIsWhomTheHostSetOrTheSystemUser) {
    SiteAdministration::AddSite("Oslo", error);
    SiteAdministration::AddOrganization("Design", "Oslo", error);
    SiteAdministration::AddRole("designer", "Design", error);
    SiteAdministration::SetPerson({"bo", "Bo", "Berg", "designer", "Design", 3}, error);
    As("bo");
    EXPECT_TRUE(GetSecurityManager()->CheckLogin(error));
    const ZOLIQrdPEPerson_var bo = GetSecurityManager()->GetCurrentPerson();
    EXPECT_EQ(bo->GetFirstName() + bo->GetLastName(), "BoBerg");
    EXPECT_EQ(bo->GetPrivilege(), 3);
    EXPECT_EQ(GetSecurityManager()->GetCurrentRole()->GetName(), "designer");
    EXPECT_EQ(GetSecurityManager()->GetCurrentOrganization()->GetName(), "Design");
    EXPECT_EQ(GetSecurityManager()->GetCurrentSite()->GetName(), "Oslo");
    ZOLBaseUnknown_var people = bo;
    EXPECT_TRUE(people->QueryInterface(ZOLIQrdPEPeople::Meta()));
    EXPECT_FALSE(people->QueryInterface(ZOLIQrdPEOrganization::Meta()));
    EXPECT_EQ(ZOLIQrdPEPeople_var(bo), ZOLIQrdPEPeople_var(GetSecurityManager()->GetCurrentPerson()));

    As("stranger");
    EXPECT_FALSE(GetSecurityManager()->CheckLogin(error));
    EXPECT_EQ(TakeCode(), 60501);
    EXPECT_EQ(GetSecurityManager()->GetCurrentSite()->GetName(), "");
    DatabaseSession::Close();
    EXPECT_EQ(GetSecurityManager()->GetCurrentPerson()->GetName(), "stranger");
    As("");
    EXPECT_FALSE(GetSecurityManager()->GetCurrentPerson()->GetName().IsEmpty());
}

} // namespace trellis::test
