#include "service/ServiceFixture.h"

namespace trellis::test {

using DictionaryRights = ServiceFixture;

TEST_F(DictionaryRights, ARefusedFunctionFailsBelowItsPrivilegeLimitAndNotFromItOn) {
    for (const auto& [name, privilege] : {std::pair{"one", 1}, {"two", 2}, {"nine", 9}, {"ten", 10}})
        Person(name, privilege, {"Set", "Unset", "DeleteOptionDictionary"});
    As("ten");
    Dictionary("BIKE");
    ASSERT_EQ(Save(), 0);
    const struct {
        const char* user;
        int set, unset, deleteDictionary;
    } cases[] = {
        {"one", 60510, 60511, 60512}, {"two", 0, 60511, 60512}, {"nine", 0, 60511, 60512}, {"ten", 0, 0, 0}};
    for (const auto& c : cases) {
        As(c.user);
        Manager().SetConfigurable(Part("FRAME"), error);
        EXPECT_EQ(TakeCode(), c.set) << c.user;
        EXPECT_EQ(parameters, c.set ? std::string(c.user) + ";" : "");
        Manager().ModifyEffTypeForPart(Part("BIKE"), 2, error);
        EXPECT_EQ(TakeCode(), c.set) << c.user;
        Manager().DeleteDictionary(Part("BIKE"), error);
        EXPECT_EQ(TakeCode(), c.deleteDictionary) << c.user;
        ZOLQRDCfgBase::UnsetConfigurable(Part("BIKE"), error);
        EXPECT_EQ(TakeCode(), c.unset) << c.user;
        const bool isRefused = c.set != 0;
        EXPECT_EQ(Unsaved() == 0, isRefused) << c.user << ": a refusal changes nothing";
        DatabaseSession::DiscardUnsaved(error);
    }
}

TEST_F(DictionaryRights, CallersAndTheServiceGiveTheSameAnswer) {
    Person("bo", 0, {"Set"});
    Person("chief", 10);
    As("bo");
    EXPECT_EQ(Part("BIKE").GetFunctionRight("QRD", "CFG", "Set", 1), 60510);
    EXPECT_EQ(Part("BIKE").GetFunctionRight("QRD", "CFG", "Unset", 1), 0);
    Manager().SetConfigurable(Part("BIKE"), error);
    EXPECT_EQ(TakeCode(), 60510);
}

TEST_F(DictionaryRights, SomebodyTheDatabaseDoesNotKnowChangesNothing) {
    const ZOLIQrdCategory_var colour = Category(Dictionary("BIKE"), "COLOUR");
    Person("bo", 0);
    As("stranger");
    Manager().SetConfigurable(Part("FRAME"), error);
    EXPECT_EQ(TakeCode(), 60510);
    colour->SetDescription("x", error);
    EXPECT_EQ(TakeCode(), 60518);
    EXPECT_EQ(colour->GetDescription(), "COLOUR");
}

TEST_F(DictionaryRights, ACategoryIsChangedByItsOwnerOrganizationOrHighPrivilegeAlone) {
    SiteAdministration::AddOrganization("Design", "", error);
    SiteAdministration::AddRole("designer", "Design", error);
    SiteAdministration::SetPerson({"owner", "", "", "designer", "Design", 0}, error);
    SiteAdministration::SetPerson({"mate", "", "", "designer", "Design", 0}, error);
    Person("other", 9);
    Person("chief", 10);
    As("owner");
    const ZOLIQrdCategory_var colour = Category(Dictionary("BIKE"), "COLOUR");
    const ZOLIQrdEffectivity_var red = Option(colour, "RED");
    EXPECT_EQ(colour->GetOwner() + colour->GetOrganization(), "ownerDesign");
    ASSERT_EQ(Save(), 0);
    for (const auto& [user, code] : {std::pair{"owner", 0}, {"mate", 0}, {"other", 60402}, {"chief", 0}}) {
        As(user);
        EXPECT_EQ(ZOLQRDCfgBase::DoIModifyIt(colour), code == 0) << user;
        colour->SetDescription(user, error);
        EXPECT_EQ(TakeCode(), code) << user;
        red->SetUsed(1, error);
        EXPECT_EQ(TakeCode(), code) << user;
        Option(colour, "BLUE");
        EXPECT_EQ(TakeCode(), code) << user;
        colour->SetDefaultOptions({red}, error);
        EXPECT_EQ(TakeCode(), code) << user;
        colour->RemoveOption(red, error);
        EXPECT_EQ(TakeCode(), code) << user;
        Manager().RemoveCategoryFromDictionary(colour, error);
        EXPECT_EQ(TakeCode(), code) << user;
        EXPECT_EQ(Unsaved() == 0, code != 0) << user;
        DatabaseSession::DiscardUnsaved(error);
    }
    As("other");
    EXPECT_TRUE(Category(colour->GetConfigItem(), "LAMP")) << "adding needs the right alone";
    EXPECT_EQ(TakeCode(), 0);
    colour->SetDescription(colour->GetDescription(), error);
    EXPECT_EQ(TakeCode(), 0) << "writing what is there asks nothing";
}

TEST_F(DictionaryRights, TheCorporateDictionaryHasARightOfItsOwnWithoutOverride) {
    Person("corp", 0);
    SiteAdministration::SetRight({"ManageOptionDictionaryCorp", "corp-role", "", "", true}, error);
    Person("bo", 10, {"ManageOptionDictionaryCorp"});
    As("bo");
    EXPECT_FALSE(Category(Manager().GetCorporateDictionary(), "COLOUR"));
    EXPECT_EQ(TakeCode(), 60519);
    const ZOLIQrdCategory_var own = Category(Dictionary("BIKE"), "COLOUR");
    EXPECT_EQ(TakeCode(), 0);

    As("corp");
    const ZOLIQrdCategory_var corporate = Category(Manager().GetCorporateDictionary(), "COLOUR");
    ASSERT_TRUE(corporate);
    EXPECT_TRUE(ZOLQRDCfgBase::DoIModifyIt(corporate));
    EXPECT_FALSE(ZOLQRDCfgBase::DoIModifyIt(own));
    own->SetName("PAINT", error);
    EXPECT_EQ(TakeCode(), 0) << "who is given the corporate dictionary renames in all";
}

TEST_F(DictionaryRights, RightsDependOnTheSiteThatAnswersForThePart) {
    ImportReport report;
    ASSERT_TRUE(StructureImport::ReadText("record,id,site\npart,DELFTPART,Delft\npart,OSLOPART,Oslo\n",
                                          StructureImport::Form::Csv, "sites.csv", report, error));
    SiteAdministration::AddSite("Oslo", error);
    Person("bo", 0);
    SiteAdministration::SetRight({"Set", "bo-role", "", "Oslo", false}, error);
    As("bo");
    Manager().SetConfigurable(Part("DELFTPART"), error);
    EXPECT_EQ(TakeCode(), 0);
    Manager().SetConfigurable(Part("OSLOPART"), error);
    EXPECT_EQ(TakeCode(), 60510);
}

} // namespace trellis::test
