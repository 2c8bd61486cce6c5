#pragma once

#include "toolkit/DialogButtons.h"
#include "toolkit/LayoutTypes.h"
#include "values/TrellisApi.h"

#include <optional>
#include <unordered_map>
#include <vector>

class ZOLDialog;
class ZOLDlgDialog;
class ZOLDlgSplitter;

namespace trellis {

class TextMeasure;

// DialogLayout: where everything in a window stands, computed when somebody looks. Children stand below each
// other or side by side with one spacing; in a column, a field with its title or with a label before it makes
// one line of a form, whose labels are equally wide; the panes of a splitter share its room; the buttons of a
// dialog stand in a row at the bottom, at its right end; a menu bar takes the whole upper edge of its window; what
// grows shares the room that is left.
class TRELLIS_API DialogLayout {
public:
    // `size` is that of the window; where it is 0, or less than what the texts need, the natural one counts. Of a
    // container this is what it scrolls over.
    DialogLayout(const ZOLDialog& window, const TextMeasure& measure, LayoutSize size = {});

    LayoutSize GetSize() const { return _size; }
    // Where a dialog stands in the window; nothing for one that takes no room in it.
    std::optional<LayoutRectangle> Find(const ZOLDialog& dialog) const;
    // Where the title of an editor or combo stands, before it; nothing for one without a title.
    std::optional<LayoutRectangle> FindTitle(const ZOLDialog& field) const;
    // Where the row of buttons stands, and a button in it; empty in windows without one, and nothing for a
    // button that is not there.
    LayoutRectangle GetButtonRow() const { return _buttonRow; }
    std::optional<LayoutRectangle> FindButton(ZOLDialogButton button) const;

private:
    // A child, or one of the two parts of a field with a title.
    struct Cell {
        enum Part { Whole, Title, Field };
        const ZOLDialog* dialog;
        Part part = Whole;
    };
    // Cells that stand side by side. Aligned rows share the widths of their columns.
    struct Row {
        std::vector<Cell> cells;
        bool isAligned = false;
    };
    struct Insets {
        int side = 0;
        int top = 0;
        int bottom = 0;
    };

    std::vector<Row> FormOf(const std::vector<const ZOLDialog*>& children) const;
    std::vector<Row> RowsOf(const ZOLDialog& holder) const;
    std::vector<int> ColumnWidths(const std::vector<Row>& rows);
    Insets InsetsOf(const ZOLDialog& holder);
    LayoutSize MenuBarSize(const ZOLDialog& holder);
    LayoutSize ButtonRowSize(const ZOLDialog& holder) const;
    LayoutSize Natural(const ZOLDialog& dialog);
    LayoutSize Bounded(const ZOLDialog& dialog, LayoutSize size) const;
    LayoutSize Natural(const Cell& cell);
    LayoutSize NaturalContent(const ZOLDialog& holder);
    LayoutSize NaturalRow(const Row& row, const std::vector<int>& columns);
    void Place(const ZOLDialog& dialog, const LayoutRectangle& area);
    void Place(const Cell& cell, const LayoutRectangle& area);
    void PlaceButtons(const ZOLDlgDialog& dialog);
    void PlacePanes(const ZOLDlgSplitter& splitter, const LayoutRectangle& area);
    void PlaceRows(const std::vector<Row>& rows, const LayoutRectangle& area);
    void PlaceRow(const Row& row, const std::vector<int>& columns, const LayoutRectangle& area);

    const TextMeasure& _measure;
    int _spacing; // pixels between neighbours
    const ZOLDialog* _root;
    LayoutSize _size;
    LayoutRectangle _buttonRow;
    std::unordered_map<const ZOLDialog*, LayoutSize> _natural;
    std::unordered_map<const ZOLDialog*, LayoutRectangle> _places;
    std::unordered_map<const ZOLDialog*, LayoutRectangle> _titles;
    std::unordered_map<ZOLDialogButton, LayoutRectangle> _buttons;
};

} // namespace trellis
