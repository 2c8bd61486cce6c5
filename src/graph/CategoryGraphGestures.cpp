// ZOLCategoryGraphViewer: what a user does on its nodes.

#include "graph/ZOLCategoryGraphViewer.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"

#include <string_view>
#include <unordered_set>

namespace {

ZOLGraphNode* HitNode(ZOLNotification* notification, std::string_view wantedClass) {
    if (!notification || notification->ClassName() != wantedClass)
        return nullptr;
    auto* ofGraph = dynamic_cast<ZOLGraphNotification*>(notification);
    return ofGraph ? ofGraph->GetNode() : nullptr;
}

} // namespace

void ZOLCategoryGraphViewer::ElemSelected(ZOLCommand*, ZOLNotification* notification, void*) {
    ZOLGraphNode* node = HitNode(notification, "ZOLNodeSelectNotification");
    if (!node)
        return;
    if (node == _root)
        _isExpanded ? CollapseAll() : ExpandAll();
    else if (auto* category = dynamic_cast<ZOLCategoryNode*>(node))
        category->IsOpen() ? category->Close() : category->Open();
    else if (auto* option = dynamic_cast<ZOLOptionNode*>(node))
        ClickOption(*option, 0);
    UpdateRootNodeState();
    UpdateRootNodeColor(0);
}

void ZOLCategoryGraphViewer::ElemContext(ZOLCommand*, ZOLNotification* notification, void*) {
    ZOLGraphNode* node = HitNode(notification, "ZOLNodeContextNotification");
    if (!node || node == _root || _menu->GetVisibility() == ZOLHidden || !_managesRejection)
        return;
    if (auto* category = dynamic_cast<ZOLCategoryNode*>(node)) {
        FillMenu(*category);
        return;
    }
    if (auto* option = dynamic_cast<ZOLOptionNode*>(node))
        ClickOption(*option, 1);
    UpdateRootNodeState();
    UpdateRootNodeColor(0);
}

// The father hears of the click before the selection changes, so that it still sees what was.
void ZOLCategoryGraphViewer::ClickOption(ZOLOptionNode& option, int isNot) {
    auto* category = dynamic_cast<ZOLCategoryNode*>(option.firstParent());
    if (!category)
        return;
    SendNotification(GetFather(), GetSelectOptionNotification());
    const ZOLCategory shown = category->GetCategory();
    auto* parameter = new ZOLParameter(shown.GetName(), shown.GetDescription(), option.GetOptionName(),
                                       option.GetOption().GetDescription(), isNot);
    parameter->SetCategoryExclusivity(category->GetExclusivity());
    parameter->SetParameterSource(ZOLParameter::SourceUser);
    isNot ? AddUserRejectedToCurrent(parameter) : AddUserSelectedToCurrent(parameter);
    if (category->IsIgnored())
        category->UnsetIgnored();
    PlayOrUpdate();
    SaveCurrentParameters();
}

void ZOLCategoryGraphViewer::FillMenu(ZOLCategoryNode& node) {
    const auto add = [&](const char* name, const char* title, ZOLNotificationMethod method, bool isGreyed) {
        auto* item = new ZOLDlgPushItem(_menu, name);
        ZOLUnicodeString text;
        GetResourceValueFromKey(title, text);
        item->SetTitle(text);
        item->SetSensitivity(isGreyed ? ZOLGreyed : ZOLActive);
        AddAnalyseNotificationCB(item, item->GetMenuIActivateNotification(), method, &node);
    };
    using Viewer = ZOLCategoryGraphViewer;
    add("SelectAllItem", "SelectAll.Title", ZOL_CALLBACK(&Viewer::SelectAllFromCategCB),
        node.GetExclusivity() != 0);
    add("ClearSelectedItem", "ClearSelected.Title", ZOL_CALLBACK(&Viewer::ClearSelectedFromCategCB), false);
    new ZOLDlgSeparatorItem(_menu, "Separ");
    add("RejectAllItem", "RejectAll.Title", ZOL_CALLBACK(&Viewer::RejectAllFromCategCB),
        node.GetMandatory() != 0);
    add("ClearRejectedItem", "ClearRejected.Title", ZOL_CALLBACK(&Viewer::ClearRejectedFromCategCB), false);
    if (!_isAdvanced)
        return;
    new ZOLDlgSeparatorItem(_menu, "Separ");
    add("IgnoreAllItem", "IgnoreAll.Title", ZOL_CALLBACK(&Viewer::IgnoreAllFromCategCB),
        node.IsIgnored() != 0);
    add("ConsiderAllItem", "ConsiderAll.Title", ZOL_CALLBACK(&Viewer::ConsiderAllFromCategCB),
        node.IsIgnored() == 0);
}

