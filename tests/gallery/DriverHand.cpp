// The hand without a display.

#include "gallery/GalleryHand.h"

#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLDlgList.h"
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
    void ClickRow(ZOLDialog& list, int row, RowTaking taking) override {
        std::vector<int> rows = taking == RowTaking::Alone ? std::vector<int>() : Selected(list);
        for (int next = taking == RowTaking::UpTo && !rows.empty() ? rows.back() + 1 : row; next <= row;
             ++next)
            rows.push_back(next);
        Try([&] { Driver::Select(&list, rows); });
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
    void TurnWheel(ZOLDialog&, int) override {}
    void Focus(ZOLDialog&) override {}
    void Type(ZOLDialog& editor, const std::string& text) override {
        Try([&] { Driver::Type(&editor, text); });
    }
    void Press(ZOLDialog& widget, ZOLUserKey key) override {
        Try([&] { Driver::Key(&widget, key); });
    }
    void ChooseInGroup(ZOLDialog& radio) override { Press(radio, ZOLUserKey::Space); }
    void StepDown(ZOLDialog& list, RowTaking taking) override {
        const std::vector<int> rows = Selected(list);
        ClickRow(list, rows.empty() ? 0 : rows.back() + 1, taking);
    }
    void WalkInMenu(ZOLDialog& owner, const std::vector<std::string>& items) override {
        ClickForMenu(owner, items);
    }
    void WalkInMenuBar(ZOLDialog& bar, const std::vector<std::string>& items) override {
        ClickMenuBar(bar, items);
    }
    void WalkToButton(ZOLDialog& dialog, ZOLDialogButton button) override { ClickButton(dialog, button); }
    void WhenAsked(std::function<void(ZOLDialog& box)> act) override {
        Driver::WhenAsked([act = std::move(act)](const Driver::Message&) {
            act(*Driver::Top());
            return 0;
        });
    }
    void ForgetQuestions() override { Driver::WhenAsked({}); }

private:
    static std::vector<int> Selected(ZOLDialog& list) {
        const int* rows = nullptr;
        int count = 0;
        static_cast<ZOLDlgList&>(list).GetSelect(rows, count);
        return {rows, rows + count};
    }
};

} // namespace

GalleryHand& TheHand() {
    static DriverHand hand;
    return hand;
}
