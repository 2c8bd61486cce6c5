#pragma once

#include "configure/ConfigureWindow.h"
#include "service/ServiceFixture.h"
#include "session/ModuleLoader.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLUserDriver.h"

#include <cstdlib>
#include <functional>

namespace trellis::test {

// The configure window on BIKE, whose dictionary has COLOUR (RED, BLUE) and LAMP (LED, HALOGEN), both exclusive, and
// EXTRA (BELL, RACK). The panel is that of the module.
class ConfigureFixture : public ServiceFixture {
protected:
    using Driver = ZOLUserDriver;

    ConfigureFixture() {
        setenv("XDG_DATA_HOME", folder.Path("data").c_str(), 1);
        for (const auto& [category, options] :
             {std::pair(colour, std::pair("RED", "BLUE")), std::pair(lamp, std::pair("LED", "HALOGEN")),
              std::pair(extra, std::pair("BELL", "RACK"))}) {
            Option(category, options.first);
            Option(category, options.second);
        }
    }
    ~ConfigureFixture() override {
        Driver::WhenAsked({});
        EXPECT_EQ(Driver::PendingAnswers(), 0);
        for (const Driver::Message& message : Driver::TakeMessages())
            ADD_FAILURE() << "nobody read: " << message.text.Bytes();
        if (window)
            Driver::CloseWindow(window);
        CallbackScope::FreeGivenUp();
        EXPECT_EQ(Driver::Top(), nullptr);
    }

    void Show(const std::vector<const char*>& parts = {"BIKE"}) {
        static const auto module = ModuleLoader::Load(error);
        ASSERT_TRUE(module) << Message();
        const CallbackScope scope;
        ZOLListValZOLDMInstance products;
        for (const char* part : parts)
            products.Append(Part(part));
        window = ConfigureWindow::Open(nullptr, Part("BIKE"), products, error);
        ASSERT_TRUE(window) << Message();
        viewer = static_cast<ZOLGraphViewer*>(Driver::Find(window, "CategoryGraph/CategoryGraph"));
    }
    void Rule(const char* text) {
        Manager().AddConfigRuleToDictionary(dictionary, "", text, ZOLDirectiveRuleType, "", error);
    }
    ZOLGraphNode* Node(const char* category, const char* option) {
        const auto text = [](const char* name) { return ZOLUnicodeString(name) + " (" + name + ")"; };
        return Driver::Node(viewer, {"Options", text(category), text(option)});
    }
    void Click(const char* category, const char* option) { Driver::Click(viewer, Node(category, option)); }
    void Press(const char* button) { Driver::Press(Driver::Find(window, button)); }
    void Menu(const char* item) { Driver::Menu(Driver::Find(window, "MenuBar"), item); }
    bool Sees(const std::string& text) {
        return Plain(Driver::Describe(window)).find(text) != std::string::npos;
    }
    // Presses the button of the conflict; what is told then.
    std::string AskRepairs(const std::function<int(ZOLDialog*)>& answer) {
        std::string told;
        Driver::WhenAsked([&](const Driver::Message&) {
            ZOLDialog* dialog = Driver::Find(window, "ConfigureRepair");
            told = Plain(Driver::Describe(dialog));
            return answer(dialog);
        });
        Press("RepairButton");
        Driver::WhenAsked({});
        Driver::TakeMessages();
        return told;
    }
    // With quotation marks as they stand on the screen.
    static std::string Plain(std::string description) {
        std::erase(description, '\\');
        return description;
    }
    // The next question is about a file: this one.
    void GiveFile(const char* dialog, const std::string& file) {
        Driver::WhenAsked([this, dialog, file](const Driver::Message&) {
            ZOLDialog* asked = Driver::Find(window, dialog);
            Driver::Type(Driver::Find(asked, "PathEd"), file);
            Driver::Ok(asked);
            return 1;
        });
    }
    std::string TakeMessage() {
        std::string text;
        for (const Driver::Message& message : Driver::TakeMessages())
            text += message.text.Bytes() + "\n";
        return text;
    }

    ZOLIQrdConfigItem_var dictionary = Dictionary("BIKE");
    ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    ZOLIQrdCategory_var lamp = Category(dictionary, "LAMP");
    ZOLIQrdCategory_var extra = Manager().AddCategoryToDictionary(dictionary, "EXTRA", "EXTRA", 0, 0, error);
    ConfigureWindow* window = nullptr;
    ZOLGraphViewer* viewer = nullptr;
};

} // namespace trellis::test
