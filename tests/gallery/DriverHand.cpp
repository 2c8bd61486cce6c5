// The hand without a display.

#include "gallery/GalleryHand.h"

#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLGraphViewer.h"

#include <numeric>

namespace {

using Driver = ZOLUserDriver;

template <class Verb>
void Try(const Verb& verb) {
    try {
        verb();
    } catch (const Driver::Refused&) {
        return; // what is refused is not done
    }
}

std::string Joined(const std::vector<std::string>& names) {
    std::string path;
    for (const std::string& name : names)
        path += (path.empty() ? "" : "/") + name;
    return path;
}

class DriverHand final : public GalleryHand {
public:
    void Click(ZOLDialog& widget) override {
        if (std::string_view(widget.GetKind()) == "button")
            Try([&] { Driver::Press(&widget); });
        else
            Try([&] { Driver::Toggle(&widget, true); });
    }
    void ClickRow(ZOLDialog& list, int row) override {
        Try([&] { Driver::Select(&list, {row}); });
    }
    void DoubleClickRow(ZOLDialog& list, int row) override {
        Try([&] { Driver::Activate(&list, row); });
    }
    void ClickLineOfCombo(ZOLDialog& combo, int line) override {
        Try([&] {
            Driver::Choose(&combo, ZOLUnicodeString("Option ") + ZOLUnicodeString::FromNumber(line + 1));
        });
    }
    void ClickPage(ZOLDialog& tabs, const std::string& page) override {
        Try([&] { Driver::ShowPage(&tabs, page); });
    }
    void ClickNode(ZOLDialog& viewer, const std::vector<ZOLUnicodeString>& path, bool extend) override {
        auto* graph = static_cast<ZOLGraphViewer*>(&viewer);
        Try([&] { Driver::Click(graph, Driver::Node(graph, path), extend); });
    }
    void ClickForMenu(ZOLDialog& owner, const std::vector<std::string>& items) override {
        Try([&] { Driver::Menu(&owner, Joined(items)); });
    }
    void ClickMenuBar(ZOLDialog& bar, const std::vector<std::string>& items) override {
        ClickForMenu(bar, items);
    }
    void ClickNodeForMenu(ZOLDialog& viewer, const std::vector<ZOLUnicodeString>& path,
                          const std::string& item) override {
        auto* graph = static_cast<ZOLGraphViewer*>(&viewer);
        Try([&] {
            Driver::ContextClick(graph, Driver::Node(graph, path));
            Driver::Menu(graph, item);
        });
    }
    void ClickButton(ZOLDialog& dialog, ZOLDialogButton button) override {
        using Press = void (*)(ZOLDialog*);
        constexpr Press presses[] = {&Driver::CloseWindow, &Driver::Ok, &Driver::Cancel, &Driver::Help,
                                     &Driver::Apply};
        Try([&] { presses[static_cast<int>(button)](&dialog); });
    }
    void Focus(ZOLDialog&) override {}
    void Type(ZOLDialog& editor, const std::string& text) override {
        Try([&] { Driver::Type(&editor, text); });
    }
    void Press(ZOLDialog& widget, ZOLUserKey key) override {
        Try([&] { Driver::Key(&widget, key); });
    }
    void ChooseInGroup(ZOLDialog& radio) override { Press(radio, ZOLUserKey::Space); }
    void PressFirstItem(ZOLDialog& owner, const std::string& item) override { ClickForMenu(owner, {item}); }
};

} // namespace

GalleryHand& TheHand() {
    static DriverHand hand;
    return hand;
}
