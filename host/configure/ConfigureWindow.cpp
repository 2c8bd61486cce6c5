#include "configure/ConfigureWindow.h"

#include "configure/RepairDialog.h"
#include "entry/ZOLDictionary.h"
#include "model/ZOLDMInstance.h"
#include "panels/ZOLGYRDlgError.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLUserDriver.h"
#include "values/ZOLGYRError.h"

#include <algorithm>
#include <tuple>

namespace trellis {

namespace {

constexpr int ModuleNotLoaded = 60600;
constexpr unsigned long Plain = 0x80000;
constexpr unsigned long SeveralLinesReadOnly = 0x4080000;
constexpr int Beside = 1;
constexpr int WhyWidth = 60; // in characters, and all room that is left
constexpr int WhyLines = 3;
constexpr int MostListed = 12; // in a message
constexpr LayoutSize UsualSize = {1160, 780};

ZOLUnicodeString Number(int number) {
    return ZOLUnicodeString::FromNumber(number);
}

// One line each; of very many the first ones, and how many more.
ZOLUnicodeString Joined(const std::vector<ZOLUnicodeString>& lines) {
    ZOLUnicodeString text;
    const std::size_t shown = std::min<std::size_t>(lines.size(), MostListed);
    for (std::size_t i = 0; i < shown; ++i)
        text += i == 0 ? lines[i] : ZOLUnicodeString("\n") + lines[i];
    if (lines.size() > shown)
        text += "\n+ " + Number(static_cast<int>(lines.size() - shown));
    return text;
}

} // namespace

ConfigureWindow* ConfigureWindow::Open(ZOLDialog* father, const ZOLDMInstance& scope,
                                       const ZOLListValZOLDMInstance& products, ZOLGYRError& error) {
    const auto make = reinterpret_cast<CategoryGraphFactory>(ZOLDictionary::Find(CategoryGraphName));
    if (!make) {
        error.Set(ModuleNotLoaded, 0, {CategoryGraphName});
        return nullptr;
    }
    auto* window = new ConfigureWindow(father);
    window->Build(scope, products, make);
    window->SetVisibility(ZOLShown);
    return window;
}

ConfigureWindow::ConfigureWindow(ZOLDialog* father) : ZOLDlgWindow(father, "Configure") {}

void ConfigureWindow::Build(const ZOLDMInstance& scope, const ZOLListValZOLDMInstance& products,
                            CategoryGraphFactory make) {
    SetRectDimensions(UsualSize.width, UsualSize.height);
    BuildMenus();
    BuildBars();
    _panel = make(this, "CategoryGraph", Text("Root.Title"), scope, products);
    _panel->Attach4Sides();
    _reasons.emplace(*_panel);
    BuildStatus();
    ZOLGraphViewer* viewer = _panel->GetViewer();
    AddAnalyseNotificationCB(viewer, _panel->GetSelectionShownNotification(),
                             ZOL_CALLBACK(&ConfigureWindow::ShownCB));
    AddAnalyseNotificationCB(viewer, "ZOLNodePointNotification", ZOL_CALLBACK(&ConfigureWindow::PointCB));
    AddAnalyseNotificationCB(this, GetWindCloseNotification(), ZOL_CALLBACK(&ConfigureWindow::CloseCB));
    ShowState();
}

ZOLString ConfigureWindow::GetResourceFilename(int level) const {
    return level == 0 ? "ConfigureWindow" : ZOLDlgWindow::GetResourceFilename(level - 1);
}

ZOLUnicodeString ConfigureWindow::Text(const char* key, const ZOLListValZOLUnicodeString& parameters) const {
    ZOLUnicodeString text;
    GetResourceValueFromKey(key, text, parameters);
    return text;
}

void ConfigureWindow::AddItem(ZOLDialog* menu, const char* name, ZOLNotificationMethod method) {
    auto* item = new ZOLDlgPushItem(menu, name);
    AddAnalyseNotificationCB(item, item->GetMenuIActivateNotification(), method);
}

void ConfigureWindow::BuildMenus() {
    auto* bar = new ZOLDlgMenuBar(this, "MenuBar");
    auto* selection = new ZOLDlgSubMenu(bar, "SelectionMenu");
    AddItem(selection, "OpenItem", ZOL_CALLBACK(&ConfigureWindow::OpenSelectionCB));
    AddItem(selection, "SaveAsItem", ZOL_CALLBACK(&ConfigureWindow::SaveSelectionCB));
    AddItem(selection, "SavePictureItem", ZOL_CALLBACK(&ConfigureWindow::SavePictureCB));
    new ZOLDlgSeparatorItem(selection, "Separator");
    AddItem(selection, "CloseItem", ZOL_CALLBACK(&ConfigureWindow::CloseCB));
    auto* help = new ZOLDlgSubMenu(bar, "HelpMenu");
    AddItem(help, "ContentsItem", ZOL_CALLBACK(&ConfigureWindow::HelpCB));
}

// Both are shown only while there is something to tell.
void ConfigureWindow::BuildBars() {
    const auto build = [&](const char* name, const char* label, const char* button, auto method) {
        auto* bar = new ZOLDlgFrame(this, name, Plain);
        bar->SetDefaultOrientation(Beside);
        auto* text = new ZOLDlgLabel(bar, label);
        text->SetHorizontalAttachment(1);
        auto* push = new ZOLDlgPushButton(bar, button);
        AddAnalyseNotificationCB(push, push->GetPushBActivateNotification(), method);
        return std::pair(bar, text);
    };
    std::tie(_conflictBar, _conflict) =
        build("ConflictBar", "ConflictLabel", "RepairButton", ZOL_CALLBACK(&ConfigureWindow::RepairCB));
    std::tie(_leftOutBar, _leftOut) =
        build("LeftOutBar", "LeftOutLabel", "LeftOutButton", ZOL_CALLBACK(&ConfigureWindow::LeftOutCB));
}

void ConfigureWindow::BuildStatus() {
    _why = new ZOLDlgEditor(this, "WhyEd", SeveralLinesReadOnly);
    _why->SetVisibleTextWidth(WhyWidth);
    _why->SetVisibleTextHeight(WhyLines);
    _why->SetVerticalAttachment(0);
    _why->SetHorizontalAttachment(1);
    _summary = new ZOLDlgLabel(this, "Summary");
}

void ConfigureWindow::ShownCB(ZOLCommand*, ZOLNotification*, void*) {
    ShowState();
}

void ConfigureWindow::PointCB(ZOLCommand*, ZOLNotification* notification, void*) {
    ZOLGraphNode* node = static_cast<ZOLNodePointNotification*>(notification)->GetNode();
    std::optional<ZOLParameter> looked = node ? _panel->GetOption(node) : std::nullopt;
    if (!looked || looked == _looked) // what was read last stays while the pointer is on its way
        return;
    _looked = looked;
    _lookedNode = WeakCommand(node);
    ShowWhy();
}

void ConfigureWindow::ShowState() {
    const bool isInConflict = _panel->IsInConflict() != 0;
    _conflictBar->SetVisibility(isInConflict ? ZOLShown : ZOLHidden);
    const std::size_t leftOut = _reasons->RulesLeftOut().size();
    _leftOutBar->SetVisibility(leftOut > 0 ? ZOLShown : ZOLHidden);
    _leftOut->SetTitle(Text("LeftOut.Msg", {Number(static_cast<int>(leftOut))}));
    const ZOLUnicodeString product = ProductName();
    SetTitle(Text("Configure.Title", {product}));
    _summary->SetTitle(Text(
        "Summary.Msg", {product, Number(_panel->CountOpenCategories()), Number(_reasons->CountChosen())}));
    ShowWhy();
}

void ConfigureWindow::ShowWhy() {
    _why->SetText(_looked ? TextOfLooked() : Text("PointAtOption.Msg"));
    _why->SetSelection(0, -1); // the beginning in sight
}

// What the rules decided may stand without a reason: there is none while they have no answer, or are off.
ZOLUnicodeString ConfigureWindow::TextOfLooked() const {
    struct Key {
        const char* usual;
        const char* withoutReason = nullptr; // where the state wants one
    };
    static constexpr Key keys[] = {{"Chosen.Msg"},
                                   {"Rejected.Msg"},
                                   {"RejectedWithChoice.Msg"},
                                   {"ChosenByRules.Msg", "ChosenByRules.Before"},
                                   {"RejectedByRules.Msg", "RejectedByRules.Before"},
                                   {"Ignored.Msg"},
                                   {"Open.Msg"}};
    const Key& key = keys[static_cast<std::size_t>(_reasons->StateOf(*_looked))];
    const auto reasons = _reasons->Why(*_looked);
    ZOLUnicodeString text =
        Text(reasons.empty() && key.withoutReason ? key.withoutReason : key.usual,
             {_looked->GetOption(), _looked->GetCategory(), _reasons->ChosenInstead(*_looked)});
    if (!reasons.empty())
        text += "\n" + Joined(reasons);
    if (const auto* node = static_cast<ZOLGraphNode*>(_lookedNode.Get()))
        text += node->getAlert() == NodeAlert::Conflict       ? "\n" + Text("IsInConflict.Msg")
                : node->getAlert() == NodeAlert::Irresolution ? "\n" + Text("IsWanted.Msg")
                                                              : ZOLUnicodeString();
    return text;
}

ZOLUnicodeString ConfigureWindow::ProductName() const {
    const ZOLListValZOLIQrdConfigItem_var dictionaries = _panel->GetDictionaries();
    if (dictionaries.Size() == 0)
        return Text("NoDictionary.Msg");
    return ZOLDMInstance(dictionaries[1]->GetObjectId(), 0, 0, 0).GetNameInstance(1, 1, " ", "$BOM_NAVIG");
}

void ConfigureWindow::RepairCB(ZOLCommand*, ZOLNotification*, void*) {
    auto* dialog = new RepairDialog(this, *_reasons);
    const SelectionReasons::Parameters givenUp = dialog->Ask();
    dialog->RequestDelayedDestruction();
    if (givenUp.empty())
        return;
    ZOLListPtrZOLParameter kept;
    for (const ZOLParameter& choice : _reasons->ChoicesWithout(givenUp))
        kept.Append(new ZOLParameter(choice));
    _panel->ChooseInstead(kept, _panel->GetIgnoredCategories());
}

void ConfigureWindow::Tell(const char* box, const std::vector<ZOLUnicodeString>& lines) {
    ZOLDlgNotify notice(this, box);
    notice.DisplayBlocked(Joined(lines), Text((std::string(box) + ".Title").c_str()));
}

void ConfigureWindow::LeftOutCB(ZOLCommand*, ZOLNotification*, void*) {
    Tell("LeftOutRules", _reasons->RulesLeftOut());
}

void ConfigureWindow::HelpCB(ZOLCommand*, ZOLNotification*, void*) {
    try {
        ZOLUserDriver::Key(this, ZOLUserKey::F1);
    } catch (const ZOLUserDriver::Refused&) {
        Tell("NoHelp", {Text("NoHelp.Msg")});
    }
}

void ConfigureWindow::CloseCB(ZOLCommand*, ZOLNotification*, void*) {
    RequestDelayedDestruction();
}

void ConfigureWindow::Report(const ZOLGYRError& error) {
    ZOLGYRDlgError::Display(this, error, 0);
}

} // namespace trellis
