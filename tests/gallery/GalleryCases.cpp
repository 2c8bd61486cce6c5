#include "gallery/GalleryCase.h"

#include "toolkit/WeakCommand.h"
#include "toolkit/ZOLDialog.h"

#include <ostream>

namespace {

using Hand = GalleryHand;
using Button = ZOLDialogButton;
using Key = ZOLUserKey;
using Path = std::vector<ZOLUnicodeString>;

void Click(Hand& hand, ZOLDialog& widget) {
    hand.Click(widget);
}

GalleryCase::Gesture ClickRow(int row, RowTaking taking = RowTaking::Alone) {
    return [=](Hand& hand, ZOLDialog& list) { hand.ClickRow(list, row, taking); };
}

GalleryCase::Gesture StepDown(RowTaking taking) {
    return [=](Hand& hand, ZOLDialog& list) { hand.StepDown(list, taking); };
}

GalleryCase::Gesture Press(std::vector<Key> keys) {
    return [=](Hand& hand, ZOLDialog& widget) {
        hand.Focus(widget);
        for (const Key key : keys)
            hand.Press(widget, key);
    };
}

void ChooseInGroup(Hand& hand, ZOLDialog& radio) {
    hand.ChooseInGroup(radio);
}

GalleryCase::Gesture Type(const char* text, Key last) {
    return [=](Hand& hand, ZOLDialog& widget) {
        hand.Focus(widget);
        hand.Type(widget, text);
        hand.Press(widget, last);
    };
}

GalleryCase::Gesture ClickAndType(const char* text, Key last) {
    return [=](Hand& hand, ZOLDialog& widget) {
        hand.Click(widget);
        hand.Type(widget, text);
        hand.Press(widget, last);
    };
}

// One after the other, as long as the widget lives.
GalleryCase::Gesture InOrder(std::vector<GalleryCase::Gesture> steps) {
    return [=](Hand& hand, ZOLDialog& widget) {
        const trellis::WeakCommand living(&widget);
        for (const GalleryCase::Gesture& step : steps)
            if (living.Get())
                step(hand, widget);
    };
}

// With the window of this name, when it is the one on top; a path leads to something in it.
GalleryCase::Gesture In(const char* window, GalleryCase::Gesture step, const char* path = nullptr) {
    return [=](Hand& hand, ZOLDialog&) {
        ZOLDialog* top = ZOLUserDriver::Top();
        if (top && top->GetName() == window)
            step(hand, path ? *ZOLUserDriver::Find(top, path) : *top);
    };
}

GalleryCase::Gesture ClickButton(Button button) {
    return [=](Hand& hand, ZOLDialog& dialog) { hand.ClickButton(dialog, button); };
}

GalleryCase::Gesture WalkToButton(Button button) {
    return [=](Hand& hand, ZOLDialog& dialog) { hand.WalkToButton(dialog, button); };
}

// What the gesture brings up is answered by the other one.
GalleryCase::Gesture Answered(GalleryCase::Gesture gesture, GalleryCase::Gesture answer) {
    return [=](Hand& hand, ZOLDialog& widget) {
        hand.WhenAsked([&](ZOLDialog& box) { answer(hand, box); });
        gesture(hand, widget);
        hand.ForgetQuestions();
        ZOLUserDriver::TakeMessages();
    };
}

GalleryCase::Gesture ClickNode(const Path& path, bool extend = false) {
    return [=](Hand& hand, ZOLDialog& viewer) { hand.ClickNode(viewer, path, extend); };
}

} // namespace

std::ostream& operator<<(std::ostream& out, const GalleryCase& gallery) {
    return out << gallery.name << " (" << gallery.page << '/' << gallery.widget << ')';
}

