#pragma once

#include "graph/ZOLOptionNode.h"
#include "service/ZOLIQrdCategory.h"
#include "values/ZOLCategory.h"
#include "values/ZOLParameter.h"
#include "values/ZOLQRDCfgEffectivity.h"

#include <unordered_map>

// ZOLCategoryNode: a category in the selection graph with its option nodes, which it owns, or the categories of one
// name of several dictionaries: name, description, exclusivity and mandatory mark are those of the first.
//
// A node without category has neither text nor options; its name is empty. Copies of options and parameters that are
// given out belong to the caller.
class ZOLCategoryNode : public ZOLCategoryGraphNode {
    ZOL_META_OBJECT(ZOLCategoryNode, ZOLCategoryGraphNode)
public:
    // ignorable and withDescription as with ZOLOptionNode.
    ZOLCategoryNode(const ZOLIQrdCategory_var& category, const int ignorable, const int withDescription);
    ZOLCategoryNode(const ZOLListValZOLIQrdCategory_var& categories, const int ignorable,
                    const int withDescription);
    // Deletes its option nodes.
    ~ZOLCategoryNode() override;

    int IsACategory() const override { return 1; }
    int IsAnOption() const override { return 0; }

    // A copy of the first category; an empty one without.
    ZOLCategory GetCategory() const;
    ZOLUnicodeString GetCategoryName() const;
    ZOLListValZOLUnicodeString GetOptNameList() const;
    // With name and category only.
    ZOLListPtrZOLOption GetOptionList() const;
    const ZOLListPtrZOLOptionNode& GetOptionNodes() const { return _options; }
    // Null when there is none of that name.
    ZOLOptionNode* GetOptionNode(const ZOLUnicodeString& name) const;
    // The selected options, with the exclusivity of this node; rejected ones are not told.
    ZOLListPtrZOLParameter GetParameters() const;
    ZOLListPtrZOLOption GetSelectedOptions() const;
    ZOLListPtrZOLOption GetRejectedOptions() const;
    // The parameters of this category as options: IsNot by their sign, IsRuleDefined by source 2.
    ZOLListPtrZOLOption GetOptionListFromParameters(const ZOLListPtrZOLParameter& parameters) const;

    // Brings a selection onto the options: states are set, never ended. Negated parameters hide their option where
    // asked. Any parameter of this category ends an ignored level of 1; a level of 2 keeps all out. Gives IsIgnored.
    int SetParameters(const ZOLListPtrZOLParameter& parameters, const int hideRuleRejected,
                      const int hideUserRejected);

    void SelectAll();
    void RejectAll();
    // End the states that their names tell, and the marks of conflicts.
    void ClearSelected();
    void ClearRejected();
    // All states; options that were hidden show again in an open category.
    void ClearDefined();
    void ClearUserSelected();
    void ClearUserRejected();
    void ClearUserDefined();
    void ClearRuleSelected();
    void ClearRuleRejected();
    void ClearRuleDefined();
    // Mark the options of this category that are in the list; the category is marked when any is.
    void HighlightConflicts(const ZOLListPtrZOLParameter& parameters);
    void HighlightIrresolutions(const ZOLListPtrZOLParameter& parameters);
    // Both marks.
    void ClearConflicts();
    void UnHighlightAll();

    // Shows or hides the options, with the pixmap of an open or closed branch.
    void Open();
    void Close();
    int IsOpen() const { return _isOpen; }
    int GetMandatory() const;
    int GetExclusivity() const { return _exclusivity; }
    void SetExclusivity(const int exclusivity) { _exclusivity = exclusivity; }
    // Only where it can be ignored. byUser: by the user's own command, which no parameter ends; else by a list.
    void SetIgnored(const int byUser);
    void UnsetIgnored();
    // Not ignored, nothing selected, and something left to select.
    bool IsUndecided() const;
    int IsIgnored() const { return _ignorable && _ignoredLevel > 0; }
    void BuildNodeText();
    // Conflict 4, irresolution 2; then a mandatory category without a choice, or an ignored one, 7; one in which a
    // decision is in force 46; else 1. Where it can be ignored and is not, a category counts as decided unless all
    // its options are rejected. The mark tells the same, and what is ignored; the alert the first two.
    void UpdateNodeColor();

private:
    using Condition = int (ZOLOptionNode::*)() const;

    void BuildOptions();
    void AddOption(const ZOLQRDCfgEffectivity& term);
    ZOLListValZOLQRDCfgEffectivity SortedTerms() const;
    template <class Mark>
    bool MarkOptions(const ZOLListPtrZOLParameter& parameters, Mark mark);
    void Unset(std::initializer_list<Condition> selected, std::initializer_list<Condition> rejected);
    int Count(Condition condition) const;
    int DecidedColor() const;

    ZOLListValZOLIQrdCategory_var _categories;
    ZOLListPtrZOLOptionNode _options; // owned, in the order of names
    std::unordered_map<ZOLUnicodeString, ZOLOptionNode*> _optionsByName;
    int _ignorable;
    int _withDescription;
    int _ignoredLevel = 0; // 1 by a list, 2 by the user's own command
    int _isOpen = 0;
    bool _hasConflict = false;
    bool _hasIrresolution = false;
    int _exclusivity = 1;
};

using ZOLListPtrZOLCategoryNode = ZOLListPtr<ZOLCategoryNode>;
