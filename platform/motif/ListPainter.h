#pragma once

#include "motif/ListColumns.h"
#include "motif/ListContent.h"
#include "motif/ListOrder.h"
#include "motif/TextPainter.h"
#include "toolkit/LayoutTypes.h"
#include "toolkit/TreeLayout.h"

namespace trellis {

// What of a list is on the screen at one moment.
struct ListPicture {
    const ListContent& content;
    const ListOrder& order;
    const ListColumns& columns;
    LayoutSize area;
    int first = 0;     // position at the top
    int scrolledX = 0; // pixels by which the columns went to the left
    int cursorRow = -1;
    bool hasFocus = false;
    int pressedColumn = -1; // position of the header that is pressed
    int dropPosition = -1;  // before which a dragged column would come to stand
};

// What lies at a point of a list. Positions are those on the screen.
struct ListHit {
    enum Kind { Nothing, Header, Border, Row };
    Kind kind = Nothing;
    int row = -1;    // position
    int column = -1; // position; -1 right of all columns
};

// ListPainter: draws a list: titles, rows, marks. Draws only what is in sight, on any Cairo surface.
//
// Besides its colour a selected row has a bar at its left end; the cursor is a ring, and only where the list
// has the keyboard. A cell that holds nothing but a tick is drawn as one in the middle.
class ListPainter {
public:
    ListPainter(const Theme& theme, TextPainter& text);

    int RowHeight() const { return _rowHeight; }
    // 0 for a list without titles.
    int HeaderHeight(const ListContent& content) const;
    // How many rows have room as a whole, at least 1.
    int PageOf(const ListContent& content, int height) const;
    // Left and right of each text.
    int CellPadding() const { return _theme.Pixels(Theme::CellPadding); }

    void Paint(cairo_t* context, const ListPicture& picture);
    // The text of the cell at a point when not all of it can be seen, else an empty one.
    ZOLUnicodeString CutTextAt(const ListPicture& picture, LayoutPoint point) const;
    ListHit HitAt(const ListPicture& picture, LayoutPoint point) const;

private:
    void PaintHeader(cairo_t* context, const ListPicture& picture);
    void PaintTitle(cairo_t* context, const ListPicture& picture, int position);
    void PaintRow(cairo_t* context, const ListPicture& picture, int position, int y);
    void PaintCell(cairo_t* context, const ListPicture& picture, const PlacedColumn& column, int row, int y);
    void PaintDropMark(cairo_t* context, const ListPicture& picture);

    const Theme _theme;
    TextPainter& _text;
    int _padding; // above and below a text
    int _rowHeight;
};

} // namespace trellis