const std::vector<GalleryCase>& GalleryCases() {
    static const std::vector<GalleryCase> cases = {
        {"PushButton", "Choices", "Push", Click, {"Press"}, Press({Key::Space}), {"Press"}},
        {"CheckButton", "Choices", "Mandatory", Click, {"on"}, Press({Key::Space}), {"on"}},
        {"RadioButton", "Choices", "ByOwner", Click, {"on"}, ChooseInGroup, {"on"}},
        {"EditorConfirmed",
         "Fields",
         "OneLine",
         ClickAndType("Wide 7", Key::Return),
         {"Wide 7"},
         Type("Wide 7", Key::Return),
         {"Wide 7"}},
        {"EditorLeft",
         "Fields",
         "OneLine",
         ClickAndType("narrow", Key::Tab),
         {"narrow"},
         Type("narrow", Key::Tab),
         {"narrow"}},
        {"EditorThatVerifies",
         "Fields",
         "Digits",
         ClickAndType("a1b2", Key::Return),
         {"12"},
         Type("a1b2", Key::Return),
         {"12"}},
        {"EditorWithALimit",
         "Fields",
         "Limited",
         ClickAndType("abcdefghij", Key::Return),
         {"abcdefgh"},
         Type("abcdefghij", Key::Return),
         {"abcdefgh"}},
        {"Combo",
         "Fields",
         "Lines",
         [](Hand& hand, ZOLDialog& combo) { hand.ClickLineOfCombo(combo, 2); },
         {"2: Option 3"},
         Press({Key::Down}),
         {"1: Option 2"}},
        {"ComboWithOwnText",
         "Fields",
         "OwnText",
         [](Hand& hand, ZOLDialog& combo) { hand.ClickLineOfCombo(combo, 1); },
         {"1: Option 2"},
         Press({Key::Down}),
         {"1: Option 2"}},
        {"MultiList",
         "Lists",
         "OneRow",
         ClickRow(2),
         {"rows: 2"},
         Press({Key::Down, Key::Down}),
         {"rows: 0", "rows: 1"}},
        {"MultiListActivated",
         "Lists",
         "OneRow",
         [](Hand& hand, ZOLDialog& list) { hand.DoubleClickRow(list, 2); },
         {"rows: 2", "rows: 2"},
         Press({Key::Down, Key::Return}),
         {"rows: 0", "rows: 0"}},
        {"MultiListOfSeveral",
         "Lists",
         "SeveralRows",
         ClickRow(1),
         {"rows: 1"},
         Press({Key::End}),
         {"rows: 39"}},
        {"MultiListExtended",
         "Lists",
         "SeveralRows",
         InOrder({ClickRow(1), ClickRow(3, RowTaking::UpTo), ClickRow(5, RowTaking::Too)}),
         {"rows: 1", "rows: 1 2 3", "rows: 1 2 3 5"},
         InOrder({Press({Key::Down}), StepDown(RowTaking::UpTo), StepDown(RowTaking::Too)}),
         {"rows: 0", "rows: 0 1", "rows: 0 1 2"}},
        {"SelectorListExtended",
         "Lists",
         "SeveralOfLines",
         InOrder({ClickRow(1), ClickRow(3, RowTaking::UpTo), ClickRow(5, RowTaking::Too)}),
         {"rows: 1", "rows: 1 2 3", "rows: 1 2 3 5"},
         InOrder({Press({Key::Down}), StepDown(RowTaking::UpTo), StepDown(RowTaking::Too)}),
         {"rows: 0", "rows: 0 1", "rows: 0 1 2"}},
        {"SelectorList", "Lists", "OneOfLines", ClickRow(3), {"rows: 3"}, Press({Key::Down}), {"rows: 0"}},
        {"SelectorListOfSeveral",
         "Lists",
         "SeveralOfLines",
         ClickRow(3),
         {"rows: 3"},
         Press({Key::Down}),
         {"rows: 0"}},
        {"Tabs",
         "Layout",
         "Tabs",
         [](Hand& hand, ZOLDialog& tabs) { hand.ClickPage(tabs, "SecondPage"); },
         {"Second"},
         Press({Key::Right}),
         {"Second"}},
        {"GraphNode",
         "Graphs",
         "Outline",
         ClickNode({"Cargo bike", "Assembly 2"}),
         {"Assembly 2"},
         Press({Key::Down, Key::Space}),
         {"Assembly 1"}},
        {"GraphNodeExtended",
         "Graphs",
         "Network",
         ClickNode({"Colours", "white"}, true),
         {"white"},
         Press({Key::Space}),
         {"Arcs"}},
        {"GraphMenu",
         "Graphs",
         "Network",
         [](Hand& hand, ZOLDialog& viewer) { hand.ClickNodeForMenu(viewer, {"Arcs"}, "NodeItem"); },
         {"Arcs"},
         Press({Key::ShiftSpace}),
         {"Arcs"}},
        {"MenuItem",
         "Choices",
         "MenuFrame",
         [](Hand& hand, ZOLDialog& frame) { hand.ClickForMenu(frame, {"Open"}); },
         {"Open"},
         [](Hand& hand, ZOLDialog& frame) {
             hand.Focus(frame);
             hand.WalkInMenu(frame, {"Open"});
         },
         {"Open"},
         "Open"},
        {"SubMenuItem",
         "Choices",
         "MenuFrame",
         [](Hand& hand, ZOLDialog& frame) {
             hand.ClickForMenu(frame, {"Sort", "SortMore", "SortByOwner"});
         },
         {"By owner"},
         [](Hand& hand, ZOLDialog& frame) {
             hand.Focus(frame);
             hand.WalkInMenu(frame, {"Sort", "SortMore", "SortByOwner"});
         },
         {"By owner"},
         "SortByOwner"},
        {"MenuBar",
         "Windows",
         "Window",
         InOrder({Click,
                  In(
                      "ExampleWindow",
                      [](Hand& hand, ZOLDialog& bar) {
                          hand.ClickMenuBar(bar, {"Sort", "SortByDate"});
                      },
                      "WindowBar"),
                  In("ExampleWindow", ClickButton(Button::None))}),
         {"By date"},
         InOrder({Press({Key::Space}),
                  In(
                      "ExampleWindow",
                      [](Hand& hand, ZOLDialog& bar) {
                          hand.WalkInMenuBar(bar, {"Sort", "SortByDate"});
                      },
                      "WindowBar"),
                  In("ExampleWindow", Press({Key::Escape}))}),
         {"By date"},
         "SortByDate"},
        {"DialogWithItsButtons",
         "Windows",
         "Dialog",
         InOrder({Click, In("ExampleDialog", ClickButton(Button::Apply)),
                  In("ExampleDialog", ClickButton(Button::Help)),
                  In("ExampleDialog", ClickButton(Button::Cancel))}),
         {"ZOLDlgDiaAPPLYNotification", "ZOLDlgDiaHELPNotification", "ZOLDlgDiaCANCELNotification"},
         InOrder({Press({Key::Space}), In("ExampleDialog", WalkToButton(Button::Apply)),
                  In("ExampleDialog", WalkToButton(Button::Help)),
                  In("ExampleDialog", WalkToButton(Button::Cancel))}),
         {"ZOLDlgDiaAPPLYNotification", "ZOLDlgDiaHELPNotification", "ZOLDlgDiaCANCELNotification"},
         "ExampleDialog",
         GalleryCase::Column::Notification},
        {"DialogWithItsDefault",
         "Windows",
         "Dialog",
         InOrder({Click, In("ExampleDialog", ClickButton(Button::OK))}),
         {"ZOLDlgDiaOKNotification"},
         InOrder({Press({Key::Space}), In("ExampleDialog", Press({Key::Tab, Key::Tab, Key::Return}))}),
         {"ZOLDlgDiaOKNotification"},
         "ExampleDialog",
         GalleryCase::Column::Notification},
        {"DialogThatIsClosed",
         "Windows",
         "Dialog",
         InOrder({Click, In("ExampleDialog", ClickButton(Button::None))}),
         {"ZOLDlgWindCloseNotification"},
         InOrder({Press({Key::Space}), In("ExampleDialog", Press({Key::Escape}))}),
         {"ZOLDlgWindCloseNotification"},
         "ExampleDialog",
         GalleryCase::Column::Notification},
        {"Question",
         "Windows",
         "Question",
         Answered(Click, ClickButton(Button::Cancel)),
         {"2"},
         Answered(Press({Key::Space}), WalkToButton(Button::Cancel)),
         {"2"},
         "QuestionBox"},
        {"QuestionConfirmed",
         "Windows",
         "Question",
         Answered(Click, ClickButton(Button::OK)),
         {"1"},
         Answered(Press({Key::Space}), Press({Key::Return})),
         {"1"},
         "QuestionBox"},
        {"QuestionClosed",
         "Windows",
         "Question",
         Answered(Click, ClickButton(Button::None)),
         {"0"},
         Answered(Press({Key::Space}), Press({Key::Escape})),
         {"0"},
         "QuestionBox"},
        {"QuestionOfThree",
         "Windows",
         "Choice",
         Answered(Click, ClickButton(Button::Help)),
         {"3"},
         Answered(Press({Key::Space}), WalkToButton(Button::Help)),
         {"3"},
         "ChoiceBox"},
        {"ErrorThatAsks",
         "Windows",
         "ErrorQuestion",
         Answered(Click, ClickButton(Button::Cancel)),
         {"2"},
         Answered(Press({Key::Space}), WalkToButton(Button::Cancel)),
         {"2"},
         "ZOLGYRDlgError"},
        {"DialogThatWaits",
         "Windows",
         "WaitingDialog",
         Answered(Click, ClickButton(Button::Cancel)),
         {"2"},
         Answered(Press({Key::Space}), Press({Key::Tab, Key::Return})),
         {"1"},
         "WaitingExample"},
        {"ContainerScrolledByWheel",
         "Layout",
         "Container",
         [](Hand& hand, ZOLDialog& container) {
             hand.TurnWheel(container, 30);
             Click(hand, *ZOLUserDriver::Find(&container, "Check40"));
         },
         {"Option 40"},
         // Where the keyboard goes comes into sight: the mouse reaches it.
         [](Hand& hand, ZOLDialog& container) {
             ZOLDialog* last = ZOLUserDriver::Find(&container, "Check40");
             hand.Focus(*last);
             hand.Click(*last);
         },
         {"Option 40"},
         "Check40"},
    };
    return cases;
}
