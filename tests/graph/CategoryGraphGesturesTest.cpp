// Whatever a user does in the graph, it shows what its selection says.

#include "graph/ZOLCategoryGraphViewer.h"
#include "service/ServiceFixture.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLDlgWindow.h"
#include "toolkit/ZOLUserDriver.h"

#include <rapidcheck.h>

#include <set>

namespace trellis::test {

namespace {

ZOLListPtrZOLParameter CopiesOf(const ZOLListPtrZOLParameter& parameters) {
    ZOLListPtrZOLParameter copies;
    for (const ZOLParameter* parameter : parameters)
        copies.Append(new ZOLParameter(*parameter));
    return copies;
}

std::string Drawn(const ZOLGraphNode& node) {
    return node.toCompose().Bytes() + (node.isVisible() ? "\n" : " hidden\n");
}

std::string Drawn(ZOLCategoryGraphViewer& viewer) {
    viewer.UpdateRootNodeColor(0);
    std::string text = Drawn(*viewer.GetRootNode());
    for (const ZOLCategoryNode* category : viewer.GetCategoryNodes()) {
        text += " " + Drawn(*category);
        for (const ZOLOptionNode* option : category->GetOptionNodes())
            text += "  " + Drawn(*option);
    }
    return text;
}

} // namespace

// A graph over two dictionaries that share a category, made and used as numbers say.
class CategoryGraphGestures : public ServiceFixture {
protected:
    using Viewer = ZOLCategoryGraphViewer;
    using Gesture = void (CategoryGraphGestures::*)(int number);

