#include "graph/ZOLCategoryNode.h"

#include "graph/GraphColours.h"
#include "service/ZOLQRDCfgBase.h"
#include "toolkit/ZOLGraphArc.h"

#include <algorithm>

namespace {

constexpr const char* OpenPixmap = "diropen.rgb";
constexpr const char* ClosedPixmap = "dirclose.rgb";
constexpr int ByList = 1;
constexpr int ByUser = 2;

namespace Colours = trellis::GraphColours;
using trellis::NodeAlert;
using trellis::NodeMark;

ZOLListValZOLIQrdCategory_var ListOf(const ZOLIQrdCategory_var& category) {
    ZOLListValZOLIQrdCategory_var list;
    if (category)
        list.Append(category);
    return list;
}

} // namespace

ZOLCategoryNode::ZOLCategoryNode(const ZOLIQrdCategory_var& category, const int ignorable,
                                 const int withDescription)
    : ZOLCategoryNode(ListOf(category), ignorable, withDescription) {}

ZOLCategoryNode::ZOLCategoryNode(const ZOLListValZOLIQrdCategory_var& categories, const int ignorable,
                                 const int withDescription)
    : ZOLCategoryGraphNode(categories.Size() == 0 ? "" : "CategoryName", OpenPixmap),
      _categories(categories),
      _ignorable(ignorable),
      _withDescription(withDescription) {
    if (_categories.Size() == 0)
        return;
    _exclusivity = _categories[1]->GetExclusivity();
    _isOpen = 1;
    BuildNodeText();
    BuildOptions();
    UpdateNodeColor();
}

ZOLCategoryNode::~ZOLCategoryNode() {
    ZOLDeleteElements(_options);
}

// The terms of the first category as they come, those of the others where they are new.
ZOLListValZOLQRDCfgEffectivity ZOLCategoryNode::SortedTerms() const {
    ZOLListValZOLQRDCfgEffectivity terms;
    for (int i = 1; i <= _categories.Size(); ++i) {
        ZOLListValZOLIQrdEffectivity_var options;
        _categories[i]->GetOptions(options);
        for (const ZOLIQrdEffectivity_var& option : options) {
            const ZOLQRDCfgEffectivity term(option);
            if (i == 1 || terms.Locate(term, 1) < 1)
                terms.Append(term);
        }
    }
    terms.QuickSort(&ZOLQRDCfgBase::CompareOptionName);
    return terms;
}

void ZOLCategoryNode::BuildOptions() {
    for (const ZOLQRDCfgEffectivity& term : SortedTerms())
        AddOption(term);
}

void ZOLCategoryNode::AddOption(const ZOLQRDCfgEffectivity& term) {
    auto* node = new ZOLOptionNode(ZOLOption(term.GetName(), term.GetDescription(), GetCategoryName(), 0, 0),
                                   _ignorable, _withDescription);
    new ZOLGraphArc(this, node); // belongs to its ends
    _options.Append(node);
    _optionsByName.emplace(node->GetOptionName(), node);
}

void ZOLCategoryNode::BuildNodeText() {
    if (_categories.Size() > 0)
        setText(TextOf(_categories[1]->GetName(), _categories[1]->GetDescription(), _withDescription)
                    .ConvertToChar());
}

ZOLCategory ZOLCategoryNode::GetCategory() const {
    if (_categories.Size() == 0)
        return ZOLCategory("", "", 0, 0);
    const ZOLIQrdCategory_var& first = _categories[1];
    return ZOLCategory(first->GetName(), first->GetDescription(), first->GetExclusivity(),
                       first->GetMandatory());
}

ZOLUnicodeString ZOLCategoryNode::GetCategoryName() const {
    return _categories.Size() == 0 ? ZOLUnicodeString() : _categories[1]->GetName();
}

ZOLListValZOLUnicodeString ZOLCategoryNode::GetOptNameList() const {
    ZOLListValZOLUnicodeString names;
    for (const ZOLOptionNode* option : _options)
        names.Append(option->GetOptionName());
    return names;
}

ZOLListPtrZOLOption ZOLCategoryNode::GetOptionList() const {
    ZOLListPtrZOLOption list;
    for (const ZOLOptionNode* option : _options)
        list.Append(new ZOLOption(option->GetOptionName(), "", option->GetOption().GetCategory(), 0, 0));
    return list;
}

ZOLOptionNode* ZOLCategoryNode::GetOptionNode(const ZOLUnicodeString& name) const {
    const auto found = _optionsByName.find(name);
    return found == _optionsByName.end() ? nullptr : found->second;
}

ZOLListPtrZOLParameter ZOLCategoryNode::GetParameters() const {
    ZOLListPtrZOLParameter parameters;
    if (_categories.Size() == 0)
        return parameters;
    const ZOLCategory category = GetCategory();
    for (const ZOLOptionNode* option : _options) {
        if (!option->IsSelected())
            continue;
        auto* parameter = new ZOLParameter(category.GetName(), category.GetDescription(),
                                           option->GetOptionName(), option->GetOption().GetDescription(), 0);
        parameter->SetCategoryExclusivity(_exclusivity);
        parameters.Append(parameter);
    }
    return parameters;
}

ZOLListPtrZOLOption ZOLCategoryNode::GetSelectedOptions() const {
    ZOLListPtrZOLOption list;
    for (const ZOLOptionNode* option : _options)
        if (option->IsSelected())
            list.Append(new ZOLOption(option->GetOption()));
    return list;
}

ZOLListPtrZOLOption ZOLCategoryNode::GetRejectedOptions() const {
    ZOLListPtrZOLOption list;
    for (const ZOLOptionNode* option : _options)
        if (option->IsRejected())
            list.Append(new ZOLOption(option->GetOption()));
    return list;
}

ZOLListPtrZOLOption
ZOLCategoryNode::GetOptionListFromParameters(const ZOLListPtrZOLParameter& parameters) const {
    ZOLListPtrZOLOption list;
    const ZOLUnicodeString name = GetCategoryName();
    if (_categories.Size() == 0)
        return list;
    for (const ZOLParameter* parameter : parameters)
        if (parameter->GetCategory() == name)
            list.Append(new ZOLOption(parameter->GetOption(), parameter->GetOptionDescription(), name,
                                      parameter->IsNot(),
                                      parameter->GetParameterSource() == ZOLParameter::SourceRule));
    return list;
}

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

void ZOLCategoryNode::Open() {
    setPixmap(OpenPixmap);
    for (ZOLOptionNode* option : _options)
        option->Show();
    _isOpen = 1;
}

void ZOLCategoryNode::Close() {
    setPixmap(ClosedPixmap);
    for (ZOLOptionNode* option : _options)
        option->Hide();
    _isOpen = 0;
}

int ZOLCategoryNode::GetMandatory() const {
    return _categories.Size() > 0 && _categories[1]->GetMandatory() > 0;
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
    const NodeMark mark = IsIgnored()                    ? NodeMark::Ignored
                          : decided == Colours::Missing ? NodeMark::Missing
                          : decided == Colours::Decided ? NodeMark::Decided
                                                         : NodeMark::Undecided;
    setMark(mark, _hasConflict       ? NodeAlert::Conflict
                  : _hasIrresolution ? NodeAlert::Irresolution
                                     : NodeAlert::None);
}