void ZOLCategoryGraphViewer::AddAllOf(const ZOLCategoryNode& node, int isNot) {
    const ZOLUnicodeString category = node.GetCategoryName();
    std::unordered_set<ZOLUnicodeString> known;
    for (const ZOLParameter* parameter : _current)
        if (parameter->GetCategory() == category)
            known.insert(parameter->GetOption());
    for (const ZOLUnicodeString& option : node.GetOptNameList())
        if (!known.contains(option)) {
            _current.Append(new ZOLParameter(category, option, isNot));
            _current[_current.Size()]->SetCategoryExclusivity(node.GetExclusivity());
        }
}

void ZOLCategoryGraphViewer::RemoveFromCurrent(const ZOLUnicodeString& category,
                                               bool (*isToGo)(const ZOLParameter&)) {
    ZOLListPtrZOLParameter kept;
    for (ZOLParameter* parameter : _current)
        if (parameter->GetCategory() == category && isToGo(*parameter))
            delete parameter;
        else
            kept.Append(parameter);
    _current = kept;
}

void ZOLCategoryGraphViewer::FinishCommand() {
    PlayOrUpdate();
    SaveCurrentParameters();
    SendNotification(GetFather(), GetSelectOptionNotification());
}

void ZOLCategoryGraphViewer::SelectAllFromCategCB(ZOLCommand*, ZOLNotification*, void* node) {
    AddAllOf(*static_cast<ZOLCategoryNode*>(node), 0);
    FinishCommand();
}

void ZOLCategoryGraphViewer::RejectAllFromCategCB(ZOLCommand*, ZOLNotification*, void* node) {
    AddAllOf(*static_cast<ZOLCategoryNode*>(node), 1);
    FinishCommand();
}

void ZOLCategoryGraphViewer::ClearSelectedFromCategCB(ZOLCommand*, ZOLNotification*, void* node) {
    RemoveFromCurrent(static_cast<ZOLCategoryNode*>(node)->GetCategoryName(),
                      [](const ZOLParameter& parameter) { return !parameter.IsNot(); });
    FinishCommand();
}

void ZOLCategoryGraphViewer::ClearRejectedFromCategCB(ZOLCommand*, ZOLNotification*, void* node) {
    RemoveFromCurrent(static_cast<ZOLCategoryNode*>(node)->GetCategoryName(),
                      [](const ZOLParameter& parameter) { return parameter.IsNot() != 0; });
    FinishCommand();
}

void ZOLCategoryGraphViewer::IgnoreAllFromCategCB(ZOLCommand*, ZOLNotification*, void* node) {
    auto* category = static_cast<ZOLCategoryNode*>(node);
    category->SetIgnored(1);
    _ignored.Append(category->GetCategoryName());
    RemoveFromCurrent(category->GetCategoryName(), [](const ZOLParameter&) { return true; });
    FinishCommand();
}

void ZOLCategoryGraphViewer::ConsiderAllFromCategCB(ZOLCommand*, ZOLNotification*, void* node) {
    auto* category = static_cast<ZOLCategoryNode*>(node);
    category->UnsetIgnored();
    _ignored.RemoveValue(category->GetCategoryName());
    FinishCommand();
}
