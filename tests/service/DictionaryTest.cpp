#include "service/ServiceFixture.h"

#include "model/ZOLDMPubSub.h"
#include "model/ZOLDMWVTA.h"
#include "site/ZOLIQrdServices.h"
#include "store/Workspace.h"
#include "values/Settings.h"

#include <rapidcheck.h>

#include <algorithm>
#include <filesystem>

namespace trellis::test {

class Dictionary : public ServiceFixture {
protected:
    ZOLIQrdConfigItem_var dictionary = ServiceFixture::Dictionary("BIKE");

    ZOLIQrdEffectivity_var OptionOfName(const char* name) {
        ZOLListValZOLIQrdEffectivity_var found;
        ZOLQRDCfgBase::GetOptByName(name, found);
        return found.Size() == 0 ? nullptr : found[1];
    }
};

TEST_F(Dictionary, IsMadeOnceAndOnlyForConfigurableParts) {
    Manager().AddDictionary(Part("FRAME"), error);
    EXPECT_EQ(TakeCode(), 20265);
    Category(dictionary, "COLOUR");
    Manager().AddDictionary(Part("BIKE"), error);
    EXPECT_EQ(TakeCode(), 0);
    EXPECT_EQ(Names(Object("BIKE").GetDictionary()), "COLOUR()");
    EXPECT_EQ(Object("BIKE").GetDictionary(), dictionary);
    EXPECT_TRUE(ZOLQRDCfgBase::HasDictionnary(Part("BIKE")));
    EXPECT_FALSE(ZOLQRDCfgBase::HasDictionnary(Part("FRAME")));
}

TEST_F(Dictionary, AddingATakenCategoryGivesItsHolder) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    EXPECT_EQ(Category(dictionary, "COLOUR"), colour);
    EXPECT_EQ(TakeCode(), 50074);
    EXPECT_TRUE(parameters.empty()) << "callers add their own";
    EXPECT_NE(Category(dictionary, "colour"), colour) << "case matters";
    EXPECT_TRUE(Category(Manager().GetCorporateDictionary(), "COLOUR"));
    EXPECT_EQ(TakeCode(), 0) << "another dictionary";
}

TEST_F(Dictionary, AnOptionNameIsTakenInTheWholeDictionary) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    const ZOLIQrdCategory_var lamp = Category(dictionary, "LAMP");
    EXPECT_TRUE(Option(colour, "RED"));
    EXPECT_FALSE(Option(lamp, "RED"));
    EXPECT_EQ(TakeCode(), 50073);
    EXPECT_FALSE(
        Manager().AddOptionToDictionary(Manager().GetCorporateDictionary(), colour, "BLUE", "", error));
    EXPECT_EQ(TakeCode(), 60401);
    EXPECT_EQ(parameters, "COLOUR;");
}

TEST_F(Dictionary, NamesHaveOneToFortyCharacters) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    std::string forty;
    for (int i = 0; i < 40; ++i)
        forty += "\xc3\xa4";
    for (const std::string& name : {std::string(), forty + "x"}) {
        EXPECT_FALSE(Category(dictionary, name.c_str()));
        EXPECT_EQ(TakeCode(), 60400);
        EXPECT_FALSE(Option(colour, name.c_str()));
        EXPECT_EQ(TakeCode(), 60400);
        colour->SetName(name, error);
        EXPECT_EQ(TakeCode(), 60400);
    }
    EXPECT_TRUE(Category(dictionary, forty.c_str()));
    EXPECT_EQ(TakeCode(), 0);
    EXPECT_EQ(colour->GetName(), "COLOUR");
}

TEST_F(Dictionary, NamesFreedInMemoryAreTakenAgainBeforeTheSave) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    const ZOLIQrdEffectivity_var red = Option(colour, "RED");
    ASSERT_EQ(Save(), 0);
    colour->RemoveOption(red, error);
    EXPECT_FALSE(Option(colour, "RED"));
    EXPECT_EQ(TakeCode(), 50073) << "out of its category, still in the dictionary";
    Manager().RemoveOptionFromDictionary(red, error);
    EXPECT_TRUE(Option(colour, "RED"));
    Manager().RemoveCategoryFromDictionary(colour, error);
    EXPECT_TRUE(Option(Category(dictionary, "COLOUR"), "RED"));
    EXPECT_EQ(Save(), 0);
    EXPECT_EQ(Stored("SELECT count(*) || ' ' || max(option_name) FROM effectivity"), "1 RED");
}

