#include "motif/MotifPeer.h"

#include "motif/MotifPeerTable.h"
#include "motif/MotifView.h"
#include "toolkit/ZOLDialog.h"

namespace trellis {

MotifPeer::MotifPeer(MotifView& view, ZOLDialog& dialog)
    : _view(view), _dialog(dialog), _number(dialog.GetNumber()) {}

MotifPeer::~MotifPeer() {
    if (_widget)
        XtDestroyWidget(_widget);
}

MotifPeer* MotifPeer::Find(long number) {
    return MotifPeerTable::Instance().Find(number);
}

XtPointer MotifPeer::GetKey() const {
    return reinterpret_cast<XtPointer>(_number);
}

MotifPeer* MotifPeer::FromKey(XtPointer key) {
    return Find(reinterpret_cast<long>(key));
}

void MotifPeer::MarkForMirror() {
    _view.Changed(_dialog);
}

void MotifPeer::Create(Widget parent) {
    _widget = Build(parent);
    XtAddCallback(_widget, MotifQuirks::Name(XmNdestroyCallback), &MotifPeer::WidgetGoneCB, GetKey());
}

// A holder that goes takes the widgets in it along, before or after their peers. A later peer of the same
// dialog has another widget.
void MotifPeer::WidgetGoneCB(Widget widget, XtPointer key, XtPointer) {
    if (MotifPeer* peer = FromKey(key))
        peer->WidgetGone(widget);
}

void MotifPeer::WidgetGone(Widget widget) {
    if (_widget == widget)
        _widget = nullptr;
}

void MotifPeer::Mirror() {
    MotifQuirks::SetSensitive(_widget, _dialog.GetSensitivity() == ZOLActive);
}

void MotifPeer::Place(const LayoutRectangle& place) {
    MotifQuirks::Configure(_widget, place.x, place.y, place.width, place.height);
}

void MotifPeer::PlaceContent(const DialogLayout&, const LayoutRectangle&) {}

void MotifPeer::MirrorContent() {}

LayoutRectangle MotifPeer::GetMenuPlace() const {
    return {0, MotifQuirks::PlaceOf(_widget).height, 1, 1};
}

void MotifPeer::OpensMenu(Widget widget) {
    Listen<&MotifPeer::ContextGesture>(widget, ButtonPressMask);
}

void MotifPeer::ContextGesture(Widget, XEvent* event) {
    if (event->xbutton.button == Button3)
        _view.OpenMenuOf(_dialog, event->xbutton.x_root, event->xbutton.y_root);
}

} // namespace trellis
