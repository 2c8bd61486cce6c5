#pragma once

#include "toolkit/ZOLDlgList.h"

// ZOLDlgSelectorList: a plain list of lines.
class TRELLIS_API ZOLDlgSelectorList : public ZOLDlgList {
    ZOL_META_OBJECT(ZOLDlgSelectorList, ZOLDlgList)
public:
    ZOLDlgSelectorList(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // ZOLNewLine puts the text before the line at `index`; -1, or behind the last, appends. ZOLChangeLine
    // replaces the line at `index`; where there is none nothing happens. Selected lines stay selected.
    void SetLine(const ZOLUnicodeString& text, int index = -1, int mode = ZOLNewLine);
    // 1 and the text, or 0 when there is no such line.
    int GetLine(ZOLUnicodeString& text, int index) const;
    // Takes out one line, or all for -1; sends nothing.
    void ClearLine(int index = -1);
    int GetLineCount() const override { return static_cast<int>(_lines.size()); }
    ZOLUnicodeString GetRowText(int row) const override;

    void SetVisibleTextWidth(int characters);
    void SetVisibleTextHeight(int lines);
    int GetVisibleTextWidth() const { return _visibleWidth; }
    int GetVisibleLineCount() const override { return _visibleHeight; }

    const char* GetKind() const override;
    void DescribeTo(trellis::DialogDescription& description) const override;
    trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const override;

private:
    std::vector<ZOLUnicodeString> _lines;
    int _visibleWidth = 20;
    int _visibleHeight = 10;
};
