// A panel over the dictionaries of two products, which share a category.

#include "graph/ZOLDlgCategoryGraph.h"
#include "service/ServiceFixture.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLDlgWindow.h"
#include "toolkit/ZOLUserDriver.h"

#include <algorithm>
#include <cstdlib>

namespace trellis::test {

class MergedDictionaries : public ServiceFixture {
protected:
    using Driver = ZOLUserDriver;

    MergedDictionaries() {
        setenv("XDG_DATA_HOME", folder.Path("data").c_str(), 1);
        for (const auto& [category, option] :
             {std::pair(colour, "RED"), std::pair(colour, "BLUE"), std::pair(sameColour, "BLUE"),
              std::pair(sameColour, "GREEN"), std::pair(material, "STEEL"), std::pair(material, "CARBON")})
            Option(category, option);
        Manager().AddConfigRuleToDictionary(ofFrame, "", R"(if "GREEN" then "CARBON")", ZOLDirectiveRuleType,
                                            "", error);
        const CallbackScope scope;
        window = new ZOLDlgWindow(nullptr, "Window");
        constexpr int WithControls = 1;
        constexpr int Simple = 0;
        panel = new ZOLDlgCategoryGraph(window, "Panel", "Options", WithControls, Simple, 700, 400, 0);
        panel->BuildGraph({colour, sameColour, material}, {}, {ofBike, ofFrame});
        window->SetVisibility(ZOLShown);
    }
    ~MergedDictionaries() override {
        const CallbackScope scope;
        window->RequestDelayedDestruction();
    }

    ZOLDialog* Find(const char* path) { return Driver::Find(window, path); }
    ZOLGraphNode* Node(const char* category, const char* option) {
        const auto text = [](const char* name) { return ZOLUnicodeString(name) + " (" + name + ")"; };
        return Driver::Node(panel->GetViewer(), {"Options", text(category), text(option)});
    }
    void Click(const char* category, const char* option) {
        Driver::Click(panel->GetViewer(), Node(category, option));
    }
    // In the order of names; rejected ones behind a minus.
    std::string Terms(int withOthers) {
        std::vector<std::string> names;
        for (const ZOLQRDCfgEffectivity& term : panel->GetOptions(withOthers))
            names.push_back((term.IsRejected() ? "-" : "+") + term.GetOptionName().Bytes());
        std::ranges::sort(names, {}, [](const std::string& name) { return name.substr(1); });
        std::string text;
        for (const std::string& name : names)
            text += name + " ";
        return text;
    }
    static int Count(const std::string& text, const std::string& part) {
        int count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++count;
        return count;
    }

    ZOLIQrdConfigItem_var ofBike = Dictionary("BIKE");
    ZOLIQrdConfigItem_var ofFrame = Dictionary("FRAME");
    ZOLIQrdCategory_var colour = Category(ofBike, "COLOUR"); // exclusive, as all
    ZOLIQrdCategory_var sameColour = Category(ofFrame, "COLOUR");
    ZOLIQrdCategory_var material = Category(ofFrame, "MATERIAL");
    ZOLDlgWindow* window = nullptr;
    ZOLDlgCategoryGraph* panel = nullptr;
};

TEST_F(MergedDictionaries, AChoiceInTheSharedCategoryFollowsTheRulesOfBoth) {
    EXPECT_EQ(panel->CountOpenCategories(), 2);
    EXPECT_EQ(Driver::Describe(window).find("There are no rules."), std::string::npos)
        << "one of the dictionaries has some";
    Click("COLOUR", "GREEN");
    EXPECT_EQ(Terms(1), "-BLUE +CARBON +GREEN -RED -STEEL ");
    EXPECT_EQ(Terms(0), Terms(1));
    Click("COLOUR", "RED");
    EXPECT_EQ(Terms(0), "-BLUE -GREEN +RED ");
    Driver::Press(Find("Undo"));
    EXPECT_EQ(Terms(0), "-BLUE +CARBON +GREEN -RED -STEEL ");
    Click("MATERIAL", "STEEL");
    EXPECT_TRUE(panel->IsInConflict());
    Driver::Press(Find("Undo"));
    EXPECT_FALSE(panel->IsInConflict());
}

TEST_F(MergedDictionaries, NamesThatBothHaveAreOfferedOnce) {
    Driver::Press(Find("OptSearch"));
    const std::string search = Driver::Describe(Find("SearchOptPanel"));
    EXPECT_EQ(Count(search, "BLUE"), Count(search, "GREEN")) << search;
    Driver::Type(Find("RapidSelectField"), "BLUE");
    Driver::Press(Find("RapidSelect"));
    EXPECT_EQ(Terms(0), "+BLUE -GREEN -RED ") << "one option, though two dictionaries have it";
    Driver::Press(Find("Categories"));
    const std::string shown = Driver::Describe(Find("CheckListPanel"));
    EXPECT_EQ(Count(shown, "COLOUR ("), 1) << shown;
    Driver::Ok(Find("CheckListPanel"));
    EXPECT_NE(Node("COLOUR", "GREEN"), nullptr);
    EXPECT_EQ(Terms(0), "+BLUE -GREEN -RED ");
}

} // namespace trellis::test