TEST_F(Dictionary, NamesCanBeSwapped) {
    const ZOLIQrdCategory_var a = Category(dictionary, "A");
    const ZOLIQrdCategory_var b = Category(dictionary, "B");
    ASSERT_EQ(Save(), 0);
    a->SetName("B", error);
    b->SetName("A", error);
    EXPECT_EQ(Category(dictionary, "A"), b);
    EXPECT_EQ(TakeCode(), 50074);
    EXPECT_EQ(Save(), 0);
    Reopen();
    EXPECT_EQ(Names(Object("BIKE").GetDictionary()), "B()A()");
}

TEST_F(Dictionary, ARenamedCategoryLeavesTheOptionsOwnTextOfIt) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    const ZOLIQrdEffectivity_var red = Option(colour, "RED");
    colour->SetName("PAINT", error);
    EXPECT_EQ(red->GetCategory(), "COLOUR");
    EXPECT_EQ(Names(dictionary), "PAINT(RED )");
    EXPECT_TRUE(Option(Category(dictionary, "COLOUR"), "BLUE")) << "the old name is free";
}

TEST_F(Dictionary, DefaultsKeepOrderAndDuplicatesAndLoseRemovedOptions) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    const ZOLIQrdEffectivity_var red = Option(colour, "RED");
    const ZOLIQrdEffectivity_var blue = Option(colour, "BLUE");
    const ZOLIQrdEffectivity_var lamp = Option(Category(dictionary, "LAMP"), "LED");
    colour->SetDefaultOptions({blue, red, lamp, nullptr, blue}, error);
    ASSERT_EQ(Save(), 0);
    Reopen();
    ZOLListValZOLIQrdCategory_var categories;
    Manager().GetCategoriesFromDictionary(Object("BIKE").GetDictionary(), categories);
    ZOLListValZOLIQrdEffectivity_var defaults;
    categories[1]->GetDefaultOptions(defaults);
    ASSERT_EQ(defaults.Size(), 3);
    EXPECT_EQ(defaults[1]->GetOption(), "BLUE");
    EXPECT_EQ(defaults[2]->GetOption(), "RED");
    EXPECT_EQ(defaults[3], defaults[1]);
    const ZOLListValZOLIQrdEffectivity_var same = defaults;
    categories[1]->SetDefaultOptions(same, error);
    EXPECT_EQ(Unsaved(), 0u);
    Manager().RemoveOptionFromDictionary(defaults[1], error);
    categories[1]->GetDefaultOptions(defaults);
    EXPECT_EQ(defaults.Size(), 1);
    EXPECT_EQ(Save(), 0);
    EXPECT_EQ(Stored("SELECT count(*) FROM category_default"), "1");
}

TEST_F(Dictionary, QueriesOfTheWholeDatabaseSeeUnsavedChanges) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    const ZOLIQrdEffectivity_var red = Option(colour, "RED");
    Option(Category(Manager().GetCorporateDictionary(), "COLOUR"), "RED");
    ASSERT_EQ(Save(), 0);
    red->SetOption("CRIMSON", error);
    ZOLListValZOLIQrdEffectivity_var options;
    ZOLQRDCfgBase::GetOptByName("RED", options);
    EXPECT_EQ(options.Size(), 1);
    ZOLQRDCfgBase::GetOptByName("CRIMSON", options);
    ASSERT_EQ(options.Size(), 1);
    EXPECT_EQ(options[1], red);
    EXPECT_EQ(options[1]->GetConfigItem(), dictionary);
    Manager().RemoveCategoryFromDictionary(colour, error);
    ZOLListValZOLIQrdCategory_var categories;
    ZOLQRDCfgBase::GetCategByName("COLOUR", categories);
    ASSERT_EQ(categories.Size(), 1);
    EXPECT_EQ(categories[1]->GetConfigItem(), Manager().GetCorporateDictionary());
}

TEST_F(Dictionary, AFailedSaveKeepsMemoryNamesObjectAndUserAndCanBeRepeatedAfterADiscard) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    ASSERT_EQ(Save(), 0);
    Workspace bert(StoreSession::Open(path), "bert");
    const auto theirs = bert.FindFirst(StoreQuery<CategoryRow>().Where(&CategoryRow::name, "COLOUR"), error);
    theirs->Change(&CategoryRow::description, std::string("by bert"), error);
    ASSERT_TRUE(bert.Save(error));

    colour->SetDescription("by anna", error);
    Option(colour, "RED");
    EXPECT_EQ(Save(), 20902);
    EXPECT_EQ(parameters, "COLOUR;bert;");
    EXPECT_EQ(Names(dictionary), "COLOUR(RED )");
    EXPECT_EQ(Stored("SELECT count(*) FROM effectivity"), "0");
    const std::vector<UnsavedChange> changes = DatabaseSession::UnsavedChanges();
    ASSERT_EQ(changes.size(), 2u);
    EXPECT_TRUE(changes[0].isStale);
    EXPECT_EQ(changes[0].what, "category");
    EXPECT_EQ(changes[1].kind, UnsavedChange::Kind::Added);

    Manager().DiscardUnsaved(dictionary, error);
    EXPECT_EQ(colour->GetDescription(), "by bert");
    EXPECT_EQ(Names(dictionary), "COLOUR()");
    colour->SetDescription("by anna", error);
    EXPECT_EQ(Save(), 0);
    EXPECT_EQ(colour->GetLastModifierId(), "anna");
}

