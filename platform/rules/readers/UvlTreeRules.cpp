#include "rules/readers/UvlTreeRules.h"

#include "rules/readers/DirectiveForm.h"

#include <algorithm>
#include <iterator>

namespace trellis {

namespace {

using Kind = UvlGroup::Kind;

constexpr std::size_t MostTogether = 20; // features that a rule names where it could name fewer

bool IsShared(const UvlGroup& group) {
    return group.kind == Kind::Mandatory || group.kind == Kind::Optional;
}

// Whether each of its features stands where the father stands.
bool ForcesAll(const UvlGroup& group) {
    const bool forcesOne = group.kind == Kind::ExactlyOne || group.kind == Kind::AtLeastOne;
    return group.kind == Kind::Mandatory || (forcesOne && group.features.size() == 1);
}

// Parts of the terms, one after the other, each of about the same size.
std::vector<std::vector<RuleTerm>> Pages(std::vector<RuleTerm> terms) {
    const std::size_t count = (terms.size() + MostTogether - 1) / MostTogether;
    std::vector<std::vector<RuleTerm>> pages;
    for (std::size_t page = 0; page < count; ++page) {
        const auto place = [&](std::size_t number) {
            return std::make_move_iterator(terms.begin() +
                                           static_cast<std::ptrdiff_t>(terms.size() * number / count));
        };
        pages.emplace_back(place(page), place(page + 1));
    }
    return pages;
}

} // namespace

UvlTreeRules::UvlTreeRules(const UvlTree& tree, std::string_view space)
    : _features(tree.Features()), _categories(_features.size()), _isCertain(_features.size()) {
    NameOptions();
    const std::size_t root = MakeCategory({});
    MakeOption(0, root);
    for (const UvlFeature& feature : _features)
        MakeCategories(feature);
    // Last, so that the groups under the root are called like it.
    ModelCategory& top = _model.categories[root];
    top.name = _categoryNames.Allot(space.empty() ? _features.front().name : space);
    top.isMandatory = true;
    _isCertain[0] = true;
    for (std::size_t father = 0; father < _features.size(); ++father) {
        MarkCertain(father);
        MakeRules(father);
    }
}

OptionReference UvlTreeRules::ReferenceOf(int feature) const {
    const auto place = static_cast<std::size_t>(feature);
    return {_model.categories[_categories[place]].name, _optionNames[place]};
}

void UvlTreeRules::AddRule(const std::string& name, int line, DirectiveTerm term) {
    _model.rules.push_back({_ruleNames.Allot(name), line, std::move(term)});
}

// Names that fit stay as they are, so long names give way to them.
void UvlTreeRules::NameOptions() {
    DictionaryNames names;
    _optionNames.resize(_features.size());
    for (const bool isShort : {true, false})
        for (std::size_t place = 0; place < _features.size(); ++place)
            if (DictionaryNames::IsShort(_features[place].name) == isShort)
                _optionNames[place] = names.Allot(_features[place].name);
}

void UvlTreeRules::MakeCategories(const UvlFeature& father) {
    std::size_t shared = 0; // the root has the first category, so this means none yet
    for (const UvlGroup& group : father.groups) {
        std::size_t category = shared;
        if (!IsShared(group) || shared == 0)
            category = MakeCategory(father.name);
        if (IsShared(group))
            shared = category;
        _model.categories[category].isExclusive =
            group.kind == Kind::AtMostOne || group.kind == Kind::ExactlyOne;
        for (const int feature : group.features)
            MakeOption(feature, category);
    }
}

std::size_t UvlTreeRules::MakeCategory(std::string_view name) {
    ModelCategory category;
    if (!name.empty())
        category.name = _categoryNames.Allot(name);
    if (!DictionaryNames::IsShort(name))
        category.description = name;
    _model.categories.push_back(std::move(category));
    return _model.categories.size() - 1;
}

void UvlTreeRules::MakeOption(int feature, std::size_t category) {
    const auto place = static_cast<std::size_t>(feature);
    _categories[place] = category;
    const std::string_view name = _features[place].name;
    _model.categories[category].options.push_back(
        {_optionNames[place], DictionaryNames::IsShort(name) ? std::string() : std::string(name)});
}

// A father stands before its features, so what is certain is known from the root down.
void UvlTreeRules::MarkCertain(std::size_t father) {
    for (const UvlGroup& group : _features[father].groups)
        for (const int feature : group.features)
            _isCertain[static_cast<std::size_t>(feature)] = _isCertain[father] && ForcesAll(group);
}

void UvlTreeRules::MakeRules(std::size_t father) {
    std::vector<int> shared;
    std::vector<int> mandatory;
    for (const UvlGroup& group : _features[father].groups) {
        if (!IsShared(group)) {
            MakeGroupRules(father, group);
            continue;
        }
        std::ranges::copy(group.features, std::back_inserter(shared));
        if (group.kind == Kind::Mandatory)
            std::ranges::copy(group.features, std::back_inserter(mandatory));
    }
    NeedFather(father, shared);
    if (!mandatory.empty())
        MakeMandatoryRules(father, mandatory);
}

void UvlTreeRules::MakeMandatoryRules(std::size_t father, const std::vector<int>& mandatory) {
    ModelCategory& category = CategoryOf(mandatory.front());
    if (_isCertain[father] && category.options.size() == 1) {
        category.isMandatory = true;
        return;
    }
    for (std::vector<RuleTerm>& page : Pages(TermsOf(mandatory)))
        AddRule("mandatory: " + category.name, _features[father].line,
                {TermOf(father), AllOf(std::move(page))});
}

void UvlTreeRules::MakeGroupRules(std::size_t father, const UvlGroup& group) {
    NeedFather(father, group.features);
    if (group.kind == Kind::AtMostOne)
        return;
    ModelCategory& category = CategoryOf(group.features.front());
    if (_isCertain[father])
        category.isMandatory = true;
    else
        AddRule(std::string(group.word) + ": " + category.name, group.line,
                {TermOf(father), AnyOf(TermsOf(group.features))});
}

void UvlTreeRules::NeedFather(std::size_t father, const std::vector<int>& features) {
    if (_isCertain[father])
        return;
    for (std::vector<RuleTerm>& page : Pages(TermsOf(features)))
        AddRule("parent: " + CategoryOf(features.front()).name, _features[father].line,
                {AnyOf(std::move(page)), TermOf(father)});
}

RuleTerm UvlTreeRules::TermOf(std::size_t feature) const {
    return RuleTerm::Of(ReferenceOf(static_cast<int>(feature)));
}

std::vector<RuleTerm> UvlTreeRules::TermsOf(const std::vector<int>& features) const {
    std::vector<RuleTerm> terms;
    terms.reserve(features.size());
    for (const int feature : features)
        terms.push_back(TermOf(static_cast<std::size_t>(feature)));
    return terms;
}

ModelCategory& UvlTreeRules::CategoryOf(int feature) {
    return _model.categories[_categories[static_cast<std::size_t>(feature)]];
}

} // namespace trellis
