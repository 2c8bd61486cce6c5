// The states of ZOLCategoryNode: what a selection, a command or a rule makes of its options, and how that shows.

#include "graph/GraphColours.h"
#include "graph/ZOLCategoryNode.h"

#include <algorithm>

namespace {

constexpr int ByList = 1;
constexpr int ByUser = 2;

namespace Colours = trellis::GraphColours;
using trellis::NodeAlert;
using trellis::NodeMark;

} // namespace

int ZOLCategoryNode::SetParameters(const ZOLListPtrZOLParameter& parameters, const int hideRuleRejected,
                                   const int hideUserRejected) {
    if (_ignorable && _ignoredLevel == ByUser)
        return IsIgnored();
    ZOLListPtrZOLOption wanted = GetOptionListFromParameters(parameters);
    for (const ZOLOption* option : wanted) {
        ZOLOptionNode* node = GetOptionNode(option->GetName());
        if (!node)
            continue;
        if (IsIgnored())
            UnsetIgnored();
        if (!option->IsNot()) {
            option->IsRuleDefined() ? node->SetRuleSelected() : node->SetUserSelected();
            continue;
        }
        option->IsRuleDefined() ? node->SetRuleRejected() : node->SetUserRejected();
        if (option->IsRuleDefined() ? hideRuleRejected : hideUserRejected)
            node->Hide();
    }
    ZOLDeleteElements(wanted);
    UpdateNodeColor();
    return IsIgnored();
}

void ZOLCategoryNode::SelectAll() {
    for (ZOLOptionNode* option : _options)
        option->SetUserSelected();
    UpdateNodeColor();
}

void ZOLCategoryNode::RejectAll() {
    for (ZOLOptionNode* option : _options)
        option->SetUserRejected();
    UpdateNodeColor();
}

void ZOLCategoryNode::Unset(std::initializer_list<Condition> selected,
                            std::initializer_list<Condition> rejected) {
    for (ZOLOptionNode* option : _options) {
        const auto holds = [option](Condition condition) { return (option->*condition)() != 0; };
        if (std::any_of(selected.begin(), selected.end(), holds))
            option->UnsetSelected();
        if (std::any_of(rejected.begin(), rejected.end(), holds))
            option->UnsetRejected();
        option->ClearConflict();
    }
    _hasConflict = false;
    UpdateNodeColor();
}

void ZOLCategoryNode::ClearSelected() {
    Unset({&ZOLOptionNode::IsSelected}, {});
}

void ZOLCategoryNode::ClearRejected() {
    Unset({}, {&ZOLOptionNode::IsRejected});
}

void ZOLCategoryNode::ClearDefined() {
    if (_isOpen)
        for (ZOLOptionNode* option : _options)
            option->Show();
    Unset({&ZOLOptionNode::IsSelected}, {&ZOLOptionNode::IsRejected});
}

void ZOLCategoryNode::ClearUserSelected() {
    Unset({&ZOLOptionNode::IsUserSelected}, {});
}

void ZOLCategoryNode::ClearUserRejected() {
    Unset({}, {&ZOLOptionNode::IsUserRejected});
}

void ZOLCategoryNode::ClearUserDefined() {
    Unset({&ZOLOptionNode::IsUserSelected}, {&ZOLOptionNode::IsUserRejected});
}

void ZOLCategoryNode::ClearRuleSelected() {
    Unset({&ZOLOptionNode::IsRuleSelected}, {});
}

void ZOLCategoryNode::ClearRuleRejected() {
    Unset({}, {&ZOLOptionNode::IsRuleRejected});
}

void ZOLCategoryNode::ClearRuleDefined() {
    Unset({&ZOLOptionNode::IsRuleSelected}, {&ZOLOptionNode::IsRuleRejected});
}

template <class Mark>
bool ZOLCategoryNode::MarkOptions(const ZOLListPtrZOLParameter& parameters, Mark mark) {
    bool isAny = false;
    const ZOLUnicodeString name = GetCategoryName();
    for (const ZOLParameter* parameter : parameters) {
        ZOLOptionNode* node =
            parameter->GetCategory() == name ? GetOptionNode(parameter->GetOption()) : nullptr;
        if (!node)
            continue;
        (node->*mark)();
        isAny = true;
    }
    return isAny;
}

void ZOLCategoryNode::HighlightConflicts(const ZOLListPtrZOLParameter& parameters) {
    _hasConflict = MarkOptions(parameters, &ZOLOptionNode::HighlightConflict);
    UpdateNodeColor();
}

void ZOLCategoryNode::HighlightIrresolutions(const ZOLListPtrZOLParameter& parameters) {
    _hasIrresolution = MarkOptions(parameters, &ZOLOptionNode::HighlightIrresolution);
    UpdateNodeColor();
}

void ZOLCategoryNode::ClearConflicts() {
    for (ZOLOptionNode* option : _options)
        option->ClearConflict();
    _hasConflict = false;
    _hasIrresolution = false;
    UpdateNodeColor();
}

void ZOLCategoryNode::UnHighlightAll() {
    for (ZOLOptionNode* option : _options)
        option->UnHighlight();
}

void ZOLCategoryNode::SetIgnored(const int byUser) {
    if (!_ignorable)
        return;
    _ignoredLevel = byUser ? ByUser : ByList;
    for (ZOLOptionNode* option : _options)
        option->SetIgnored();
    UpdateNodeColor();
}

void ZOLCategoryNode::UnsetIgnored() {
    if (!_ignorable)
        return;
    _ignoredLevel = 0;
    for (ZOLOptionNode* option : _options)
        option->UnsetIgnored();
    UpdateNodeColor();
}

bool ZOLCategoryNode::IsUndecided() const {
    return !IsIgnored() && Count(&ZOLOptionNode::IsSelected) == 0 &&
           Count(&ZOLOptionNode::IsRejected) < _options.Size();
}

int ZOLCategoryNode::Count(Condition condition) const {
    return static_cast<int>(std::count_if(_options.begin(), _options.end(), [&](const ZOLOptionNode* option) {
        return (option->*condition)() != 0;
    }));
}

int ZOLCategoryNode::DecidedColor() const {
    const int selected = Count(&ZOLOptionNode::IsSelected);
    if (_categories.Size() > 0 && _categories[1]->GetMandatory() != 0) {
        const bool isMissing = _ignorable ? IsIgnored() != 0 : selected == 0 && _options.Size() != 0;
        if (isMissing)
            return Colours::Missing;
    }
    if (selected > 0)
        return Colours::Decided;
    const bool isOpenChoice =
        _ignorable && !IsIgnored() && Count(&ZOLOptionNode::IsRejected) != _options.Size();
    return isOpenChoice ? Colours::Decided : Colours::Plain;
}

void ZOLCategoryNode::UpdateNodeColor() {
    const int decided = DecidedColor();
    setColor(_hasConflict ? Colours::Conflict : _hasIrresolution ? Colours::Irresolution : decided);
    const NodeMark mark = IsIgnored()                   ? NodeMark::Ignored
                          : decided == Colours::Missing ? NodeMark::Missing
                          : decided == Colours::Decided ? NodeMark::Decided
                                                        : NodeMark::Undecided;
    setMark(mark, _hasConflict       ? NodeAlert::Conflict
                  : _hasIrresolution ? NodeAlert::Irresolution
                                     : NodeAlert::None);
}
