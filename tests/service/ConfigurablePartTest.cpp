#include "service/ServiceFixture.h"

#include "store/Workspace.h"

namespace trellis::test {

using ConfigurablePart = ServiceFixture;

TEST_F(ConfigurablePart, IsToldApartFromAPartThatIsNoneAndFromNoPart) {
    ZOLQRDConfigurableObject object;
    Manager().GetConfigurableObject(Part("BIKE"), object, error);
    EXPECT_EQ(TakeCode(), 20265);
    Manager().GetConfigurableObject(ZOLDMInstance(), object, error);
    EXPECT_EQ(TakeCode(), 20904);
    Manager().GetConfigurableObject(_SEQUENCE_octet(std::string(50, 'f')), object, error);
    EXPECT_EQ(TakeCode(), 20904);
    EXPECT_EQ(parameters, std::string(50, 'f') + ";");
    ZOLListValZOLDMInstance links;
    Part("BIKE").GetChildren(0, "ZOLASS", links, 1);
    Manager().SetConfigurable(links[1], error);
    EXPECT_EQ(TakeCode(), 20904) << "a link is no part";

    Manager().SetConfigurable(Part("BIKE"), error);
    Manager().GetConfigurableObject(Part("BIKE"), object, error);
    EXPECT_EQ(TakeCode(), 0);
    EXPECT_EQ(object.GetObject(), Part("BIKE").GetUUId());
    EXPECT_TRUE(object.GetConfigItem());
    EXPECT_FALSE(object.GetDictionary());
}

TEST_F(ConfigurablePart, StaysSoAfterARestartOnlyWhenItWasSaved) {
    Manager().SetConfigurable(Part("BIKE"), error);
    Manager().SetConfigurable(Part("FRAME"), error);
    EXPECT_EQ(Unsaved(), 4u);
    EXPECT_EQ(Save(), 0);
    EXPECT_EQ(Unsaved(), 0u);
    Manager().SetConfigurable(Part("FRAME"), error);
    EXPECT_EQ(Unsaved(), 0u) << "configurable already";
    Manager().SetConfigurable(Part("WHEEL"), error);
    Reopen();
    for (const auto& [part, code] : {std::pair{"BIKE", 0}, {"FRAME", 0}, {"WHEEL", 20265}}) {
        Object(part);
        EXPECT_EQ(TakeCode(), code) << part;
    }
}

TEST_F(ConfigurablePart, IsSeenHoweverManyWereAskedForBefore) {
    Manager().SetConfigurable(Part("FRAME"), error);
    EXPECT_EQ(Save(), 0);
    Reopen();
    for (int i = 0; i < 20; ++i) {
        Object("BIKE");
        EXPECT_EQ(TakeCode(), 20265);
    }
    Object("FRAME");
    EXPECT_EQ(TakeCode(), 0);

    auto bert = std::make_unique<Workspace>(StoreSession::Open(path), "bert");
    ConfigurablePartRow row;
    row.partUuid = Part("BIKE").GetUUId().Text();
    bert->Create(row);
    ASSERT_TRUE(bert->Save(error));
    Object("BIKE");
    EXPECT_EQ(TakeCode(), 0) << "made configurable by another process meanwhile";
}

TEST_F(ConfigurablePart, LosesItsItemAndEffectivitiesButFindsItsDictionaryAgain) {
    const ZOLIQrdConfigItem_var dictionary = Dictionary("BIKE");
    Option(Category(dictionary, "COLOUR"), "RED");
    const ZOLIQrdConfigItem_var item = Object("BIKE").GetConfigItem();
    item->AddEffectivity(ZOLQRDCfgEffectivity("option", "RED", 0, 0, {}, {}), error);
    ASSERT_EQ(Save(), 0);

    ZOLQRDCfgBase::UnsetConfigurable(Part("BIKE"), error);
    EXPECT_EQ(TakeCode(), 0);
    Object("BIKE");
    EXPECT_EQ(TakeCode(), 20265);
    ZOLIQrdConfigItem_var reached;
    Manager().GetDictionary(Part("BIKE").GetUUId(), reached);
    EXPECT_FALSE(reached);
    EXPECT_TRUE(item->IsNull());
    ASSERT_EQ(Save(), 0);
    EXPECT_EQ(Stored("SELECT count(*) FROM config_item WHERE status = 'C'"), "0");
    EXPECT_EQ(Stored("SELECT count(*) FROM effectivity"), "1");

    Reopen();
    Manager().SetConfigurable(Part("BIKE"), error);
    EXPECT_EQ(Names(Object("BIKE").GetDictionary()), "COLOUR(RED )");
    ZOLListValZOLIQrdEffectivity_var effectivities;
    Object("BIKE").GetConfigItem()->GetEffectivities(effectivities);
    EXPECT_EQ(effectivities.Size(), 0);
}

TEST_F(ConfigurablePart, CanBeUnsetAndSetAgainBeforeASave) {
    Manager().SetConfigurable(Part("BIKE"), error);
    ASSERT_EQ(Save(), 0);
    ZOLQRDCfgBase::UnsetConfigurable(Part("BIKE"), error);
    Manager().SetConfigurable(Part("BIKE"), error);
    EXPECT_EQ(Save(), 0);
    EXPECT_EQ(Stored("SELECT count(*) FROM configurable_part"), "1");
    ZOLQRDCfgBase::UnsetConfigurable(Part("WHEEL"), error);
    EXPECT_EQ(TakeCode(), 20265);
}

TEST_F(ConfigurablePart, KeepsItsMaskOfTypes) {
    Manager().ModifyEffTypeForPart(Part("BIKE"), 42, error);
    EXPECT_EQ(TakeCode(), 20265);
    Manager().SetConfigurable(Part("BIKE"), error);
    Manager().SetConfigurable(Part("WHEEL"), error);
    EXPECT_EQ(ZOLQRDCfgBase::GetAllowedEffectivityType({Part("BIKE")}), 0);
    Manager().ModifyEffTypeForPart(Part("BIKE"), 2 + 32, error);
    Manager().ModifyEffTypeForPart(Part("WHEEL"), 8, error);
    ASSERT_EQ(Save(), 0);
    Reopen();
    EXPECT_EQ(ZOLQRDCfgBase::GetAllowedEffectivityType({Part("BIKE"), Part("WHEEL"), Part("FRAME")}), 42);
    Manager().ModifyEffTypeForPart(Part("WHEEL"), 8, error);
    EXPECT_EQ(Unsaved(), 0u) << "the stored value makes nothing dirty";
}

TEST_F(ConfigurablePart, EffectivitiesComeBackAsTheTermsThatWereStored) {
    Manager().SetConfigurable(Part("BIKE"), error);
    ZOLQRDCfgEffectivity pack("pack_date", ZOLListValZOLUnicodeString{"RED", "BELL"}, 0, 0,
                              ZOLQRDTime("2026-01-31", error), ZOLQRDTime());
    pack.SetMilestoneStart("SPRING", "GATE 1", 1);
    pack.SetAttrList({"Requester"}, {"bo"});
    const ZOLQRDCfgEffectivity range("option_range", "RED", 5, 0, {}, {});
    for (const auto& term : {pack, range})
        Object("BIKE").GetConfigItem()->AddEffectivity(term, error);
    ASSERT_EQ(Save(), 0);
    Reopen();
    ZOLListValZOLIQrdEffectivity_var effectivities;
    Object("BIKE").GetConfigItem()->GetEffectivities(effectivities);
    ASSERT_EQ(effectivities.Size(), 2);
    const ZOLQRDCfgEffectivity stored(effectivities[1]);
    EXPECT_EQ(stored.GetType(), "pack_date");
    EXPECT_EQ(stored, pack);
    ZOLUnicodeString program, id;
    int offset = 0;
    stored.GetMilestoneStart(program, id, offset);
    EXPECT_EQ(program + id, "SPRINGGATE 1");
    EXPECT_EQ(offset, 1);
    ZOLListValZOLUnicodeString names, values;
    stored.GetAttrList(names, values);
    ASSERT_EQ(values.Size(), 1);
    EXPECT_EQ(values[1], "bo");
    int first = 0;
    int last = -1;
    ZOLQRDCfgEffectivity(effectivities[2]).GetRange(first, last);
    EXPECT_EQ(first, 5);
    EXPECT_EQ(last, 0);

    Object("BIKE").GetConfigItem()->RemoveEffectivity(effectivities[1], error);
    ASSERT_EQ(Save(), 0);
    EXPECT_EQ(Stored("SELECT count(*) FROM effectivity_option"), "0");
    EXPECT_EQ(Stored("SELECT count(*) FROM effectivity"), "1");
}

TEST_F(ConfigurablePart, ChildrenComeOnceEach) {
    ZOLListVal<_SEQUENCE_octet> children;
    ZOLQRDCfgBase::GetChildPart(Part("BIKE"), children);
    ASSERT_EQ(children.Size(), 2);
    EXPECT_EQ(children[2], Part("WHEEL").GetUUId());
}

TEST_F(ConfigurablePart, NothingCrashesWithoutADatabase) {
    const ZOLIQrdConfigItem_var dictionary = Dictionary("BIKE");
    const ZOLIQrdCategory_var category = Category(dictionary, "COLOUR");
    const ZOLQRDConfigurableObject object = Object("BIKE");
    DatabaseSession::Close();
    EXPECT_EQ(ZOLQRDCfgManager::CurrentCfgManager(error), nullptr);
    EXPECT_EQ(TakeCode(), 60201);
    EXPECT_FALSE(object.GetDictionary());
    EXPECT_EQ(category->GetName(), "COLOUR");
    ZOLListValZOLIQrdEffectivity_var options;
    category->GetOptions(options);
    category->SetName("PAINT", error);
    EXPECT_EQ(TakeCode(), 60301);
    EXPECT_FALSE(category->GetConfigItem());
    Reopen();
    EXPECT_FALSE(Manager().AddOptionToDictionary(dictionary, category, "RED", "", error));
    EXPECT_EQ(TakeCode(), 60301);
    EXPECT_NE(dictionary, Manager().GetCorporateDictionary());
}

} // namespace trellis::test
