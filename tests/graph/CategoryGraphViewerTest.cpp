#include "graph/ZOLCategoryGraphViewer.h"
#include "service/ServiceFixture.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgWindow.h"
#include "toolkit/ZOLUserDriver.h"

namespace trellis::test {

class CategoryGraph : public ServiceFixture {
protected:
    using Driver = ZOLUserDriver;

    CategoryGraph() {
        for (const char* name : {"RED", "BLUE"})
            Option(colour, name);
        for (const char* name : {"LED", "HALOGEN"})
            Option(lamp, name);
        for (const char* name : {"BELL", "RACK"})
            Option(extra, name);
    }
    ~CategoryGraph() override {
        if (window) {
            const CallbackScope scope;
            window->RequestDelayedDestruction();
        }
    }

    void Show(int advanced) {
        const CallbackScope scope;
        window = new ZOLDlgWindow(nullptr, "Window");
        viewer = new ZOLCategoryGraphViewer(window, "Viewer", "Options", advanced, 600, 400, 0);
        window->SetVisibility(ZOLShown);
        Build({});
    }
    void Build(const ZOLListValZOLQRDCfgEffectivity& terms) {
        ZOLListValZOLIQrdCategory_var categories;
        Manager().GetCategoriesFromDictionary(dictionary, categories);
        Build(categories, terms);
    }
    void Build(const ZOLListValZOLIQrdCategory_var& categories, const ZOLListValZOLQRDCfgEffectivity& terms) {
        const CallbackScope scope;
        ZOLListValZOLIQrdConfigItem_var dictionaries;
        dictionaries.Append(dictionary);
        viewer->BuildGraph(categories, terms, dictionaries);
    }
    void Rule(const char* text) {
        Manager().AddConfigRuleToDictionary(dictionary, "", text, ZOLDirectiveRuleType, "", error);
    }
    ZOLGraphNode* Node(const char* category, const char* option) {
        std::vector<ZOLUnicodeString> path = {"Options", ZOLUnicodeString(category) + " (" + category + ")"};
        path.push_back(ZOLUnicodeString(option) + " (" + option + ")");
        return Driver::Node(viewer, path);
    }
    void Click(const char* category, const char* option) { Driver::Click(viewer, Node(category, option)); }
    void Reject(const char* category, const char* option) {
        Driver::ContextClick(viewer, Node(category, option));
    }
    void Menu(const char* category, const char* item) {
        Driver::ContextClick(
            viewer, Driver::Node(viewer, {"Options", ZOLUnicodeString(category) + " (" + category + ")"}));
        Driver::Menu(viewer, item);
    }
    // The selection in order: + and - by the user, * and / by the rules, ? and ! without a source.
    std::string Selection() const {
        std::string text;
        for (const ZOLParameter* parameter : viewer->GetParameters()) {
            const char* signs = parameter->GetParameterSource() == ZOLParameter::SourceUser   ? "+-"
                                : parameter->GetParameterSource() == ZOLParameter::SourceRule ? "*/"
                                                                                              : "?!";
            text += signs[parameter->IsNot()] + parameter->GetOption().Bytes() + " ";
        }
        return text;
    }
    int RootColour() const { return viewer->GetRootNode()->getColor(); }

