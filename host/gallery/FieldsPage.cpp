#include "gallery/FieldsPage.h"

#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"

namespace trellis {

namespace {

constexpr unsigned long SeveralLines = 0x80000;
constexpr unsigned long ReadOnly = 0x4000000;
constexpr unsigned long OwnText = 0x40000;
constexpr int FieldWidth = 28; // characters
constexpr int TextHeight = 4;  // lines
constexpr int LongestLimited = 8;
constexpr int ManyLines = 200;

int TakeDigits(const ZOLUnicodeString& text, void*) {
    return text.Bytes().find_first_not_of("0123456789") == std::string::npos ? 1 : 0;
}

ZOLDlgEditor* MakeEditor(ZOLDlgFrame* frame, const char* name, unsigned long style = 0) {
    auto* editor = new ZOLDlgEditor(frame, name, style);
    editor->SetVisibleTextWidth(FieldWidth);
    return editor;
}

void FillCombo(const GalleryPage& page, ZOLDlgCombo& combo, const char* key, int count) {
    ZOLUnicodeString text;
    for (int line = 1; line <= count; ++line)
        if (page.GetResourceValueFromKey(key, text, {ZOLUnicodeString::FromNumber(line)}) == 1)
            combo.SetLine(text);
}

} // namespace

void FieldsPage::Build(ZOLDlgFrame* holder) {
    BuildEditors(AddFrame(AddColumn(holder, "Left"), "EditorFrame"));
    ZOLDlgFrame* right = AddColumn(holder, "Right");
    BuildCombos(AddFrame(right, "ComboFrame"));
    BuildLabels(AddFrame(right, "LabelFrame"));
}

void FieldsPage::BuildEditors(ZOLDlgFrame* frame) {
    MakeEditor(frame, "OneLine");
    MakeEditor(frame, "Limited")->SetMaxCharacterWidth(LongestLimited);
    MakeEditor(frame, "Digits")->SetVerifyCallback(&TakeDigits);
    MakeEditor(frame, "Locked", ReadOnly)->SetText(Text("Locked.Text"));
    auto* text = MakeEditor(frame, "SeveralLines", SeveralLines);
    text->SetVisibleTextHeight(TextHeight);
    text->SetText(Text("SeveralLines.Text"));
    for (ZOLDialog* child : frame->GetChildren()) {
        auto* editor = static_cast<ZOLDlgEditor*>(child);
        AddExample(editor, [=] { editor->SetText("2026"); });
        Log(editor, editor->GetEditModifyNotification(),
            [=](const ZOLNotification&) { return editor->GetText(); });
    }
}

void FieldsPage::BuildCombos(ZOLDlgFrame* frame) {
    constexpr int FewLines = 4;
    FillCombo(*this, *new ZOLDlgCombo(frame, "Lines"), "Lines.Line", FewLines);
    FillCombo(*this, *new ZOLDlgCombo(frame, "OwnText", OwnText), "Lines.Line", FewLines);
    FillCombo(*this, *new ZOLDlgCombo(frame, "ManyLines"), "ManyLines.Line", ManyLines);
    new ZOLDlgCombo(frame, "NoLines");
    for (ZOLDialog* child : frame->GetChildren()) {
        auto* combo = static_cast<ZOLDlgCombo*>(child);
        combo->SetVisibleTextWidth(FieldWidth);
        combo->SetSelect(0);
        AddExample(combo, [=] { combo->SetSelect(2); });
        const auto value = [=](const ZOLNotification&) {
            return ZOLUnicodeString::FromNumber(combo->GetSelect()) + ": " + combo->GetField();
        };
        Log(combo, combo->GetComboSelectNotification(), value);
        Log(combo, combo->GetComboModifyNotification(), value);
    }
}

void FieldsPage::BuildLabels(ZOLDlgFrame* frame) {
    AddExample(new ZOLDlgLabel(frame, "PlainLabel"));
    auto* label = new ZOLDlgLabel(frame, "MenuLabel");
    AddExample(label);
    AddItem(new ZOLDlgContextualMenu(label, "LabelMenu"), "LabelItem");
}

} // namespace trellis
