#pragma once

#include "motif/MotifInput.h"
#include "motif/MotifMenu.h"
#include "motif/MotifTextMeasure.h"
#include "motif/Theme.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/TreeLayout.h"

#include "motif/MotifNative.h"

#include <map>
#include <set>

class ZOLGYRError;

namespace trellis {

class MotifPeer;
class MotifShellPeer;

// MotifView: shows the toolkit's objects as native widgets. Changes are marked and mirrored once per turn of
// its loop, so that a panel may change as much as it likes between two events.
class MotifView final : public ToolkitView {
public:
    // The view on the display of an application shell; it takes the application context over.
    MotifView(XtAppContext context, Widget application, const Theme& theme);
    ~MotifView() override;

    // Opens the display and chooses the view; Motif options are taken out of argc and argv. Null when that
    // cannot be, with the error 60150 and the name of the display.
    static MotifView* Start(int& argc, char** argv, ZOLGYRError& error);

    // Serves events until no window is shown any more, or Quit.
    void Run();
    void Quit() { _isQuitting = true; }

    void Shown(ZOLDialog& window) override;
    void Changed(ZOLDialog& dialog) override;
    void Destroyed(ZOLDialog& dialog) override;
    void MenuOpened(ZOLDialog& menu) override;
    void RunUntil(const std::function<bool()>& isAnswered) override;
    void UpdateDisplay() override;
    void SetBusy(bool isBusy) override;
    const TextMeasure& GetTextMeasure() const override { return _measure; }
    void* GetNativeFather(ZOLDialog& dialog) override;
    void* GetNativeApplication() override { return _context; }

    // For peers.
    Widget GetApplication() const { return _application; }
    Display* GetDisplay() const { return XtDisplay(_application); }
    const Theme& GetTheme() const { return _theme; }
    // The peer of a dialog inside a shown window, made by its holder; null when there is none.
    MotifPeer* FindPeer(const ZOLDialog& dialog) const;
    MotifPeer& MakePeer(ZOLDialog& dialog, Widget parent);
    // The dialog that a widget shows; null for a part of one. The window that a shell shows, or null.
    ZOLDialog* FindDialog(Widget widget) const;
    ZOLDialog* FindWindow(Widget shell) const;
    // Whether the dialog was marked since it was mirrored last.
    bool TakeMark(const ZOLDialog& dialog);
    // Its window is laid out again in this turn.
    void MarkLayout(const ZOLDialog& dialog);
    // The gesture that opens a contextual menu at a place of the root window: opens the menu of the dialog,
    // or of its nearest owner that has one.
    void OpenMenuOf(ZOLDialog& dialog, int rootX, int rootY);
    // Whether a question waits; brings the one that waits to the front.
    bool IsAsking() const { return _asking > 0; }
    void RaiseQuestion();
    // A cursor of the cursor font.
    Cursor GetCursor(unsigned int shape);
    bool IsMenuOpen() const { return _menu.IsOpen(); }
    // Where the menu opens that the next gesture brings up by itself.
    void NoteGesture(int rootX, int rootY);

private:
    using Marks = std::map<long, ZOLDialog*>;

    void ServeEvent();
    void MirrorMarked();
    void MirrorWindow(ZOLDialog& window);
    MotifShellPeer* FindShell(const ZOLDialog& window) const;

    XtAppContext _context;
    Widget _application;
    const Theme _theme;
    MotifTextMeasure _measure;
    MotifMenu _menu;
    MotifInput _input;
    Marks _marked;    // since the last mirroring
    Marks _mirroring; // those that are served now
    Marks _windows;   // all that have a shell
    std::set<long> _toRaise;
    std::map<unsigned int, Cursor> _cursors;
    LayoutPoint _gesture;
    int _asking = 0;
    bool _isMirroring = false;
    bool _mirrorsAll = false; // a window that was hidden: its marks were not kept
    bool _isQuitting = false;
    bool _isBusy = false;
};

} // namespace trellis
