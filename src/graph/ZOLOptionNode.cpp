#include "graph/ZOLOptionNode.h"

#include "graph/GraphColours.h"
#include "toolkit/ZOLGraphArc.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* NoPixmap = " ";
constexpr int PlainLine = 1;
constexpr int RejectedLine = 2;

namespace Colours = trellis::GraphColours;
using trellis::NodeAlert;
using trellis::NodeMark;

struct Look {
    NodeMark mark;
    int color;
    int highlight = 0;
    bool isPressed = false;
};

constexpr Look Looks[] = {
    {NodeMark::Undecided, Colours::PlainOption},
    {NodeMark::Ignored, Colours::Ignored},
    {NodeMark::ChosenByUser, Colours::PlainOption, 1, true},
    {NodeMark::ChosenByRule, Colours::RuleSelected, 0, true},
    {NodeMark::RejectedByUser, Colours::UserRejected},
    {NodeMark::RejectedByRule, Colours::RuleRejected},
};

} // namespace

ZOLOptionNode::ZOLOptionNode(const ZOLOption& option, const int ignorable, const int withDescription)
    : ZOLCategoryGraphNode("", NoPixmap),
      _option(option),
      _ignorable(ignorable),
      _withDescription(withDescription) {
    BuildNodeText();
    ResetNodeDisplay();
}

void ZOLOptionNode::BuildNodeText() {
    setText(TextOf(_option.GetName(), _option.GetDescription(), _withDescription).ConvertToChar());
}

void ZOLOptionNode::ResetNodeDisplay() {
    Draw(_isIgnored ? NodeMark::Ignored : NodeMark::Undecided);
}

void ZOLOptionNode::ResetArcDisplay() {
    SetArcLine(PlainLine);
    ClearConflict();
}

void ZOLOptionNode::SetAlert(int arcColor, NodeAlert alert) {
    if (ZOLGraphArc* arc = firstArcParent())
        arc->setColor(arcColor);
    setMark(getMark(), alert);
}

void ZOLOptionNode::SetArcLine(int type) {
    if (ZOLGraphArc* arc = firstArcParent())
        arc->setLineType(type);
}

// What is ignored keeps its colour where the look has none of its own.
void ZOLOptionNode::Draw(NodeMark mark) {
    const auto look =
        std::find_if(std::begin(Looks), std::end(Looks), [mark](const Look& l) { return l.mark == mark; });
    setHighlight(look->highlight);
    look->isPressed ? setShadowIn() : setShadowOut();
    setColor(_isIgnored && look->color == Colours::PlainOption ? Colours::Ignored : look->color);
    setMark(mark, getAlert());
}

void ZOLOptionNode::SetUserSelected() {
    if (IsUserRejected())
        UnsetRejected();
    _selected = State::User;
    Draw(NodeMark::ChosenByUser);
}

void ZOLOptionNode::SetRuleSelected() {
    if (IsUserSelected())
        return;
    _selected = State::Rule;
    Draw(NodeMark::ChosenByRule);
}

void ZOLOptionNode::UnsetSelected() {
    _selected = State::None;
    ResetNodeDisplay();
    if (IsUserRejected())
        SetUserRejected();
    else if (IsRuleRejected())
        SetRuleRejected();
}

void ZOLOptionNode::SetUserRejected() {
    if (IsUserSelected())
        UnsetSelected();
    _rejected = State::User;
    SetArcLine(RejectedLine);
    Draw(NodeMark::RejectedByUser);
}

void ZOLOptionNode::SetRuleRejected() {
    if (IsUserRejected() || IsSelected())
        return;
    _rejected = State::Rule;
    SetArcLine(RejectedLine);
    Draw(NodeMark::RejectedByRule);
}

void ZOLOptionNode::UnsetRejected() {
    _rejected = State::None;
    SetArcLine(PlainLine);
    ResetNodeDisplay();
    if (IsUserSelected())
        SetUserSelected();
    else if (IsRuleSelected())
        SetRuleSelected();
}

void ZOLOptionNode::SetIgnored() {
    if (!_ignorable)
        return;
    _isIgnored = true;
    Reset();
}

void ZOLOptionNode::UnsetIgnored() {
    if (!_ignorable)
        return;
    _isIgnored = false;
    if (!IsSelected() && !IsRejected())
        ResetNodeDisplay();
}

void ZOLOptionNode::Highlight() {
    setHighlight(0);
    setColor(Colours::Highlighted);
}

// The user's two states exclude each other, so that drawing one of them never ends the other.
void ZOLOptionNode::UnHighlight() {
    ResetNodeDisplay();
    if (IsUserSelected())
        SetUserSelected();
    else if (IsRuleSelected())
        SetRuleSelected();
    if (IsUserRejected())
        SetUserRejected();
    else if (IsRuleRejected())
        SetRuleRejected();
}

void ZOLOptionNode::HighlightConflict() {
    SetAlert(Colours::Conflict, NodeAlert::Conflict);
}

void ZOLOptionNode::HighlightIrresolution() {
    SetAlert(Colours::Irresolution, NodeAlert::Irresolution);
}

void ZOLOptionNode::ClearConflict() {
    if (getAlert() != NodeAlert::None)
        SetAlert(Colours::PlainArc, NodeAlert::None);
}

void ZOLOptionNode::Reset() {
    _selected = State::None;
    _rejected = State::None;
    ResetNodeDisplay();
    ResetArcDisplay();
}
