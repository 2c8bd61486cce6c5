// DialogLayout: where everything stands in the room that there is.

#include "toolkit/ButtonRowLayout.h"
#include "toolkit/DialogLayout.h"
#include "toolkit/Growth.h"
#include "toolkit/LayoutChildren.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgSplitter.h"

#include <algorithm>
#include <numeric>

namespace trellis {

namespace {

// Spreads the room that is left over those that grow; the first ones take the odd pixels. The room is without
// the spaces between them.
void Spread(std::vector<int>& sizes, const std::vector<bool>& grows, int room) {
    int left = room - std::accumulate(sizes.begin(), sizes.end(), 0);
    int count = static_cast<int>(std::count(grows.begin(), grows.end(), true));
    for (std::size_t i = 0; i < sizes.size() && left > 0; ++i) {
        if (!grows[i])
            continue;
        const int share = (left + count - 1) / count;
        sizes[i] += share;
        left -= share;
        --count;
    }
}

} // namespace

void DialogLayout::PlaceButtons(const ZOLDlgDialog& dialog) {
    const ButtonRowLayout row(dialog.GetButtons(), dialog, _measure);
    const int margin = LayoutMetrics(_measure).WindowMargin();
    const int height = row.GetSize().height;
    _buttonRow = {margin, _size.height - margin - height, _size.width - 2 * margin, height};
    for (const ButtonRowLayout::Place& placed : row.PlaceIn(_buttonRow))
        _buttons[placed.button] = placed.place;
}

void DialogLayout::Place(const ZOLDialog& dialog, const LayoutRectangle& area) {
    _places[&dialog] = area;
    if (!dialog.HoldsChildren())
        return;
    const Insets insets = InsetsOf(dialog);
    const LayoutRectangle inside = {area.x + insets.side, area.y + insets.top, area.width - 2 * insets.side,
                                    area.height - insets.top - insets.bottom};
    if (const auto* splitter = dynamic_cast<const ZOLDlgSplitter*>(&dialog))
        return PlacePanes(*splitter, inside);
    if (!IsTabs(dialog))
        return PlaceRows(RowsOf(dialog), inside);
    for (const ZOLDialog* page : ChildrenWithRoom(dialog))
        Place(*page, inside);
}

void DialogLayout::Place(const Cell& cell, const LayoutRectangle& area) {
    // As high as a field of one line at least, so that all texts of a row stand on one line.
    const int line = LayoutMetrics(_measure).LineOfText();
    const auto height = [&](int natural) { return std::min(std::max(natural, line), area.height); };
    if (cell.part == Cell::Title) {
        _titles[cell.dialog] = {area.x, area.y, area.width, height(Natural(cell).height)};
        return;
    }
    if (cell.part == Cell::Whole && HasTitleBefore(*cell.dialog)) {
        const Cell title = {cell.dialog, Cell::Title};
        const int width = Natural(title).width;
        Place(title, {area.x, area.y, width, area.height});
        return Place(Cell{cell.dialog, Cell::Field},
                     {area.x + width + _spacing, area.y, area.width - width - _spacing, area.height});
    }
    const bool fills = GrowsVertically(*cell.dialog);
    Place(*cell.dialog,
          {area.x, area.y, area.width, fills ? area.height : height(Natural(*cell.dialog).height)});
}

// Panes fill the splitter: those that grow share the room that is left, or all when none grows.
void DialogLayout::PlacePanes(const ZOLDlgSplitter& splitter, const LayoutRectangle& area) {
    const bool isRow = splitter.GetLayoutHints().orientation == 1;
    const std::vector<const ZOLDialog*> panes = ChildrenWithRoom(splitter);
    std::vector<int> sizes;
    std::vector<bool> grows;
    for (const ZOLDialog* pane : panes) {
        const LayoutSize natural = Natural(*pane);
        sizes.push_back(isRow ? natural.width : natural.height);
        grows.push_back(isRow ? GrowsHorizontally(*pane) : GrowsVertically(*pane));
    }
    if (std::count(grows.begin(), grows.end(), true) == 0)
        grows.assign(grows.size(), true);
    Spread(sizes, grows, (isRow ? area.width : area.height) - Gaps(sizes.size(), _spacing));
    int at = isRow ? area.x : area.y;
    for (std::size_t i = 0; i < panes.size(); ++i) {
        Place(*panes[i], isRow ? LayoutRectangle{at, area.y, sizes[i], area.height}
                               : LayoutRectangle{area.x, at, area.width, sizes[i]});
        at += sizes[i] + _spacing;
    }
}

void DialogLayout::PlaceRows(const std::vector<Row>& rows, const LayoutRectangle& area) {
    const std::vector<int> columns = ColumnWidths(rows);
    std::vector<int> heights;
    std::vector<bool> grows;
    for (const Row& row : rows) {
        heights.push_back(NaturalRow(row, columns).height);
        grows.push_back(std::any_of(row.cells.begin(), row.cells.end(),
                                    [](const Cell& cell) { return GrowsVertically(*cell.dialog); }));
    }
    Spread(heights, grows, area.height - Gaps(heights.size(), _spacing));
    int y = area.y;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        PlaceRow(rows[i], columns, {area.x, y, area.width, heights[i]});
        y += heights[i] + _spacing;
    }
}

void DialogLayout::PlaceRow(const Row& row, const std::vector<int>& columns, const LayoutRectangle& area) {
    // Surfaces below each other end at one edge, whatever they hold.
    if (row.cells.size() == 1 && row.cells.front().dialog->HoldsChildren())
        return Place(row.cells.front(), area);
    std::vector<int> widths;
    std::vector<bool> grows;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        widths.push_back(row.isAligned ? columns[i] : Natural(row.cells[i]).width);
        grows.push_back(row.cells[i].part != Cell::Title && GrowsHorizontally(*row.cells[i].dialog));
    }
    Spread(widths, grows, area.width - Gaps(widths.size(), _spacing));
    int x = area.x;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        Place(row.cells[i], {x, area.y, widths[i], area.height});
        x += widths[i] + _spacing;
    }
}

} // namespace trellis
