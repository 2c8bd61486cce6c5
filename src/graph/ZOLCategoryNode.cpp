#include "graph/ZOLCategoryNode.h"

#include "service/ZOLQRDCfgBase.h"
#include "toolkit/ZOLGraphArc.h"

namespace {

constexpr const char* OpenPixmap = "diropen.rgb";
constexpr const char* ClosedPixmap = "dirclose.rgb";

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
