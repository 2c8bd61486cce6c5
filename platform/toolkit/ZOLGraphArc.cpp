#include "toolkit/ZOLGraphArc.h"

#include "toolkit/ZOLGraphNode.h"
#include "values/ContractBreach.h"

namespace {

constexpr int PlainArcColour = 3;
constexpr int PlainLine = 1;
constexpr int RejectedLine = 2;

} // namespace

ZOLGraphArc::ZOLGraphArc(ZOLGraphNode* parent, ZOLGraphNode* child)
    : ZOLGraphElem(PlainArcColour), _parent(parent), _child(child) {
    if (!parent || !child || parent->IsBeingDestroyed() || child->IsBeingDestroyed())
        ContractBreach("ZOLGraphArc::ZOLGraphArc", "an arc needs two living ends");
    _placeInParent = parent->_childArcs.insert(parent->_childArcs.end(), this);
    _placeInChild = child->_parentArcs.insert(child->_parentArcs.end(), this);
    MarkChanged(Change::Room);
}

ZOLGraphArc::~ZOLGraphArc() {
    Untie();
}

void ZOLGraphArc::GiveUp() {
    ZOLGraphElem::GiveUp();
    Untie();
}

void ZOLGraphArc::Untie() {
    if (!_parent)
        return;
    MarkChanged(Change::Room);
    // A walk over the children goes on behind the arc that goes.
    if (_parent->_nextChildArc == _placeInParent)
        ++_parent->_nextChildArc;
    _parent->_childArcs.erase(_placeInParent);
    _child->_parentArcs.erase(_placeInChild);
    _parent = nullptr;
    _child = nullptr;
}

ZOLGraph* ZOLGraphArc::graph() const {
    return _parent && _parent->graph() == _child->graph() ? _parent->graph() : nullptr;
}

ZOLUnicodeString ZOLGraphArc::toCompose() const {
    std::string text = "arc " + ZOLGraphElem::toCompose().Bytes();
    if (_lineType == RejectedLine)
        text += " rejected";
    return text;
}

void ZOLGraphArc::setLineType(int type) {
    _lineType = type;
    MarkChanged(Change::Look);
}

bool ZOLGraphArc::IsPlain() const {
    return getColor() == PlainArcColour && _lineType == PlainLine && !getHighlight();
}
