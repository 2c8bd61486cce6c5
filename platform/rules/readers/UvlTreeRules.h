#pragma once

#include "rules/readers/DictionaryNames.h"
#include "rules/readers/UvlTree.h"
#include "rules/readers/VariabilityModel.h"

namespace trellis {

// UvlTreeRules: a feature tree as categories and directive rules. Every feature becomes an option of one
// category:
//   the root                 the only option of a mandatory category
//   mandatory and optional   one category for all such features of one father
//   any other group          a category of its own, exclusive if at most one of its features stands
// Categories are called like the father. A father that always stands needs few rules: its groups become
// mandatory categories. Under any other father stand two rules for a category: whatever is chosen in it needs
// the father, and the father needs what is mandatory in it. They name the features of a group together, not
// one by one, since people read a dictionary by its groups, and an explanation names the choice beside the
// rule; but no more than fit a page.
class UvlTreeRules {
public:
    // The tree must have a root and be without problems. `space` is the name of the model, perhaps empty.
    UvlTreeRules(const UvlTree& tree, std::string_view space);

    OptionReference ReferenceOf(int feature) const;
    // Adds a rule of the file under a name like this; rules of the tree come first.
    void AddRule(const std::string& name, int line, DirectiveTerm term);
    VariabilityModel TakeModel() { return std::move(_model); }

private:
    void NameOptions();
    void MakeCategories(const UvlFeature& father);
    void MakeOption(int feature, std::size_t category);
    std::size_t MakeCategory(std::string_view name);
    void MarkCertain(std::size_t father);
    void MakeRules(std::size_t father);
    void MakeGroupRules(std::size_t father, const UvlGroup& group);
    void MakeMandatoryRules(std::size_t father, const std::vector<int>& mandatory);
    void NeedFather(std::size_t father, const std::vector<int>& features);
    RuleTerm TermOf(std::size_t feature) const;
    std::vector<RuleTerm> TermsOf(const std::vector<int>& features) const;
    ModelCategory& CategoryOf(int feature);

    const std::vector<UvlFeature>& _features;
    VariabilityModel _model;
    DictionaryNames _ruleNames;
    DictionaryNames _categoryNames;
    std::vector<std::string> _optionNames; // of each feature
    std::vector<std::size_t> _categories;  // of each feature
    std::vector<bool> _isCertain;          // whether a feature always stands
};

} // namespace trellis
