#include "configure/RepairDialog.h"

#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgSelectorList.h"

namespace trellis {

namespace {

constexpr unsigned long OkCancelAndModal = 0x2000c00;
constexpr unsigned long SeveralLinesReadOnly = 0x4080000;
constexpr int Width = 80; // in characters, as the next in lines
constexpr int MostReasonLines = 8;
constexpr int MostRepairLines = 6;

} // namespace

RepairDialog::RepairDialog(ZOLDialog* father, const SelectionReasons& reasons)
    : ZOLDlgDialog(father, "ConfigureRepair", OkCancelAndModal), _repairs(reasons.Repairs()) {
    auto* whyFrame = new ZOLDlgFrame(this, "WhyFrame");
    auto* why = new ZOLDlgEditor(whyFrame, "WhyEd", SeveralLinesReadOnly);
    ZOLUnicodeString text;
    for (const ZOLUnicodeString& line : reasons.WhyConflict())
        text += text.IsEmpty() ? line : ZOLUnicodeString("\n") + line;
    why->SetVisibleTextWidth(Width);
    why->SetVisibleTextHeight(MostReasonLines);
    why->SetText(text);
    why->SetSelection(0, -1);
    why->Attach4Sides();
    if (_repairs.empty())
        new ZOLDlgLabel(this, "NoRepairLabel");
    else
        BuildRepairs();
    SetOKTitle(Text("ConfigureRepair.OK"));
    SetCANCELTitle(Text("ConfigureRepair.Cancel"));
    ChoiceCB(nullptr, nullptr, nullptr);
}

void RepairDialog::BuildRepairs() {
    auto* frame = new ZOLDlgFrame(this, "RepairFrame");
    _list = new ZOLDlgSelectorList(frame, "RepairList");
    _list->SetVisibleTextWidth(Width);
    _list->SetVisibleTextHeight(MostRepairLines);
    for (const SelectionReasons::Parameters& repair : _repairs)
        _list->SetLine(LineOf(repair));
    const int first = 0;
    _list->SetSelect(&first, 1);
    AddAnalyseNotificationCB(_list, _list->GetListSelectNotification(),
                             ZOL_CALLBACK(&RepairDialog::ChoiceCB));
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
