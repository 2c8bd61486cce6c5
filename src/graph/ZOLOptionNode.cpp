#include "graph/ZOLOptionNode.h"

#include "graph/GraphColours.h"
#include "toolkit/ZOLGraphArc.h"

namespace {

constexpr const char* NoPixmap = " ";
constexpr int PlainLine = 1;
constexpr int RejectedLine = 2;

namespace Colours = trellis::GraphColours;

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
    setHighlight(0);
    setShadowOut();
    setColor(_ignorable && _isIgnored ? Colours::Ignored : Colours::PlainOption);
}

void ZOLOptionNode::ResetArcDisplay() {
    SetArcLine(PlainLine);
    SetArcColor(Colours::PlainArc);
}

void ZOLOptionNode::SetArcColor(int color) {
    if (ZOLGraphArc* arc = firstArcParent())
        arc->setColor(color);
}

void ZOLOptionNode::SetArcLine(int type) {
    if (ZOLGraphArc* arc = firstArcParent())
        arc->setLineType(type);
}

void ZOLOptionNode::Draw(int color, bool isPressed) {
    ResetNodeDisplay();
    setColor(color);
    isPressed ? setShadowIn() : setShadowOut();
}

void ZOLOptionNode::SetUserSelected() {
    if (IsUserRejected())
        UnsetRejected();
    _selected = State::User;
    ResetNodeDisplay();
    setHighlight(1);
    setShadowIn();
}

void ZOLOptionNode::SetRuleSelected() {
    if (IsUserSelected())
        return;
    _selected = State::Rule;
    Draw(Colours::RuleSelected, true);
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
    Draw(Colours::UserRejected, false);
}

void ZOLOptionNode::SetRuleRejected() {
    if (IsUserRejected() || IsSelected())
        return;
    _rejected = State::Rule;
    SetArcLine(RejectedLine);
    Draw(Colours::RuleRejected, false);
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
    SetArcColor(Colours::Conflict);
}

void ZOLOptionNode::HighlightIrresolution() {
    SetArcColor(Colours::Irresolution);
}

void ZOLOptionNode::ClearConflict() {
    SetArcColor(Colours::PlainArc);
}

void ZOLOptionNode::Reset() {
    _selected = State::None;
    _rejected = State::None;
    ResetNodeDisplay();
    ResetArcDisplay();
}