TEST_F(Dictionary, SaveAndCommitAreSignedByWhoIsLoggedInAtThatMoment) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    EXPECT_TRUE(colour->GetLastModifierId().IsEmpty()) << "nobody saved it yet";
    EXPECT_TRUE(colour->GetLastUpdateDate().IsEmpty());
    As("bert");
    ASSERT_EQ(Save(), 0);
    EXPECT_EQ(colour->GetLastModifierId(), "bert");
    std::vector<ZOLGYRError> problems;
    As("");
    Settings::Current().Declare("USER", "carl", SettingOrigin::SiteFile, "", problems);
    ZOLDMPubSub::PublishEvent(Part("BIKE"), ZOLDMPubSub::ObjectChanged);
    Category(dictionary, "LAMP");
    EXPECT_EQ(ZOLDMWVTA::Commit(1, 1), 0);
    Settings::Current().Forget();
    EXPECT_EQ(Stored("SELECT last_modifier FROM category WHERE name = 'LAMP'"), "carl");
    EXPECT_EQ(Stored("SELECT publisher || last_modifier FROM event"), "carlcarl");
    EXPECT_EQ(Stored("SELECT last_modifier FROM category WHERE name = 'COLOUR'"), "bert");
}

TEST_F(Dictionary, AQueryWithoutACarrierTellsTheTraceWhatFailed) {
    Category(dictionary, "COLOUR");
    ASSERT_EQ(Save(), 0);
    Reopen();
    const ZOLIQrdConfigItem_var reopened = Object("BIKE").GetDictionary();
    const std::string trace = folder.Path("trace");
    std::vector<ZOLGYRError> problems;
    Settings::Current().Declare("TRACE.SINK", trace, SettingOrigin::SiteFile, "", problems);
    EXPECT_EQ(Names(reopened), "COLOUR()");
    EXPECT_FALSE(std::filesystem::exists(trace)) << "nothing failed yet";

    Manager().UnloadDictionary(reopened, 0);
    ZOLListValZOLIQrdEffectivity_var options;
    const auto failing = [](const auto& query) {
        Workspace::Current()->Session().FailStatement(1);
        query();
        Workspace::Current()->Session().FailStatement(0);
    };
    failing([&] { EXPECT_EQ(Names(reopened), ""); });
    failing([&] { ZOLQRDCfgBase::GetOptByName("RED", options); });
    failing([] { CreateServices()->GetValue("QRD_PROPOSED_EFF", ZOLIQrdServices::Group); });
    Settings::Current().Forget();
    const std::string lines = TemporaryFolder::Read(trace);
    EXPECT_EQ(std::ranges::count(lines, '\n'), 3) << lines;
    for (const char* operation : {"GetCategories: 20903 ", "ZOLQRDCfgBase::GetOptByName: 20903 ",
                                  "ZOLIQrdServices::GetValue: 20903 "})
        EXPECT_NE(lines.find(operation), std::string::npos) << lines;
}

TEST_F(Dictionary, SaveRunsWithACodeStandingAndLeavesIt) {
    Category(dictionary, "COLOUR");
    error.Set(20267);
    EXPECT_EQ(Save(), 20267);
    EXPECT_EQ(Unsaved(), 0u);
    Category(dictionary, "LAMP");
    Workspace::Current()->Session().FailStatement(1);
    error.Set(-50);
    EXPECT_EQ(Save(), -50);
    EXPECT_EQ(Unsaved(), 1u);
    Workspace::Current()->Session().FailStatement(1);
    EXPECT_EQ(Save(), 20903);
    Workspace::Current()->Session().FailStatement(0);
    EXPECT_EQ(Save(), 0);
}