    ZOLIQrdConfigItem_var dictionary = Dictionary("BIKE");
    ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR"); // exclusive, as the next
    ZOLIQrdCategory_var lamp = Category(dictionary, "LAMP");
    ZOLIQrdCategory_var extra = Manager().AddCategoryToDictionary(dictionary, "EXTRA", "EXTRA", 0, 0, error);
    ZOLDlgWindow* window = nullptr;
    ZOLCategoryGraphViewer* viewer = nullptr;
};

TEST_F(CategoryGraph, AClickIsPlayedAndTakenBackByUndo) {
    Rule(R"(if "RED" then "LED" and "BELL")");
    Show(0);
    Click("COLOUR", "RED");
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN *BELL ");
    EXPECT_EQ(Node("LAMP", "LED")->getColor(), 7);
    EXPECT_EQ(RootColour(), 46);
    Click("COLOUR", "BLUE");
    EXPECT_EQ(Selection(), "-RED +BLUE ");
    viewer->Undo();
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN *BELL ");
    viewer->Undo();
    EXPECT_EQ(Selection(), "");
    viewer->Undo();
    viewer->Redo();
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN *BELL ");
}

TEST_F(CategoryGraph, AConflictStaysVisibleUntilItIsTakenBack) {
    Rule(R"(if "RED" then "LED")");
    Show(0);
    Click("LAMP", "HALOGEN");
    Click("COLOUR", "RED");
    EXPECT_EQ(Node("COLOUR", "RED")->firstParent()->getColor(), 4);
    EXPECT_EQ(RootColour(), 4);
    EXPECT_NE(Selection().find("+RED"), std::string::npos) << "the click stays until the user takes it away";
    viewer->Undo();
    EXPECT_NE(RootColour(), 4);
    EXPECT_EQ(Selection(), "-LED +HALOGEN /RED ");
}

TEST_F(CategoryGraph, WhatFollowedBeforeAConflictStaysWithIt) {
    Rule(R"(if "RED" then "LED" and "BELL")");
    Show(0);
    Click("COLOUR", "RED");
    Reject("LAMP", "LED");
    EXPECT_EQ(Selection(), "-BLUE +RED /HALOGEN *BELL -LED ");
    EXPECT_EQ(RootColour(), 4);
    Reject("LAMP", "LED");
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN *BELL ");
}

TEST_F(CategoryGraph, AMenuEndsWithTheCategoryThatItIsFor) {
    Show(1);
    Driver::ContextClick(viewer, Driver::Node(viewer, {"Options", "EXTRA (EXTRA)"}));
    const auto* menu = static_cast<ZOLDlgContextualMenu*>(Driver::Find(viewer, "ContextualMenu"));
    EXPECT_TRUE(menu->IsOpen());
    Build({});
    EXPECT_FALSE(menu->IsOpen());
}

TEST_F(CategoryGraph, ARejectionThatASelectionNeedsStays) {
    Show(0);
    Click("COLOUR", "RED");
    Reject("COLOUR", "BLUE");
    EXPECT_EQ(Selection(), "+RED -BLUE ");
    Click("COLOUR", "RED");
    Reject("COLOUR", "BLUE");
    EXPECT_EQ(Selection(), "");
}

TEST_F(CategoryGraph, TheRootTellsOfAMandatoryCategoryWithoutAChoice) {
    lamp->SetMandatory(1, error);
    Show(0);
    EXPECT_TRUE(viewer->AllMandatoryCategoriesSelected()) << "as long as nothing is chosen at all";
    Click("COLOUR", "RED");
    EXPECT_EQ(RootColour(), 7);
    EXPECT_FALSE(viewer->AllMandatoryCategoriesSelected());
    Click("LAMP", "LED");
    EXPECT_EQ(RootColour(), 1);
    EXPECT_TRUE(viewer->AllMandatoryCategoriesSelected());
}

TEST_F(CategoryGraph, TermsAreAddedToTheSelectionAsTheyAre) {
    Show(0);
    Click("COLOUR", "RED");
    ZOLListValZOLQRDCfgEffectivity terms;
    for (const char* name : {"RED", "LED", "BELL"})
        terms.Append(ZOLQRDCfgEffectivity(name, ""));
    terms[3].SetRejected();
    viewer->SetSelected(terms, 2, 1);
    EXPECT_EQ(Selection(), "-BLUE +RED +LED -BELL /HALOGEN ") << "none twice";
    viewer->Undo();
    EXPECT_NE(Selection(), "") << "earlier states are forgotten";
    viewer->SetHighlighted(terms, 1);
    EXPECT_EQ(Node("EXTRA", "BELL")->getColor(), 112);
    viewer->UnHighlightAll();
    EXPECT_EQ(Node("EXTRA", "BELL")->getColor(), 12);
}

TEST_F(CategoryGraph, CategoriesOfOneNameInTwoDictionariesAreOne) {
    const auto corporate = Manager().GetCorporateDictionary();
    const auto more = Category(corporate, "COLOUR");
    Option(more, "GREEN");
    Option(more, "RED");
    Show(0);
    {
        const CallbackScope scope;
        viewer->BuildGraph({colour, more}, {}, {dictionary, corporate});
    }
    Click("COLOUR", "GREEN");
    EXPECT_EQ(Selection(), "-BLUE -RED +GREEN ");
    ZOLListValZOLIQrdCategory_var categories;
    EXPECT_EQ(viewer->GetCategories(categories, 1), 2);
    EXPECT_EQ(viewer->GetOptions(1).Size(), 3) << "each name once";
    EXPECT_EQ(viewer->GetOptions(0).Size(), 3) << "of the whole dictionaries";
}

TEST_F(CategoryGraph, RejectingAndTheMenuOfACategory) {
    Show(1);
    Reject("EXTRA", "RACK");
    EXPECT_EQ(Selection(), "-RACK ");
    Menu("EXTRA", "SelectAllItem");
    EXPECT_EQ(Selection(), "-RACK ?BELL ") << "a rejection stays in force";
    Menu("EXTRA", "ClearSelectedItem");
    EXPECT_EQ(Selection(), "-RACK ");
    Menu("EXTRA", "IgnoreAllItem");
    EXPECT_EQ(Selection(), "");
    EXPECT_EQ(Node("EXTRA", "RACK")->getColor(), 66);
    Menu("EXTRA", "ConsiderAllItem");
    EXPECT_EQ(Node("EXTRA", "RACK")->getColor(), 6);
    EXPECT_THROW(Menu("COLOUR", "SelectAllItem"), ZOLUserDriver::Refused) << "of an exclusive category";
}

TEST_F(CategoryGraph, DefaultsAreChosenOnlyWhereNothingElseIsTold) {
    ZOLListValZOLIQrdEffectivity_var defaults;
    extra->GetOptions(defaults);
    extra->SetDefaultOptions(defaults, error);
    Show(0);
    EXPECT_EQ(Selection(), "+BELL +RACK ");
    ZOLListValZOLQRDCfgEffectivity terms;
    terms.Append(ZOLQRDCfgEffectivity("LED", ""));
    Build(terms);
    EXPECT_EQ(Selection(), "+LED /HALOGEN ") << "exclusive as its category is";
    viewer->ResetAll();
    EXPECT_EQ(Selection(), "+BELL +RACK ") << "the first selection of the viewer";
    {
        const CallbackScope scope;
        viewer->RulesCheckMode(0);
        Build({});
    }
    EXPECT_EQ(Selection(), "") << "in check mode none";
    {
        const CallbackScope scope;
        viewer->RulesSelectMode(0);
        viewer->AdvancedConfigMode();
        viewer->ClearAll(1);
        Build({});
    }
    EXPECT_EQ(Selection(), "") << "nor where all is ignored";
}

TEST_F(CategoryGraph, CheckModeReportsConflictsAndDecidesNothing) {
    Rule(R"(if "RED" then "LED")");
    Show(0);
    viewer->RulesCheckMode(1);
    Click("COLOUR", "RED");
    EXPECT_EQ(Selection(), "-BLUE +RED ");
    Click("LAMP", "HALOGEN");
    EXPECT_EQ(RootColour(), 4);
    viewer->RulesOff(1);
    EXPECT_NE(RootColour(), 4);
}

TEST_F(CategoryGraph, TermsTellTheSelectionByMode) {
    Show(0);
    Click("COLOUR", "RED");
    EXPECT_EQ(viewer->GetOptions(1).Size(), 2) << "what has a parameter";
    viewer->AdvancedConfigMode();
    const auto all = viewer->GetOptions(1);
    EXPECT_EQ(all.Size(), 6);
    int undefined = 0;
    for (const ZOLQRDCfgEffectivity& term : all)
        undefined += term.IsUndefined();
    EXPECT_EQ(undefined, 4);
}

TEST_F(CategoryGraph, AnIgnoredCategoryIsNoChoiceAndIgnoredOnceHoweverOftenItIsTold) {
    Show(1);
    Click("COLOUR", "RED");
    const auto terms = viewer->GetOptions(0);
    Build({colour}, terms);
    EXPECT_EQ(Selection(), "+RED -BLUE ") << "what is not shown is not chosen";
    Build(terms);
    EXPECT_EQ(viewer->GetIgnoredCategories().Size(), 2);
    Menu("EXTRA", "ConsiderAllItem");
    EXPECT_EQ(viewer->GetIgnoredCategories().Locate("EXTRA"), 0);
    viewer->Undo();
    EXPECT_GT(viewer->GetIgnoredCategories().Locate("EXTRA"), 0);
}

TEST_F(CategoryGraph, BranchesOpenAndCloseWithTheRoot) {
    Show(0);
    Driver::Click(viewer, Driver::Node(viewer, {"Options", "COLOUR (COLOUR)"}));
    Click("LAMP", "LED");
    EXPECT_EQ(Node("COLOUR", "RED"), nullptr) << "what was closed stays so while one chooses elsewhere";
    Driver::Click(viewer, viewer->GetRootNode());
    EXPECT_EQ(Node("COLOUR", "RED"), nullptr);
    Driver::Click(viewer, Driver::Node(viewer, {"Options", "COLOUR (COLOUR)"}));
    EXPECT_NE(Node("COLOUR", "RED"), nullptr);
    EXPECT_EQ(viewer->GetRootNode()->getPixmap(), "diropen.rgb");
}

} // namespace trellis::test
