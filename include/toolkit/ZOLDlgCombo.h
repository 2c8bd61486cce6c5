#pragma once

#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLListMode.h"

// ZOLDlgCombo: one line chosen from many, which fold away. Style 0x40000: the user can also type a text that
// is no line. Lines count from 0.
class TRELLIS_API ZOLDlgCombo : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgCombo, ZOLDialog)
public:
    ZOLDlgCombo(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // The user chose another line.
    ZOLNotification* GetComboSelectNotification() { return &_selectNotification; }
    // The user typed.
    ZOLNotification* GetComboModifyNotification() { return &_modifyNotification; }

    // ZOLNewLine puts the text before the line at `index`; -1, or behind the last, appends. ZOLChangeLine
    // replaces the line at `index`; where there is none nothing happens. The chosen line stays chosen.
    void SetLine(const ZOLUnicodeString& text, int index = -1, int mode = ZOLNewLine);
    // 1 and the text, or 0 when there is no such line.
    int GetLine(ZOLUnicodeString& text, int index) const;
    // Takes out one line, or all for -1; when it was the chosen one nothing is chosen, and the field is
    // empty.
    void ClearLine(int index = -1);
    int GetLineCount() const { return static_cast<int>(_lines.size()); }

    // The chosen line, or -1.
    int GetSelect() const { return _selected; }
    // Chooses a line by position (-1: none) or by its text (the first of equal ones). 1, or 0 when there is
    // no such line; then nothing changes and nothing is sent.
    //   notify  non-zero sends the user's notification, also when the line was chosen already
    int SetSelect(int position, int notify = 0);
    int SetSelect(const ZOLUnicodeString& text, int notify = 0);

    // What the closed combo shows: the chosen line, or what was typed or set.
    const ZOLUnicodeString& GetField() const { return _field; }
    // The first line of that text becomes the chosen one, or none.
    void SetField(const ZOLUnicodeString& text);
    void ClearField() { SetField({}); }

    // In characters, and in lines that unfold.
    void SetVisibleTextWidth(int characters);
    void SetVisibleTextHeight(int lines);
    int GetVisibleTextHeight() const { return _visibleHeight; }

    bool IsEditable() const;
    // Choosing the line that is chosen already sends nothing.
    ZOLUserResult UserSelect(int position);
    // What the field holds after a key; ReadOnly when the user cannot type here.
    ZOLUserResult UserEditField(const ZOLUnicodeString& text);

    const char* GetKind() const override;
    std::string GetMarks() const override;
    trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const override;

private:
    int Locate(const ZOLUnicodeString& text) const;
    bool Has(int position) const { return position >= 0 && position < GetLineCount(); }
    void StoreSelect(int position);
    void StoreField(const ZOLUnicodeString& text);

    std::vector<ZOLUnicodeString> _lines;
    int _selected = -1;
    ZOLUnicodeString _field;
    int _visibleWidth = 0; // 0: as wide as the longest line
    int _visibleHeight = 10;
    ZOLNotification _selectNotification;
    ZOLNotification _modifyNotification;
};