TEST_F(Dictionary, UnloadingForgetsUnsavedChangesAndHandlesStayEqual) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    const ZOLIQrdEffectivity_var red = Option(colour, "RED");
    ASSERT_EQ(Save(), 0);
    colour->SetDescription("unsaved", error);
    const ZOLIQrdEffectivity_var blue = Option(colour, "BLUE");
    Manager().RemoveOptionFromDictionary(red, error);
    Manager().UnloadDictionary(dictionary, 0);
    EXPECT_EQ(Unsaved(), 0u);
    EXPECT_EQ(Names(dictionary), "COLOUR(RED )");
    ZOLListValZOLIQrdCategory_var categories;
    Manager().GetCategoriesFromDictionary(dictionary, categories);
    EXPECT_EQ(categories[1], colour);
    EXPECT_EQ(categories[1]->GetDescription(), "COLOUR");
    EXPECT_EQ(colour->GetDescription(), "COLOUR") << "handles in other panels read anew";
    EXPECT_FALSE(red->IsNull());
    EXPECT_TRUE(blue->IsNull()) << "it was never stored";
    EXPECT_EQ(blue->GetOption(), "BLUE") << "what it last held";
    blue->SetDescription("again", error);
    EXPECT_EQ(TakeCode(), 60301);
    EXPECT_EQ(parameters, "BLUE;");
    colour->SetDescription("again", error);
    EXPECT_EQ(TakeCode(), 0);
    EXPECT_EQ(categories[1]->GetDescription(), "again") << "both mean the same object";
    ZOLListValZOLIQrdEffectivity_var options;
    colour->GetOptions(options);
    ASSERT_EQ(options.Size(), 1);
    EXPECT_EQ(options[1], red);
    EXPECT_TRUE(Option(colour, "BLUE")) << "an unloaded handle still names its category";
}

TEST_F(Dictionary, AnUnloadOfOneThatWasNeverSavedLeavesNone) {
    Category(dictionary, "COLOUR");
    Manager().UnloadDictionary(dictionary, 0);
    EXPECT_FALSE(Object("BIKE").GetDictionary());
    EXPECT_TRUE(dictionary->IsNull());
    EXPECT_FALSE(Category(dictionary, "COLOUR"));
    EXPECT_EQ(TakeCode(), 60301);
}

TEST_F(Dictionary, DeletedOneCanBeMadeAnewBeforeTheSave) {
    Option(Category(dictionary, "COLOUR"), "RED");
    ASSERT_EQ(Save(), 0);
    Manager().DeleteDictionary(Part("BIKE"), error);
    EXPECT_FALSE(Object("BIKE").GetDictionary());
    Manager().DeleteDictionary(Part("BIKE"), error);
    EXPECT_EQ(TakeCode(), 20904);
    const ZOLIQrdConfigItem_var fresh = ServiceFixture::Dictionary("BIKE");
    EXPECT_NE(fresh, dictionary);
    Category(fresh, "COLOUR");
    EXPECT_EQ(Save(), 0);
    Reopen();
    EXPECT_EQ(Names(Object("BIKE").GetDictionary()), "COLOUR()");
    EXPECT_EQ(Stored("SELECT count(*) FROM effectivity"), "0");
}

TEST_F(Dictionary, DiscardingADeletionBringsAllOfItBack) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    const ZOLIQrdEffectivity_var red = Option(colour, "RED");
    colour->SetDefaultOptions({red}, error);
    ASSERT_EQ(Save(), 0);
    Manager().DeleteDictionary(Part("BIKE"), error);
    DatabaseSession::DiscardUnsaved(error);
    EXPECT_EQ(Object("BIKE").GetDictionary(), dictionary);
    EXPECT_EQ(Names(dictionary), "COLOUR(RED )");
    EXPECT_FALSE(Option(colour, "RED"));
    EXPECT_EQ(TakeCode(), 50073);
    EXPECT_EQ(Unsaved(), 0u);
}

TEST_F(Dictionary, TermsTellCategoryDescriptionAndUsedMark) {
    const ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    const ZOLIQrdEffectivity_var red = Option(colour, "RED");
    Option(colour, "BLUE");
    red->SetDescription("Signal red", error);
    red->SetUsed(1, error);
    ZOLListValZOLQRDCfgEffectivity options;
    EXPECT_EQ(ZOLQRDCfgBase::GetOptionsFromProductDictionary(Part("BIKE"), options), 0);
    ASSERT_EQ(options.Size(), 2);
    EXPECT_EQ(options[1].GetCategory() + options[1].GetDescription(), "COLOURSignal red");
    EXPECT_TRUE(options[1].IsUsed());
    EXPECT_FALSE(options[2].IsUsed());
    options.QuickSort(&ZOLQRDCfgBase::CompareOptionName);
    EXPECT_EQ(options[1].GetName(), "BLUE");
    EXPECT_EQ(ZOLQRDCfgBase::GetOptionsFromProductDictionary(Part("FRAME"), options), 20265);
    EXPECT_EQ(options.Size(), 0);
}

