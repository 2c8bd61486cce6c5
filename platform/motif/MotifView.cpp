#include "motif/MotifView.h"

#include "motif/MotifPeerTable.h"
#include "motif/MotifShellPeer.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/DialogRegistry.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgNotify.h"

#include <X11/cursorfont.h>

#include <utility>

namespace trellis {

MotifView::MotifView(XtAppContext context, Widget application, const Theme& theme)
    : _context(context),
      _application(application),
      _theme(theme),
      _measure(XtDisplay(application), theme),
      _input(*this) {}

MotifView::~MotifView() {
    ToolkitView::Choose(nullptr);
    MotifPeerTable::Instance().Clear();
}

MotifPeer* MotifView::FindPeer(const ZOLDialog& dialog) const {
    return MotifPeerTable::Instance().Find(dialog.GetNumber());
}

MotifShellPeer* MotifView::FindShell(const ZOLDialog& window) const {
    return dynamic_cast<MotifShellPeer*>(FindPeer(window));
}

MotifPeer& MotifView::MakePeer(ZOLDialog& dialog, Widget parent) {
    MotifPeer& peer = MotifPeerTable::Instance().Make(*this, dialog);
    peer.Create(parent);
    return peer;
}

ZOLDialog* MotifView::FindDialog(Widget widget) const {
    const MotifPeer* peer = MotifPeerTable::Instance().FindByWidget(widget);
    return peer ? &peer->GetDialog() : nullptr;
}

ZOLDialog* MotifView::FindWindow(Widget shell) const {
    for (const auto& [number, window] : _windows)
        if (const MotifPeer* peer = FindPeer(*window); peer && peer->GetWidget() == shell)
            return window;
    return nullptr;
}

void MotifView::Shown(ZOLDialog& window) {
    _toRaise.insert(window.GetNumber());
    Changed(window);
}

void MotifView::Changed(ZOLDialog& dialog) {
    _marked[dialog.GetNumber()] = &dialog;
}

void MotifView::MarkLayout(const ZOLDialog& dialog) {
    Changed(const_cast<ZOLDialog&>(dialog));
}

void MotifView::Destroyed(ZOLDialog& dialog) {
    const long number = dialog.GetNumber();
    for (Marks* marks : {&_marked, &_mirroring, &_windows})
        marks->erase(number);
    _toRaise.erase(number);
    MotifPeerTable::Instance().Drop(number);
}

bool MotifView::TakeMark(const ZOLDialog& dialog) {
    return _mirroring.erase(dialog.GetNumber()) > 0 || _mirrorsAll;
}

// Mirroring changes no model, but may take over where a caret went; that settles with the second round.
void MotifView::MirrorMarked() {
    if (_isMirroring)
        return;
    _isMirroring = true;
    const MotifQuirks::QuietScope quiet;
    for (int round = 0; round < 3 && !_marked.empty(); ++round) {
        _mirroring = std::exchange(_marked, {});
        Marks windows;
        for (const auto& [number, dialog] : Marks(_mirroring)) {
            if (dialog->IsBeingDestroyed())
                MotifPeerTable::Instance().Drop(number);
            if (const ZOLDialog* window = dialog->GetHoldingWindow())
                windows.emplace(window->GetNumber(), const_cast<ZOLDialog*>(window));
        }
        for (const auto& [number, window] : windows)
            MirrorWindow(*window);
    }
    _isMirroring = false;
}

void MotifView::MirrorWindow(ZOLDialog& window) {
    const bool isOnScreen = window.IsOnScreen();
    MotifShellPeer* shell = FindShell(window);
    if (!shell && !isOnScreen)
        return;
    if (!shell) {
        shell = static_cast<MotifShellPeer*>(&MakePeer(window, _application));
        _windows[window.GetNumber()] = &window;
    }
    _mirrorsAll = isOnScreen && !shell->IsUp();
    shell->MirrorWindow();
    _mirrorsAll = false;
    if (_isBusy)
        shell->SetCursor(XC_watch);
    if (_toRaise.erase(window.GetNumber()) > 0)
        shell->Raise();
    if (isOnScreen || !dynamic_cast<ZOLDlgNotify*>(&window))
        return;
    _windows.erase(window.GetNumber()); // a box that is shown again is made anew
    MotifPeerTable::Instance().Drop(window.GetNumber());
}

void MotifView::ServeEvent() {
    _menu.Settle();
    MirrorMarked();
    XtAppProcessEvent(_context, XtIMAll);
}

void MotifView::Run() {
    _isQuitting = false;
    while (!_isQuitting && !DialogRegistry::Instance().Windows().empty()) {
        CallbackScope::FreeGivenUp();
        ServeEvent();
    }
    UpdateDisplay();
}

void MotifView::RunUntil(const std::function<bool()>& isAnswered) {
    ++_asking;
    while (!isAnswered())
        ServeEvent();
    --_asking;
}

void MotifView::RaiseQuestion() {
    if (const ZOLDialog* top = DialogRegistry::Instance().Top())
        if (MotifShellPeer* shell = FindShell(*top))
            shell->Raise();
}

void MotifView::UpdateDisplay() {
    MirrorMarked();
    XSync(GetDisplay(), False);
    XmUpdateDisplay(_application);
    XFlush(GetDisplay());
}

Cursor MotifView::GetCursor(unsigned int shape) {
    const auto [found, isNew] = _cursors.try_emplace(shape, 0);
    if (isNew)
        found->second = XCreateFontCursor(GetDisplay(), shape);
    return found->second;
}

void MotifView::SetBusy(bool isBusy) {
    _isBusy = isBusy;
    for (const auto& [number, window] : _windows)
        if (MotifShellPeer* shell = FindShell(*window))
            shell->SetCursor(isBusy ? XC_watch : 0);
    XFlush(GetDisplay());
}

void MotifView::NoteGesture(int rootX, int rootY) {
    _gesture = {rootX, rootY};
}

void MotifView::OpenMenuOf(ZOLDialog& dialog, int rootX, int rootY) {
    NoteGesture(rootX, rootY);
    for (ZOLDialog* owner = &dialog; owner; owner = owner->IsWindow() ? nullptr : owner->GetOwner())
        for (ZOLDialog* child : owner->GetChildren())
            if (auto* menu = dynamic_cast<ZOLDlgContextualMenu*>(child); menu && !menu->IsBeingDestroyed()) {
                menu->UserOpen();
                return;
            }
}

void MotifView::MenuOpened(ZOLDialog& menu) {
    auto* contextual = dynamic_cast<ZOLDlgContextualMenu*>(&menu);
    const ZOLDialog* window = menu.GetHoldingWindow();
    const MotifPeer* peer = window ? FindPeer(*window) : nullptr;
    if (contextual && peer && peer->GetWidget())
        _menu.Open(*contextual, peer->GetWidget(), _gesture.x, _gesture.y);
}

void* MotifView::GetNativeFather(ZOLDialog& dialog) {
    const MotifPeer* peer = FindPeer(dialog);
    return peer ? peer->GetWidget() : nullptr;
}

} // namespace trellis
