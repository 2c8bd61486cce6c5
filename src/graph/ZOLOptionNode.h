#pragma once

#include "graph/ZOLCategoryGraphNode.h"
#include "values/ZOLListPtr.h"
#include "values/ZOLOption.h"

// ZOLOptionNode: an option in the selection graph, with its state. Selection and rejection are two independent
// fields, each by the user or by a rule; the display is that of the state which was set last and holds. The word of the
// user beats that of a rule, and a rule never rejects what is selected.
//
//   display           colour  highlight  shadow  line of the arc above  mark
//   nothing           6       off        out     1                      Undecided
//   ignored           66      off        out     1                      Ignored
//   user selected     6       on         in      as it is               ChosenByUser
//   rule selected     7       off        in      as it is               ChosenByRule
//   user rejected     12      off        out     2                      RejectedByUser
//   rule rejected     254     off        out     2                      RejectedByRule
class ZOLOptionNode : public ZOLCategoryGraphNode {
    ZOL_META_OBJECT(ZOLOptionNode, ZOLCategoryGraphNode)
public:
    // ignorable: 1 in advanced mode, where alone an option can be ignored. withDescription: the description stands in
    // the text.
    ZOLOptionNode(const ZOLOption& option, const int ignorable, const int withDescription);

    const ZOLOption& GetOption() const { return _option; }
    const ZOLUnicodeString& GetOptionName() const { return _option.GetName(); }
    int IsSelected() const { return _selected != State::None; }
    int IsUserSelected() const { return _selected == State::User; }
    int IsRuleSelected() const { return _selected == State::Rule; }
    int IsRejected() const { return _rejected != State::None; }
    int IsUserRejected() const { return _rejected == State::User; }
    int IsRuleRejected() const { return _rejected == State::Rule; }

    // Ends a rejection by the user; one by a rule stays, hidden.
    void SetUserSelected();
    // Nothing on what the user selected.
    void SetRuleSelected();
    // A rejection that is still there shows again.
    void UnsetSelected();
    // Ends a selection by the user; one by a rule stays.
    void SetUserRejected();
    // Nothing on what the user rejected, nor on what is selected in any way.
    void SetRuleRejected();
    // A selection that is still there shows again.
    void UnsetRejected();
    // Both do nothing on a node that cannot be ignored. The first ends both states.
    void SetIgnored();
    void UnsetIgnored();

    // Another colour until UnHighlight draws the state again.
    void Highlight();
    void UnHighlight();
    // The colour of the arc above, and the alert of the node.
    void HighlightConflict();
    void HighlightIrresolution();
    void ClearConflict();

    // Ends both states.
    void Reset() override;
    // The node alone; its arc stays.
    void Hide() override { hide(); }
    void Show() override { show(); }
    int IsACategory() const override { return 0; }
    int IsAnOption() const override { return 1; }
    // Sets the text from name and description.
    void BuildNodeText();
    // The display of no state at all.
    void ResetNodeDisplay();
    void ResetArcDisplay();

private:
    enum class State { None, User, Rule };

    void SetArcLine(int type);
    // The colour of the arc above with the alert that it means.
    void SetAlert(int arcColor, trellis::NodeAlert alert);
    void Draw(trellis::NodeMark mark);

    ZOLOption _option;
    int _ignorable;
    int _withDescription;
    bool _isIgnored = false;
    State _selected = State::None;
    State _rejected = State::None;
};

using ZOLListPtrZOLOptionNode = ZOLListPtr<ZOLOptionNode>;
