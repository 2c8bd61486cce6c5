#include "configure/RepairDialog.h"

#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgSelectorList.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr unsigned long OkCancelAndModal = 0x2000c00;
constexpr unsigned long SeveralLinesReadOnly = 0x4080000;
constexpr int Width = 80; // in characters, as the next in lines
constexpr int MostReasonLines = 8;
constexpr int MostRepairLines = 6;

// To choose in an exclusive category rejects its other options; they are given up with the choice, unsaid.
bool GoesWithAChoice(const ZOLParameter& rejection, const SelectionReasons::Parameters& repair) {
    return rejection.IsNot() && rejection.GetCategoryExclusivity() &&
           std::ranges::any_of(repair, [&](const ZOLParameter& other) {
               return !other.IsNot() && other.GetCategory() == rejection.GetCategory();
           });
}

} // namespace

RepairDialog::RepairDialog(ZOLDialog* father, const SelectionReasons& reasons)
    : ZOLDlgDialog(father, "ConfigureRepair", OkCancelAndModal), _repairs(reasons.Repairs()) {
    new ZOLDlgLabel(this, "WhyLabel");
    auto* why = new ZOLDlgEditor(this, "WhyEd", SeveralLinesReadOnly);
    ZOLUnicodeString text;
    for (const ZOLUnicodeString& line : reasons.WhyConflict())
        text += text.IsEmpty() ? line : ZOLUnicodeString("\n") + line;
    why->SetVisibleTextWidth(Width);
    why->SetVisibleTextHeight(MostReasonLines);
    why->SetText(text);
    new ZOLDlgLabel(this, _repairs.empty() ? "NoRepairLabel" : "RepairLabel");
    if (!_repairs.empty()) {
        _list = new ZOLDlgSelectorList(this, "RepairList");
        _list->SetVisibleTextWidth(Width);
        _list->SetVisibleTextHeight(MostRepairLines);
        for (const SelectionReasons::Parameters& repair : _repairs)
            _list->SetLine(LineOf(repair));
        const int first = 0;
        _list->SetSelect(&first, 1);
        AddAnalyseNotificationCB(_list, _list->GetListSelectNotification(),
                                 ZOL_CALLBACK(&RepairDialog::ChoiceCB));
    }
    SetOKTitle(Text("ConfigureRepair.OK"));
    SetCANCELTitle(Text("ConfigureRepair.Cancel"));
    ChoiceCB(nullptr, nullptr, nullptr);
}

ZOLString RepairDialog::GetResourceFilename(int level) const {
    return level == 0 ? "ConfigureRepair" : ZOLDlgDialog::GetResourceFilename(level - 1);
}

ZOLUnicodeString RepairDialog::Text(const char* key, const ZOLListValZOLUnicodeString& parameters) const {
    ZOLUnicodeString text;
    GetResourceValueFromKey(key, text, parameters);
    return text;
}

ZOLUnicodeString RepairDialog::LineOf(const SelectionReasons::Parameters& repair) const {
    ZOLUnicodeString line;
    for (const ZOLParameter& choice : repair) {
        if (GoesWithAChoice(choice, repair))
            continue;
        const ZOLUnicodeString text = Text(choice.IsNot() ? "GiveUpRejection.Msg" : "GiveUpChoice.Msg",
                                           {choice.GetOption(), choice.GetCategory()});
        line = line.IsEmpty() ? text : Text("And.Msg", {line, text});
    }
    return line;
}

void RepairDialog::ChoiceCB(ZOLCommand*, ZOLNotification*, void*) {
    SetOKSensitivity(_list && _list->GetSelectCount() > 0 ? ZOLActive : ZOLGreyed);
}

SelectionReasons::Parameters RepairDialog::Ask() {
    const bool isTaken = DisplayBlocked() == 1 && _list && _list->GetSelectCount() > 0;
    return isTaken ? _repairs[static_cast<std::size_t>(_list->GetSelect())] : SelectionReasons::Parameters();
}

} // namespace trellis
