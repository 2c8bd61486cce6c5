#pragma once

#include "toolkit/LayoutTypes.h"
#include "toolkit/ZOLCommand.h"
#include "toolkit/ZOLUserResult.h"

#include <optional>
#include <string>
#include <vector>

class ZOLDlgWindow;

namespace trellis {
class DialogDescription;
class TextMeasure;
} // namespace trellis

// Values that pass through all dialogs.
enum ZOLVisibility { ZOLShown = 2, ZOLHidden = 4 };
enum ZOLSensitivity { ZOLActive = 8, ZOLGreyed = 16 };

// ZOLDialog: a node of the tree of dialogs: a window, a panel or a widget. It holds its whole state itself; a
// view, if there is one, only mirrors it.
//
// The owner is given at construction; it owns this dialog (with one reference) and destroys it with itself.
// Without an owner the toolkit holds it until RequestDelayedDestruction, or until somebody deletes it. What is
// built in an owner that is being given up is given up with it. The father, where notifications go, is the
// owner at first.
class TRELLIS_API ZOLDialog : public ZOLCommand {
    ZOL_META_OBJECT(ZOLDialog, ZOLCommand)
public:
    ~ZOLDialog() override;

    // The name of the resource file of this object's own class (level 0), of its first base that has one
    // (level 1) and so on; empty ends. A class without texts of its own answers empty, and its owner is
    // asked.
    virtual ZOLString GetResourceFilename(int level) const;

    // The text under a key: sought in the files of this object level by level, then in those of its owner and
    // so on upwards. 1 found, though perhaps empty; 0 missing, and the value stays. Nothing is added to the
    // key.
    int GetResourceValueFromKey(const ZOLString& key, ZOLUnicodeString& value) const;
    // The same, with "%1", "%2", ... replaced by the parameters; places without a parameter vanish.
    int GetResourceValueFromKey(const ZOLString& key, ZOLUnicodeString& value,
                                const ZOLListVal<ZOLUnicodeString>& parameters) const;

    // The text of the widget: as set, else the text under "<name>.Title", else what its class falls back to.
    void SetTitle(const ZOLUnicodeString& title);
    ZOLUnicodeString GetTitle() const;
    // What a user reads when the pointer rests on the dialog: as set, else the text under "<name>.ToolTip"; empty
    // for none. An empty text that is set takes that of the resources away. Sends nothing.
    void SetToolTip(const ZOLUnicodeString& text);
    ZOLUnicodeString GetToolTip() const;

    // ZOLShown or ZOLHidden: the own flag, whatever the owners have. To show a dialog that is shown raises
    // it. Sends nothing.
    virtual void SetVisibility(int visibility);
    int GetVisibility() const { return _visibility; }
    // ZOLActive or ZOLGreyed: the own flag. What a greyed dialog holds is greyed too, though its flag stays.
    void SetSensitivity(int sensitivity);
    int GetSensitivity() const { return _sensitivity; }
    // Sent by a contextual menu to its father just before it appears; other dialogs never send theirs.
    ZOLNotification* GetVisibilityNotification() { return &_visibilityNotification; }

    // The window that holds this dialog, or it itself; null outside any.
    ZOLDlgWindow* GetFatherWindow() const;
    // Gives this dialog to another owner, behind its children; its father becomes the new owner only where it
    // was the old one. A null owner, or one inside this dialog, is a breach.
    void Reparent(ZOLDialog* owner);

    // Layout. No logic reads it; where nothing is said, each class has a sensible size.
    // Above 0: the children stand in a grid of so many columns, row by row.
    void SetGridConstraints(int columns);
    void SetRectDimensions(int width, int height);
    void SetRectPosition(int x, int y);
    void GetRectPosition(int& x, int& y) const;
    // The dialog takes all room that its owner has left.
    void Attach4Sides();
    // Non-zero: it takes the room left in that direction; 0: it keeps its size.
    void SetHorizontalAttachment(int grows);
    void SetVerticalAttachment(int grows);
    // Back to what the class does by itself.
    void ResetAttachment();
    // 0: children below each other (at first), 1: beside each other.
    void SetDefaultOrientation(int orientation);

    // For drivers and views.
    ZOLDialog* GetOwner() const { return _owner; }
    const std::vector<ZOLDialog*>& GetChildren() const { return _children; }
    unsigned long GetStyle() const { return _style; }
    const trellis::LayoutHints& GetLayoutHints() const { return _hints; }
    // A number that no other dialog of this process ever has.
    long GetNumber() const { return _number; }
    // Whether a user can see it: itself and all that holds it are shown.
    bool IsOnScreen() const;
    // Whether the owner shows this child now, as far as the owner decides: a tab container shows one page.
    virtual bool ShowsChild(const ZOLDialog& child) const;
    // Whether it and all that holds it are active.
    bool IsSensitive() const;
    // What keeps a user from acting on this dialog now; Done when nothing does.
    ZOLUserResult UserGate() const;
    // Whether it stands on the screen by itself: windows and message boxes.
    virtual bool IsWindow() const;
    // The nearest of this dialog and its owners that is one; null outside any.
    const ZOLDialog* GetHoldingWindow() const;
    // The word for its kind in a description, such as "label".
    virtual const char* GetKind() const = 0;
    // What the user sees of its state besides text and greying, such as "on".
    virtual std::string GetMarks() const;
    // What a user sees of this dialog, line by line. The base writes kind, text and marks, then the children.
    virtual void DescribeTo(trellis::DialogDescription& description) const;
    // The size at which all texts can be read; hints and room of the owner may change it.
    virtual trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const;
    // Whether the class takes the room that is left, where hints say nothing.
    virtual bool GrowsByClass() const;
    // Whether its size comes from what it holds: windows, frames, pages and the like.
    virtual bool HoldsChildren() const;
    // Whether it takes room among the children of its owner; windows and menus take none.
    virtual bool IsLaidOut() const;

protected:
    ZOLDialog(ZOLDialog* owner, const ZOLString& name, unsigned long style);

    // The title where nothing is set and no text is found: the name for widgets that carry a text, else
    // empty.
    virtual ZOLUnicodeString GetFallbackTitle() const;
    // Marks that a view has to mirror this dialog again. Cheap; nothing is drawn or laid out here.
    void MarkChanged();
    // Sends a user's notification to the father inside a callback scope. The object may be gone when it
    // returns.
    void SendUserNotification(ZOLNotification& notification);
    void GiveUp() override;
    void FreeGivenUp() override;
    void InitialiseVisibility(int visibility) { _visibility = visibility; }

private:
    void TakeOutOfOwner();
    bool FindResource(const ZOLString& key, ZOLUnicodeString& value) const;

    ZOLDialog* _owner;
    std::vector<ZOLDialog*> _children;
    unsigned long _style;
    long _number;
    int _visibility = ZOLShown;
    int _sensitivity = ZOLActive;
    std::optional<ZOLUnicodeString> _title;
    std::optional<ZOLUnicodeString> _toolTip;
    trellis::LayoutHints _hints;
    ZOLNotification _visibilityNotification;
};
