#pragma once

#include "motif/MotifQuirks.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/LayoutTypes.h"

#include "motif/MotifNative.h"

#include <vector>

class ZOLDialog;
class ZOLUnicodeString;

namespace trellis {

class DialogLayout;
class MotifView;

// MotifPeer: what shows one dialog on the screen. It owns a native widget and mirrors the dialog into it; it
// keeps no state of the dialog. Native callbacks reach it by the number of the dialog, so that one that comes
// after its end finds nobody.
//
// After any User... operation the peer may be gone: a callback touches nothing of it any more.
class MotifPeer {
public:
    MotifPeer(MotifView& view, ZOLDialog& dialog);
    // Destroys the widget.
    virtual ~MotifPeer();
    MotifPeer(const MotifPeer&) = delete;
    MotifPeer& operator=(const MotifPeer&) = delete;

    // The peer of a dialog with this number; null when there is none.
    static MotifPeer* Find(long number);

    // Makes the widget inside `parent`, unmanaged; once, right after construction.
    void Create(Widget parent);
    // The outermost widget, which its holder places; null before Create and once it was destroyed natively.
    Widget GetWidget() const { return _widget; }
    ZOLDialog& GetDialog() const { return _dialog; }

    // Takes the state of the dialog over. Called once after Create and whenever the dialog has changed, by
    // the loop, never inside a native callback of this widget.
    virtual void Mirror();
    // Where it stands in the widget of its holder.
    virtual void Place(const LayoutRectangle& place);
    // For holders: places what they hold. `place` is where this dialog stands in the layout.
    virtual void PlaceContent(const DialogLayout& layout, const LayoutRectangle& place);
    // For holders: makes and mirrors the peers of what they hold.
    virtual void MirrorContent();
    // Shows it where it stands, or takes it off its holder.
    virtual void SetShown(bool isShown);
    // The widget that takes the keyboard; null when none does.
    virtual Widget GetFocusWidget() const { return nullptr; }
    // Appends the widgets at which Tab stops, in their order.
    virtual void CollectStops(std::vector<Widget>& stops) const;
    // The whole text of what stands at a place of the widget but does not fit; empty for none.
    virtual ZOLUnicodeString GetHiddenText(const LayoutPoint& place) const;
    // The pointer comes or moves to a place of the widget, greyed or not, with no button pressed; it goes elsewhere.
    virtual void PointerAt(const LayoutPoint&) {}
    virtual void PointerLeft() {}
    // Where a contextual menu opened by key appears, in pixels of the widget.
    virtual LayoutRectangle GetMenuPlace() const;

protected:
    // Makes the outermost widget, unmanaged, and all in it.
    virtual Widget Build(Widget parent) = 0;
    MotifView& GetView() const { return _view; }
    // The letter of the title that chooses the dialog; 0 for none.
    char GetMnemonic() const;

    // Calls a method `void (Widget, XtPointer callData)` of the peer for a native callback, unless the
    // program itself caused it. The dialog is mirrored again afterwards: the widget may show what the model
    // did not take.
    template <auto Method>
    void Connect(Widget widget, const char* callback) {
        XtAddCallback(widget, MotifQuirks::Name(callback), &CallPeer<Method>, GetKey());
    }
    // The same for what a window manager asks of a shell.
    template <auto Method>
    void ConnectProtocol(Widget shell, Atom property, Atom protocol) {
        XmAddProtocolCallback(shell, property, protocol, &CallPeer<Method>, GetKey());
    }
    // Calls a method `void (Widget, XEvent*)` of the peer for events of a widget.
    template <auto Method>
    void Listen(Widget widget, EventMask mask) {
        XtAddEventHandler(widget, mask, False, &HandlePeer<Method>, GetKey());
    }
    // Lets the server tell when the pointer enters or leaves that widget; motions it tells of all.
    static void AsksForCrossings(Widget widget);
    // The third mouse button on that widget opens the contextual menu of the dialog, or of its nearest owner
    // with one.
    void OpensMenu(Widget widget);

private:
    template <typename Peer, typename Argument>
    static Peer* PeerOfMethod(void (Peer::*)(Widget, Argument));

    XtPointer GetKey() const;
    static MotifPeer* FromKey(XtPointer key);
    void MarkForMirror();
    void ContextGesture(Widget widget, XEvent* event);
    void WidgetGone(Widget widget);
    static void IgnoreCB(Widget, XtPointer, XEvent*, Boolean*) {}
    static void WidgetGoneCB(Widget widget, XtPointer key, XtPointer);

    template <auto Method>
    static void CallPeer(Widget widget, XtPointer key, XtPointer callData) {
        using Peer = decltype(PeerOfMethod(Method));
        if (MotifQuirks::IsQuiet())
            return;
        const CallbackScope scope;
        auto* peer = static_cast<Peer>(FromKey(key));
        if (!peer)
            return;
        peer->MarkForMirror();
        (peer->*Method)(widget, callData);
    }
    template <auto Method>
    static void HandlePeer(Widget widget, XtPointer key, XEvent* event, Boolean*) {
        using Peer = decltype(PeerOfMethod(Method));
        const CallbackScope scope;
        if (auto* peer = static_cast<Peer>(FromKey(key)))
            (peer->*Method)(widget, event);
    }

    MotifView& _view;
    ZOLDialog& _dialog;
    long _number;
    Widget _widget = nullptr;
};

} // namespace trellis
