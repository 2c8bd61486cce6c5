#pragma once

#include "motif/MotifFonts.h"
#include "motif/MotifInput.h"
#include "motif/MotifMenu.h"
#include "motif/MotifMnemonics.h"
#include "motif/MotifTextMeasure.h"
#include "motif/MotifToolTip.h"
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
    void Quit();

    void Shown(ZOLDialog& window) override;
    void Changed(ZOLDialog& dialog) override;
    void Destroyed(ZOLDialog& dialog) override;
    void MenuOpened(ZOLDialog& menu) override;
    void RunUntil(const std::function<bool()>& isAnswered) override;
    void UpdateDisplay() override;
    void SetBusy(bool isBusy) override;
    const TextMeasure& GetTextMeasure() const override { return _measure; }
    void* GetNativeFather(ZOLDialog& dialog) override;
    void* GetNativeApplication() override { return _connection.context; }

    // For peers.
    Widget GetApplication() const { return _application; }
    MotifFonts& GetFonts() { return _fonts; }
    TextPainter& GetTextPainter() const { return _measure.GetPainter(); }
    Display* GetDisplay() const { return XtDisplay(_application); }
    const Theme& GetTheme() const { return _theme; }
    // The peer of a dialog inside a shown window, made by its holder; null when there is none.
    MotifPeer* FindPeer(const ZOLDialog& dialog) const;
    MotifPeer& MakePeer(ZOLDialog& dialog, Widget parent);
    // The innermost dialog at a place of the root window, in a window; that one itself where nothing else stands.
    const ZOLDialog& DialogAt(const ZOLDialog& window, const LayoutPoint& root) const;
    // The dialog that a widget shows; null for a part of one. The window that a shell shows, or null.
    ZOLDialog* FindDialog(Widget widget) const;
    ZOLDialog* FindWindow(Widget shell) const;
    // Whether the dialog was marked since it was mirrored last.
    bool TakeMark(const ZOLDialog& dialog);
    // Its window is laid out again in this turn.
    void MarkLayout(const ZOLDialog& dialog);
    // The press that opens a contextual menu: opens that of the dialog, or of its nearest owner that has one.
    void OpenMenuOf(ZOLDialog& dialog);
    // Whether a question waits; brings what keeps a window from input to the front.
    bool IsAsking() const { return _asking > 0; }
    void RaiseBlocker(const ZOLDialog& blocked);
    // What a window manager does for a window when there is none: a click brings it up, with those that stay
    // above it, and gives it the keyboard.
    void ActivateWindow(const ZOLDialog& window);
    // Without a window manager, the keyboard goes to the window on top.
    void GiveKeyboardToTop();
    const MotifMnemonics& GetMnemonics() const { return _mnemonics; }
    MotifToolTip& GetToolTip() { return _toolTip; }
    // A cursor of the cursor font.
    Cursor GetCursor(unsigned int shape);
    bool IsMenuOpen() const { return _menu.IsOpen(); }
    // Where the next menu opens, after a press of the mouse or by a key.
    void NotePress(const XButtonEvent& press);
    void NoteGesture(int rootX, int rootY);

private:
    using Marks = std::map<long, ZOLDialog*>;

    void ServeEvent();
    void MirrorMarked();
    void DropGivenUp(ZOLDialog& dialog);
    void MirrorWindow(ZOLDialog& window);
    MotifShellPeer* FindShell(const ZOLDialog& window) const;

    // Closes the display when everything else is gone.
    struct Connection {
        XtAppContext context;
        ~Connection() { XtDestroyApplicationContext(context); }
    };

    Connection _connection;
    Widget _application;
    const Theme _theme;
    MotifTextMeasure _measure;
    MotifFonts _fonts;
    MotifMenu _menu;
    MotifMnemonics _mnemonics;
    MotifToolTip _toolTip;
    MotifInput _input;
    Marks _marked;    // since the last mirroring
    Marks _mirroring; // those that are served now
    Marks _windows;   // all that have a shell
    std::set<long> _toRaise;
    std::map<unsigned int, Cursor> _cursors;
    MenuGesture _gesture;
    int _asking = 0;
    bool _isMirroring = false;
    bool _mirrorsAll = false; // a window that was hidden: its marks were not kept
    bool _isQuitting = false;
    bool _isBusy = false;
};

} // namespace trellis
