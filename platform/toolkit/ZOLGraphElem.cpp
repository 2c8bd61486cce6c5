#include "toolkit/ZOLGraphElem.h"

#include "toolkit/DialogDescription.h"
#include "toolkit/GraphPalette.h"
#include "toolkit/ZOLGraph.h"

using trellis::GraphPalette;

ZOLGraphElem::ZOLGraphElem(int color) : _color(color) {}

ZOLGraphElem::~ZOLGraphElem() = default;

void ZOLGraphElem::MarkChanged(Change change) {
    ZOLGraph* holder = graph();
    if (!holder)
        return;
    if (change == Change::Room)
        holder->MarkRoom();
    else
        holder->MarkLook();
}

void ZOLGraphElem::show() {
    if (_isVisible)
        return;
    _isVisible = true;
    MarkChanged(Change::Room);
}

void ZOLGraphElem::hide() {
    if (!_isVisible)
        return;
    _isVisible = false;
    MarkChanged(Change::Room);
}

int ZOLGraphElem::isVisible() const {
    return _isVisible ? 1 : 0;
}

int ZOLGraphElem::graphCount() const {
    return graph() ? 1 : 0;
}

int ZOLGraphElem::graphIndex(const ZOLGraph* holder) const {
    return holder && graph() == holder ? 0 : -1;
}

int ZOLGraphElem::getColor() const {
    return _color;
}

void ZOLGraphElem::setColor(int index) {
    if (_color == index)
        return;
    _color = index;
    MarkChanged(Change::Look);
}

int ZOLGraphElem::getHighlight() const {
    return _isHighlighted ? 1 : 0;
}

void ZOLGraphElem::setHighlight(int on) {
    if (_isHighlighted == (on != 0))
        return;
    _isHighlighted = on != 0;
    MarkChanged(Change::Look);
}

int ZOLGraphElem::manipulate() const {
    return 0;
}

const char* ZOLGraphElem::className() const {
    return GetMetaObject().name;
}

void ZOLGraphElem::setColor(const char* name) {
    if (const trellis::GraphColour* colour = name ? GraphPalette::Find(name) : nullptr)
        setColor(colour->index);
}

const char* ZOLGraphElem::getColorName() const {
    return GraphPalette::At(_color).name;
}

void ZOLGraphElem::insert(ZOLGraph*) {}

void ZOLGraphElem::remove() {}

ZOLUnicodeString ZOLGraphElem::toCompose() const {
    std::string text = getColorName();
    if (_isHighlighted)
        text += " highlighted";
    return text;
}

void ZOLGraphElem::toCompose(trellis::DialogDescription& description) const {
    description.Line(toCompose().Bytes());
}

void* ZOLGraphElem::CreateGraphRep() {
    return GetImpl();
}