    void Begin() {
        const CallbackScope scope;
        dictionaries = {Dictionary("BIKE"), Dictionary("FRAME")};
        optionCount = 0;
        for (int i = 0; i < 4; ++i)
            AddCategory(dictionaries[1 + i / 3], i < 3 ? "C" + std::to_string(i) : "C0");
        for (int i = 0; i < 3; ++i)
            AddRule(*rc::gen::inRange(0, 1000));
        window = new ZOLDlgWindow(nullptr, "Window");
        viewer = new Viewer(window, "Viewer", "Options", *rc::gen::inRange(0, 2), 600, 400, 0);
        window->SetVisibility(ZOLShown);
        Rebuild(0);
    }
    void End() {
        {
            const CallbackScope scope;
            window->RequestDelayedDestruction();
        }
        DatabaseSession::DiscardUnsaved(error);
        for (const char* part : {"BIKE", "FRAME"})
            Manager().DeleteDictionary(Part(part), error);
        Manager().Save(error);
        error.Clear();
    }
    void Run(const std::vector<Gesture>& gestures) {
        for (const int number : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 10000))) {
            const CallbackScope scope;
            const auto count = static_cast<int>(gestures.size());
            isDrawn = true;
            (this->*gestures[static_cast<std::size_t>(number % count)])(number / count);
            if (!isDrawn)
                Redraw();
            error.Clear();
            ZOLUserDriver::TakeMessages();
        }
    }
    void Redraw() { viewer->AreRulesOn() ? viewer->PlayRules() : viewer->UpdateWithParameters(); }

    void AddCategory(const ZOLIQrdConfigItem_var& dictionary, const std::string& name) {
        const int kind = *rc::gen::inRange(0, 8);
        const auto category =
            Manager().AddCategoryToDictionary(dictionary, name, "", kind & 1, (kind & 2) / 2, error);
        ZOLListValZOLIQrdEffectivity_var options;
        for (int i = *rc::gen::inRange(1, 4); i > 0; --i)
            options.Append(Option(category, ("O" + std::to_string(optionCount++)).c_str()));
        if (kind & 4)
            category->SetDefaultOptions({options[1]}, error);
    }
    ZOLIQrdCategory_var CategoryAt(int number) {
        ZOLListValZOLIQrdCategory_var categories;
        Manager().GetCategoriesFromDictionary(dictionaries[1 + number % 2], categories);
        return categories.Size() == 0 ? ZOLIQrdCategory_var()
                                      : categories[1 + number / 2 % categories.Size()];
    }
    ZOLIQrdEffectivity_var OptionAt(int number) {
        const ZOLIQrdCategory_var category = CategoryAt(number % 8);
        ZOLListValZOLIQrdEffectivity_var options;
        if (category)
            category->GetOptions(options);
        return options.Size() == 0 ? ZOLIQrdEffectivity_var() : options[1 + number / 8 % options.Size()];
    }
    std::string Name(int number) const {
        return "\"O" + std::to_string(number % std::max(optionCount, 1)) + '"';
    }
    // The last form cannot be read.
    void AddRule(int number) {
        const std::string a = Name(number);
        const std::string b = Name(number / 3);
        const std::string c = Name(number / 7);
        const std::string texts[] = {
            "if " + a + " then " + b,          "if " + a + " then " + b + " or " + c,
            "if " + a + " then not " + b,      "if not " + a + " then " + b + " and " + c,
            a + " and " + b + " and not " + c, "if " + a};
        const auto form = static_cast<std::size_t>(number % 6);
        Manager().AddConfigRuleToDictionary(dictionaries[1 + number % 2], "", texts[form],
                                            form == 4 ? ZOLPackageRuleType : ZOLDirectiveRuleType, "", error);
    }

    ZOLCategoryNode* CategoryNodeAt(int number) const {
        const auto& nodes = viewer->GetCategoryNodes();
        return nodes.Size() == 0 ? nullptr : nodes[1 + number % nodes.Size()];
    }
    ZOLOptionNode* OptionNodeAt(int number) const {
        const ZOLCategoryNode* category = CategoryNodeAt(number);
        if (!category || category->GetOptionNodes().Size() == 0)
            return nullptr;
        return category->GetOptionNodes()[1 + number / 4 % category->GetOptionNodes().Size()];
    }

    void Click(int number) {
        if (viewer->UserClickNode(OptionNodeAt(number)) == ZOLUserResult::Done)
            ignoredByUser.erase(CategoryNodeAt(number)->GetCategoryName());
    }
    void Reject(int number) {
        if (viewer->UserContextNode(OptionNodeAt(number)) == ZOLUserResult::Done)
            ignoredByUser.erase(CategoryNodeAt(number)->GetCategoryName());
    }
    void Command(int number) {
        const char* const items[] = {"SelectAllItem",     "ClearSelectedItem", "RejectAllItem",
                                     "ClearRejectedItem", "IgnoreAllItem",     "ConsiderAllItem"};
        const int item = number / 4 % 6;
        ZOLCategoryNode* category = CategoryNodeAt(number);
        try {
            if (viewer->UserContextNode(category) != ZOLUserResult::Done)
                return;
            ZOLUserDriver::Menu(viewer, items[item]);
        } catch (const ZOLUserDriver::Refused&) {
            return;
        }
        if (item == 4)
            ignoredByUser.insert(category->GetCategoryName());
        else if (item == 5)
            ignoredByUser.erase(category->GetCategoryName());
    }
    void Undo(int) {
        viewer->Undo();
        LowerLevels();
    }
    void Redo(int) {
        viewer->Redo();
        LowerLevels();
    }
    // There may have been nothing to undo, which changes no level.
    void LowerLevels() {
        if (ignoredByUser.empty())
            return;
        viewer->IgnoreCategories(viewer->GetIgnoredCategories());
        ForgetLevels();
        isDrawn = false;
    }
    void Clear(int) {
        viewer->ClearAll(1);
        ForgetLevels();
        isDrawn = false;
    }
    void Reset(int number) {
        number % 2 ? viewer->ResetAll() : viewer->ResetDefault();
        ForgetLevels();
    }
    // These categories may be considered again, or are ignored by a list from now on.
    void ForgetLevels() {
        if (viewer->IsAdvancedConfigMode())
            ignoredByUser.clear();
    }
    void SwitchRules(int number) {
        number % 2 ? viewer->RulesOff(1) : viewer->RulesOn(1);
        viewer->AreMatricesOn() ? viewer->MatricesOff() : viewer->MatricesOn();
        number % 3 ? viewer->PackagesOff() : viewer->PackagesOn();
        number % 5 ? viewer->DirectiveRulesOn() : viewer->DirectiveRulesOff();
        isDrawn = false;
    }
    void SwitchCheck(int number) {
        number % 2 ? viewer->RulesCheckMode(1) : viewer->RulesSelectMode(1);
        isDrawn = viewer->AreRulesOn();
    }
    void SwitchHiding(int number) {
        number % 2 ? viewer->HideRuleRejectedOn() : viewer->HideRuleRejectedOff();
        number % 3 ? viewer->HideUserRejectedOff() : viewer->HideUserRejectedOn();
        isDrawn = false;
    }
    void SwitchExclusivity(int number) {
        number % 2 ? viewer->AllExclusivityOff() : viewer->AllExclusivityOn();
    }
    void SwitchMode(int number) {
        number % 2 ? viewer->AdvancedConfigMode() : viewer->SimpleConfigMode();
        viewer->BuildGraph(viewer->GetOptions(number / 2 % 2));
        ignoredByUser.clear();
    }
    void TakeTerm(int number) {
        if (const ZOLOptionNode* option = OptionNodeAt(number)) {
            ZOLQRDCfgEffectivity term(option->GetOptionName(), "");
            term.SetRejected(number % 2);
            viewer->SetSelected(ZOLListValZOLQRDCfgEffectivity{term}, 1, number % 3 == 0);
        }
    }
    void Fold(int number) {
        viewer->UserClickNode(number % 2 ? viewer->GetRootNode() : CategoryNodeAt(number / 2));
        isDrawn = false;
    }
    void Rebuild(int) {
        ZOLListValZOLIQrdCategory_var all;
        for (const ZOLIQrdConfigItem_var& dictionary : dictionaries) {
            ZOLListValZOLIQrdCategory_var categories;
            Manager().GetCategoriesFromDictionary(dictionary, categories);
            all.Append(categories);
        }
        viewer->BuildGraph(all, {}, dictionaries);
        ignoredByUser.clear();
    }

    void Rename(int number) {
        if (const auto category = CategoryAt(number); category && number % 2)
            category->SetName("C" + std::to_string(number % 5), error);
        if (const auto option = OptionAt(number))
            option->SetOption("O" + std::to_string(number % 9), error);
    }
    void Add(int number) {
        if (const auto category = CategoryAt(number))
            Manager().AddOptionToDictionary(category->GetConfigItem(), category,
                                            "N" + std::to_string(number % 100), "", error);
        AddRule(number);
    }
    void Remove(int number) {
        if (const auto option = OptionAt(number); option && number % 3)
            Manager().RemoveOptionFromDictionary(option, error);
        else if (const auto category = CategoryAt(number))
            Manager().RemoveCategoryFromDictionary(category, error);
    }
    void ChangeKind(int number) {
        if (const auto category = CategoryAt(number)) {
            category->SetExclusivity(number % 2, error);
            category->SetMandatory(number / 2 % 2, error);
        }
    }
    void Save(int) { Manager().Save(error); }
    void Discard(int number) {
        number % 2 ? Manager().DiscardUnsaved(dictionaries[1], error)
                   : static_cast<void>(DatabaseSession::DiscardUnsaved(error));
    }
    void Unload(int number) { Manager().UnloadDictionary(dictionaries[1 + number % 2], 0); }
    void RemoveDictionary(int number) {
        if (number % 4 == 0)
            Manager().DeleteDictionary(Part("FRAME"), error);
    }
    void Ask(int number) {
        viewer->GetOptions(number % 2);
        viewer->SetHighlighted(viewer->GetOptions(1), 1);
        viewer->UnHighlightAll();
    }

    // What another viewer of the same switches shows that was only given the selection.
    std::string ShownAnew() {
        const CallbackScope scope;
        auto* otherWindow = new ZOLDlgWindow(nullptr, "Other");
        auto* other =
            new Viewer(otherWindow, "Viewer", "Options", viewer->IsAdvancedConfigMode(), 600, 400, 0);
        viewer->AreRulesOn() ? other->RulesOn(0) : other->RulesOff(0);
        viewer->IsRulesCheckMode() ? other->RulesCheckMode(0) : other->RulesSelectMode(0);
        viewer->ArePackagesOn() ? other->PackagesOn() : other->PackagesOff();
        viewer->AreMatricesOn() ? other->MatricesOn() : other->MatricesOff();
        viewer->AreDirectiveRulesOn() ? other->DirectiveRulesOn() : other->DirectiveRulesOff();
        ZOLListValZOLIQrdCategory_var categories;
        viewer->GetCategories(categories, 1);
        other->BuildGraph(categories, {}, dictionaries);
        other->IgnoreCategories(viewer->GetIgnoredCategories());
        for (ZOLCategoryNode* node : other->GetCategoryNodes())
            if (ignoredByUser.contains(node->GetCategoryName()))
                node->SetIgnored(1);
        other->SetSelected(CopiesOf(viewer->GetParameters()), 0);
        std::string text = Drawn(*other);
        otherWindow->RequestDelayedDestruction();
        return text;
    }
    // Hides nothing and folds nothing, so that only states are compared.
    std::string Shown() {
        const CallbackScope scope;
        viewer->HideRuleRejectedOff();
        viewer->HideUserRejectedOff();
        viewer->ExpandAll();
        return Drawn(*viewer);
    }

    static constexpr Gesture Gestures[] = {
        &CategoryGraphGestures::Click,       &CategoryGraphGestures::Click,
        &CategoryGraphGestures::Click,       &CategoryGraphGestures::Reject,
        &CategoryGraphGestures::Reject,      &CategoryGraphGestures::Command,
        &CategoryGraphGestures::Command,     &CategoryGraphGestures::Undo,
        &CategoryGraphGestures::Redo,        &CategoryGraphGestures::Clear,
        &CategoryGraphGestures::Reset,       &CategoryGraphGestures::SwitchRules,
        &CategoryGraphGestures::SwitchCheck, &CategoryGraphGestures::SwitchHiding,
        &CategoryGraphGestures::SwitchMode,  &CategoryGraphGestures::SwitchExclusivity,
        &CategoryGraphGestures::TakeTerm,    &CategoryGraphGestures::Fold};
    static constexpr Gesture Changes[] = {
        &CategoryGraphGestures::Rename,  &CategoryGraphGestures::Add,
        &CategoryGraphGestures::Remove,  &CategoryGraphGestures::ChangeKind,
        &CategoryGraphGestures::Save,    &CategoryGraphGestures::Discard,
        &CategoryGraphGestures::Unload,  &CategoryGraphGestures::RemoveDictionary,
        &CategoryGraphGestures::Rebuild, &CategoryGraphGestures::Ask};

    ZOLListValZOLIQrdConfigItem_var dictionaries;
    int optionCount = 0;
    ZOLDlgWindow* window = nullptr;
    Viewer* viewer = nullptr;
    std::set<ZOLUnicodeString> ignoredByUser;
    bool isDrawn = true; // by the gesture itself
};

TEST_F(CategoryGraphGestures, EndInWhatAFreshGraphWithTheSameSelectionShows) {
    EXPECT_TRUE(rc::check([this] {
        Begin();
        Run({std::begin(Gestures), std::end(Gestures)});
        const std::string shown = Shown();
        const std::string anew = ShownAnew();
        End();
        RC_ASSERT(shown == anew);
    }));
}

TEST_F(CategoryGraphGestures, DoNoHarmWhenTheDictionaryChangesUnderThem) {
    EXPECT_TRUE(rc::check([this] {
        Begin();
        std::vector<Gesture> all(std::begin(Gestures), std::end(Gestures));
        all.insert(all.end(), std::begin(Changes), std::end(Changes));
        Run(all);
        {
            const CallbackScope scope;
            Rebuild(0);
        }
        const std::string shown = Shown();
        const std::string anew = ShownAnew();
        End();
        RC_ASSERT(shown == anew);
    }));
}

} // namespace trellis::test
