#include "motif/MotifView.h"

#include "motif/MotifMenuBarPeer.h"
#include "motif/MotifPeerTable.h"
#include "motif/MotifShellPeer.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/DialogRegistry.h"
#include "toolkit/OpenQuestions.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgNotify.h"

#include <X11/cursorfont.h>

#include <algorithm>
#include <utility>

namespace trellis {

namespace {

// Whether a window belongs to another one, and was shown over it.
bool StandsOver(const ZOLDialog& window, const ZOLDialog& below) {
    const auto* box = dynamic_cast<const ZOLDlgNotify*>(&window);
    const ZOLDialog* holder = box ? box->GetDialogBelow() : window.GetOwner();
    for (; holder; holder = holder->GetOwner())
        if (holder == &below)
            return true;
    return false;
}

} // namespace

MotifView::MotifView(XtAppContext context, Widget application, const Theme& theme)
    : _connection{context},
      _application(application),
      _theme(theme),
      _measure(XtDisplay(application), theme),
      _fonts(_theme),
      _menu(application),
      _toolTip(*this),
      _input(*this) {}

MotifView::~MotifView() {
    ToolkitView::Choose(nullptr);
    MotifPeerTable::Instance().Clear();
    for (const auto& [shape, cursor] : _cursors)
        XFreeCursor(GetDisplay(), cursor);
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

const ZOLDialog& MotifView::DialogAt(const ZOLDialog& window, const LayoutPoint& root) const {
    const auto isThere = [&](const ZOLDialog* dialog) {
        const MotifPeer* peer = dialog->IsLaidOut() && dialog->IsOnScreen() ? FindPeer(*dialog) : nullptr;
        if (!peer || !peer->GetWidget() || !XtIsManaged(peer->GetWidget()))
            return false;
        const LayoutPoint corner = MotifQuirks::RootPlaceOf(peer->GetWidget());
        const LayoutRectangle place = MotifQuirks::PlaceOf(peer->GetWidget());
        return root.x >= corner.x && root.x < corner.x + place.width && root.y >= corner.y &&
               root.y < corner.y + place.height;
    };
    const ZOLDialog* dialog = &window;
    for (const ZOLDialog* inner = dialog; inner;) {
        dialog = inner;
        const auto& children = dialog->GetChildren();
        const auto found = std::find_if(children.begin(), children.end(), isThere);
        inner = found == children.end() ? nullptr : *found;
    }
    return *dialog;
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
    _mnemonics.Forget(number);
    MotifPeerTable::Instance().Drop(number);
}

bool MotifView::TakeMark(const ZOLDialog& dialog) {
    return _mirroring.erase(dialog.GetNumber()) > 0 || _mirrorsAll;
}

// Under a question its widget ends only with that, so a window leaves the screen first.
void MotifView::DropGivenUp(ZOLDialog& dialog) {
    if (MotifShellPeer* shell = FindShell(dialog))
        shell->MirrorWindow();
    MotifPeerTable::Instance().Drop(dialog.GetNumber());
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
                DropGivenUp(*dialog);
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
    if (isOnScreen)
        for (const long changed : _mnemonics.Assign(window))
            if (const MotifPeer* peer = MotifPeer::Find(changed))
                _mirroring[changed] = &peer->GetDialog();
    const bool wasUp = shell->IsUp();
    _mirrorsAll = isOnScreen && !wasUp;
    shell->MirrorWindow();
    _mirrorsAll = false;
    if (wasUp && !isOnScreen) {
        _toolTip.Hide();
        GiveKeyboardToTop();
    }
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
    XtAppProcessEvent(_connection.context, XtIMAll);
}

void MotifView::Run() {
    _isQuitting = false;
    while (!_isQuitting && !DialogRegistry::Instance().Windows().empty()) {
        CallbackScope::FreeGivenUp();
        ServeEvent();
    }
    UpdateDisplay();
}

// The native loop goes on waiting after a function that it calls when idle, so it gets something to serve.
void MotifView::Quit() {
    _isQuitting = true;
    XtAppAddTimeOut(
        _connection.context, 0, [](XtPointer, XtIntervalId*) {}, nullptr);
}

void MotifView::RunUntil(const std::function<bool()>& isAnswered) {
    ++_asking;
    while (!isAnswered())
        ServeEvent();
    --_asking;
}

// The window shown last that takes input itself, of those over the blocked one if there is one.
void MotifView::RaiseBlocker(const ZOLDialog& blocked) {
    const std::vector<ZOLDialog*> windows = DialogRegistry::Instance().Windows();
    const auto takesInput = [](const ZOLDialog* window) {
        return !OpenQuestions::Instance().Blocks(*window);
    };
    auto found = std::find_if(windows.rbegin(), windows.rend(), [&](const ZOLDialog* window) {
        return takesInput(window) && StandsOver(*window, blocked);
    });
    if (found == windows.rend())
        found = std::find_if(windows.rbegin(), windows.rend(), takesInput);
    if (MotifShellPeer* shell = found == windows.rend() ? nullptr : FindShell(**found)) {
        shell->Raise();
        shell->TakeKeyboard();
    }
}

void MotifView::ActivateWindow(const ZOLDialog& window) {
    MotifShellPeer* shell = FindShell(window);
    if (!shell || shell->HasWindowManager())
        return;
    shell->Raise();
    shell->TakeKeyboard();
    for (const ZOLDialog* other : DialogRegistry::Instance().Windows())
        if (MotifShellPeer* above = StandsOver(*other, window) ? FindShell(*other) : nullptr)
            above->Raise();
}

void MotifView::GiveKeyboardToTop() {
    const ZOLDialog* top = DialogRegistry::Instance().Top();
    if (MotifShellPeer* shell = top ? FindShell(*top) : nullptr)
        shell->TakeKeyboard();
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

void MotifView::NotePress(const XButtonEvent& press) {
    _gesture = {press.x_root, press.y_root, press};
}

void MotifView::NoteGesture(int rootX, int rootY) {
    _gesture = {rootX, rootY, std::nullopt};
}

void MotifView::OpenMenuOf(ZOLDialog& dialog) {
    for (ZOLDialog* owner = &dialog; owner; owner = owner->IsWindow() ? nullptr : owner->GetOwner())
        for (ZOLDialog* child : owner->GetChildren())
            if (auto* menu = dynamic_cast<ZOLDlgContextualMenu*>(child); menu && !menu->IsBeingDestroyed()) {
                menu->UserOpen();
                return;
            }
}

void MotifView::MenuOpened(ZOLDialog& menu) {
    auto& pane = static_cast<ZOLDlgMenuPane&>(menu);
    if (dynamic_cast<ZOLDlgContextualMenu*>(&menu)) {
        _menu.PopUp(pane, _gesture);
        return;
    }
    const auto* bar = dynamic_cast<MotifMenuBarPeer*>(FindPeer(*menu.GetOwner()));
    if (Widget native = bar ? bar->FindPane(menu) : nullptr)
        _menu.Fill(pane, native);
}

void* MotifView::GetNativeFather(ZOLDialog& dialog) {
    const MotifPeer* peer = FindPeer(dialog);
    return peer ? peer->GetWidget() : nullptr;
}

} // namespace trellis
