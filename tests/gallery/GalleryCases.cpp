#include "gallery/GalleryCase.h"

#include <ostream>

namespace {

using Hand = GalleryHand;
using Button = ZOLDialogButton;
using Key = ZOLUserKey;
using Path = std::vector<ZOLUnicodeString>;

void Click(Hand& hand, ZOLDialog& widget) {
    hand.Click(widget);
}

GalleryCase::Gesture ClickRow(int row) {
    return [=](Hand& hand, ZOLDialog& list) { hand.ClickRow(list, row); };
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
             hand.PressFirstItem(frame, "Open");
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
         {},
         {},
         "SortByOwner"},
    };
    return cases;
}
