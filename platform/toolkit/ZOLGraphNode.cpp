#include "toolkit/ZOLGraphNode.h"

#include "toolkit/DialogDescription.h"
#include "toolkit/ZOLGraph.h"
#include "toolkit/ZOLGraphArc.h"

using trellis::NodeAlert;
using trellis::NodeMark;

namespace {

constexpr int PlainColour = 1;

} // namespace

std::string_view trellis::PixmapBaseName(const ZOLUnicodeString& pixmap) {
    const std::string_view path = pixmap.Bytes();
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

ZOLGraphNode::ZOLGraphNode(const ZOLUnicodeString& text, const ZOLUnicodeString& pixmap)
    : ZOLGraphElem(PlainColour), _text(text), _pixmap(pixmap), _nextChildArc(_childArcs.end()) {
    _selectNotification.SetNode(this);
}

ZOLGraphNode::~ZOLGraphNode() {
    ZOLGraphNode::remove();
    DeleteArcs();
}

void ZOLGraphNode::GiveUp() {
    ZOLGraphElem::GiveUp();
    remove();
    DeleteArcs();
}

// Each arc takes itself out of both lists.
void ZOLGraphNode::DeleteArcs() {
    while (!_childArcs.empty())
        delete _childArcs.back();
    while (!_parentArcs.empty())
        delete _parentArcs.back();
}

int ZOLGraphNode::manipulate() const {
    return 1;
}

void ZOLGraphNode::insert(ZOLGraph* graph) {
    if (graph)
        graph->add(this);
}

void ZOLGraphNode::remove() {
    if (_graph)
        _graph->remove(this);
}

ZOLUnicodeString ZOLGraphNode::toCompose() const {
    std::string text = trellis::DialogDescription::Quoted(_text) + ' ' + ZOLGraphElem::toCompose().Bytes();
    if (_isShadowIn)
        text += " pressed";
    if (_isCurrent)
        text += " current";
    if (HasPixmap())
        text += " [" + std::string(trellis::PixmapBaseName(_pixmap)) + ']';
    const ZOLGraphArc* arc = firstArcParent();
    if (arc && arc->isVisible() && !arc->IsPlain())
        text += " (" + arc->toCompose().Bytes() + ')';
    if (_mark != NodeMark::None)
        text += std::string(": ") + trellis::WordsFor(_mark);
    if (_alert != NodeAlert::None)
        text += std::string(", ") + trellis::WordsFor(_alert);
    return text;
}

void ZOLGraphNode::setText(const char* utf8) {
    _text = utf8;
    MarkChanged(Change::Room);
}

ZOLUnicodeString ZOLGraphNode::firstLine() const {
    return _text.Bytes().substr(0, _text.Bytes().find('\n'));
}

void ZOLGraphNode::setPixmap(const char* name) {
    _pixmap = name;
    MarkChanged(Change::Room);
}

bool ZOLGraphNode::HasPixmap() const {
    const std::string_view name = trellis::PixmapBaseName(_pixmap);
    return name.substr(0, name.rfind('.')).find_first_not_of(' ') != std::string_view::npos;
}

void ZOLGraphNode::setShadowIn() {
    _isShadowIn = true;
    MarkChanged(Change::Look);
}

void ZOLGraphNode::setShadowOut() {
    _isShadowIn = false;
    MarkChanged(Change::Look);
}

void ZOLGraphNode::setDecorationVisibility(int on) {
    _hasDecoration = on != 0;
    MarkChanged(Change::Room);
}

void ZOLGraphNode::setCurrent(int on) {
    _isCurrent = on != 0;
    MarkChanged(Change::Look);
}

void ZOLGraphNode::setMark(NodeMark mark, NodeAlert alert) {
    const bool isRoomOther = (mark == NodeMark::None) != (_mark == NodeMark::None);
    _mark = mark;
    _alert = alert;
    MarkChanged(isRoomOther ? Change::Room : Change::Look);
}

ZOLGraphNode* ZOLGraphNode::firstChild() {
    _nextChildArc = _childArcs.begin();
    return nextChild();
}

ZOLGraphNode* ZOLGraphNode::nextChild() {
    if (_nextChildArc == _childArcs.end())
        return nullptr;
    return (*_nextChildArc++)->GetChild();
}

ZOLGraphNode* ZOLGraphNode::firstParent() const {
    const ZOLGraphArc* arc = firstArcParent();
    return arc ? arc->GetParent() : nullptr;
}

ZOLGraphArc* ZOLGraphNode::firstArcParent() const {
    return _parentArcs.empty() ? nullptr : _parentArcs.front();
}
