#include "motif/MotifPeer.h"

#include "motif/MotifFocus.h"
#include "motif/MotifPeerTable.h"
#include "motif/MotifView.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgToggleButton.h"

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
    // Native widgets keep motions from the windows around them, so each is asked for its own; tool tips need them.
    for (Widget widget : {_widget, GetFocusWidget()})
        if (widget)
            XtAddEventHandler(widget, PointerMotionMask, False, &MotifPeer::IgnoreCB, nullptr);
    XtAddCallback(_widget, MotifQuirks::Name(XmNdestroyCallback), &MotifPeer::WidgetGoneCB, GetKey());
}

void MotifPeer::AsksForCrossings(Widget widget) {
    XtAddEventHandler(widget, EnterWindowMask | LeaveWindowMask, False, &MotifPeer::IgnoreCB, nullptr);
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
    MotifQuirks::SetSensitive(_widget, _dialog.IsSensitive());
}

void MotifPeer::Place(const LayoutRectangle& place) {
    MotifQuirks::Configure(_widget, place.x, place.y, place.width, place.height);
}

void MotifPeer::PlaceContent(const DialogLayout&, const LayoutRectangle&) {}

void MotifPeer::MirrorContent() {}

void MotifPeer::SetShown(bool isShown) {
    MotifQuirks::SetManaged(_widget, isShown);
}

void MotifPeer::CollectStops(std::vector<Widget>& stops) const {
    const Widget focus = _widget && XtIsManaged(_widget) ? GetFocusWidget() : nullptr;
    if (!focus || !_dialog.IsSensitive())
        return;
    Boolean takesKeyboard = False;
    XtVaGetValues(focus, XmNtraversalOn, &takesKeyboard, nullptr);
    if (takesKeyboard && MotifFocus::IsStop(_dialog))
        stops.push_back(focus);
}

// Labels and buttons end in an ellipsis where they are too narrow.
ZOLUnicodeString MotifPeer::GetHiddenText(const LayoutPoint&) const {
    const bool isText = dynamic_cast<ZOLDlgLabel*>(&_dialog) || dynamic_cast<ZOLDlgPushButton*>(&_dialog) ||
                        dynamic_cast<ZOLDlgToggleButton*>(&_dialog);
    if (isText && _dialog.GetNaturalSize(_view.GetTextMeasure()).width > MotifQuirks::PlaceOf(_widget).width)
        return _dialog.GetTitle();
    return {};
}

char MotifPeer::GetMnemonic() const {
    return _view.GetMnemonics().Of(_dialog);
}

LayoutRectangle MotifPeer::GetMenuPlace() const {
    return {0, MotifQuirks::PlaceOf(_widget).height, 1, 1};
}

void MotifPeer::OpensMenu(Widget widget) {
    Listen<&MotifPeer::ContextGesture>(widget, ButtonPressMask);
}

void MotifPeer::ContextGesture(Widget, XEvent* event) {
    if (event->xbutton.button == Button3)
        _view.OpenMenuOf(_dialog);
}

} // namespace trellis