TEST_F(Dictionary, IsReadByAFixedNumberOfStatements) {
    const auto statementsToRead = [this] {
        Reopen();
        const ZOLIQrdConfigItem_var reopened = Object("BIKE").GetDictionary();
        for (int n = 1;; ++n) {
            Manager().UnloadDictionary(reopened, 0);
            ZOLListValZOLIQrdCategory_var categories;
            Workspace::Current()->Session().FailStatement(n);
            Manager().GetCategoriesFromDictionary(reopened, categories);
            Workspace::Current()->Session().FailStatement(0);
            if (categories.Size() > 0)
                return n;
        }
    };
    const ZOLIQrdCategory_var first = Category(dictionary, "COLOUR");
    Option(first, "RED");
    ASSERT_EQ(Save(), 0);
    const int few = statementsToRead();
    dictionary = Object("BIKE").GetDictionary();
    for (int i = 0; i < 30; ++i) {
        const ZOLIQrdCategory_var category = Category(dictionary, ("C" + std::to_string(i)).c_str());
        category->SetDefaultOptions({Option(category, ("O" + std::to_string(i)).c_str())}, error);
    }
    ASSERT_EQ(Save(), 0);
    EXPECT_EQ(statementsToRead(), few);
}

TEST_F(Dictionary, ComparisonsSortHandlesAndCopiesAlike) {
    ZOLListValZOLIQrdCategory_var handles{Category(dictionary, "b"), Category(dictionary, "B"), nullptr};
    handles.QuickSort(&ZOLQRDCfgBase::CompareCategoryName);
    EXPECT_FALSE(handles[1]);
    EXPECT_EQ(handles[2]->GetName(), "B");
    ZOLOption b("b", "", "X", 0, 0);
    ZOLOption capital("B", "", "Y", 0, 0);
    ZOLListPtrZOLOption copies;
    copies.Append(&b);
    copies.Append(&capital);
    copies.QuickSort(&ZOLQRDCfgBase::CompareOptionName);
    EXPECT_EQ(copies[1], &capital);
    copies.QuickSort(&ZOLQRDCfgBase::CompareOptionType);
    EXPECT_EQ(copies[1], &b);
}

// Random work on a dictionary against a model of names, with a save, an unload or a discard now and then; in
// the end memory, model and a fresh process agree.
TEST_F(Dictionary, MemoryAndStoreAgreeAfterAnyWork) {
    ASSERT_EQ(Save(), 0);
    EXPECT_TRUE(rc::check([this] {
        Manager().DeleteDictionary(Part("BIKE"), error);
        Manager().AddDictionary(Part("BIKE"), error);
        RC_ASSERT(Save() == 0);
        ZOLIQrdConfigItem_var item = Object("BIKE").GetDictionary();
        using Model = std::map<std::string, std::string>; // option -> category
        Model model;
        Model saved;
        const ZOLIQrdCategory_var categories[] = {Category(item, "A"), Category(item, "B")};
        RC_ASSERT(Save() == 0);
        for (const int action : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 10))) {
            const std::string name(1, *rc::gen::element('p', 'q', 'r'));
            const auto option = OptionOfName(name.c_str());
            if (action < 4) {
                const auto& category = categories[*rc::gen::inRange(0, 2)];
                const bool added = Option(category, name.c_str()) != NULL_var;
                RC_ASSERT(added == !model.contains(name));
                model.emplace(name, category->GetName().Bytes());
            } else if (action < 6 && option) {
                Manager().RemoveOptionFromDictionary(option, error);
                model.erase(name);
            } else if (action == 6 && option && !model.contains("s")) {
                option->SetOption("s", error);
                model["s"] = model[name];
                model.erase(name);
            } else if (action == 7) {
                RC_ASSERT(Save() == 0);
                saved = model;
            } else if (action == 8) {
                DatabaseSession::DiscardUnsaved(error);
                model = saved;
            } else if (action == 9) {
                Manager().UnloadDictionary(item, 0);
                model = saved;
            }
            error.Clear();
            ZOLListValZOLQRDCfgEffectivity options;
            Manager().GetOptionsFromDictionary(item, options);
            Model seen;
            for (const ZOLQRDCfgEffectivity& term : options)
                seen[term.GetName().Bytes()] = term.GetCategory().Bytes();
            RC_ASSERT(seen == model);
        }
        RC_ASSERT(Save() == 0);
        RC_ASSERT(Stored("SELECT count(*) FROM effectivity") == std::to_string(model.size()));
    }));
}

} // namespace trellis::test
