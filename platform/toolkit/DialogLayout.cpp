#include "toolkit/DialogLayout.h"

#include "toolkit/Growth.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgTabContainer.h"

#include <algorithm>
#include <numeric>

namespace trellis {

namespace {

constexpr int spacing = LayoutMetrics::spacing;

bool IsField(const ZOLDialog& dialog) {
    return dynamic_cast<const ZOLDlgEditor*>(&dialog) || dynamic_cast<const ZOLDlgCombo*>(&dialog);
}

bool IsTabs(const ZOLDialog& dialog) {
    return dynamic_cast<const ZOLDlgTabContainer*>(&dialog);
}

std::vector<const ZOLDialog*> ChildrenWithRoom(const ZOLDialog& holder) {
    std::vector<const ZOLDialog*> children;
    for (const ZOLDialog* child : holder.GetChildren())
        if (TakesRoom(*child))
            children.push_back(child);
    return children;
}

int Gaps(std::size_t count) {
    return count > 1 ? static_cast<int>(count - 1) * spacing : 0;
}

int Sum(const std::vector<int>& parts) {
    return std::accumulate(parts.begin(), parts.end(), 0);
}

// Spreads the room that is left over those that grow; the first ones take the odd pixels.
void Spread(std::vector<int>& sizes, const std::vector<bool>& grows, int room) {
    int left = room - Sum(sizes) - Gaps(sizes.size());
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

DialogLayout::DialogLayout(const ZOLDialog& window, const TextMeasure& measure, LayoutSize size)
    : _measure(measure) {
    const LayoutSize natural = Natural(window);
    _size = {std::max(size.width, natural.width), std::max(size.height, natural.height)};
    Place(window, {0, 0, _size.width, _size.height});
    if (dynamic_cast<const ZOLDlgDialog*>(&window)) {
        const int height = InsetsOf(window).bottom - 2 * spacing;
        _buttonRow = {spacing, _size.height - spacing - height, _size.width - 2 * spacing, height};
    }
}

std::optional<LayoutRectangle> DialogLayout::Find(const ZOLDialog& dialog) const {
    const auto found = _places.find(&dialog);
    return found == _places.end() ? std::nullopt : std::optional(found->second);
}

std::vector<DialogLayout::Row> DialogLayout::RowsOf(const ZOLDialog& holder) const {
    const std::vector<const ZOLDialog*> children = ChildrenWithRoom(holder);
    const LayoutHints& hints = holder.GetLayoutHints();
    std::vector<Row> rows;
    if (hints.columns > 0) {
        for (std::size_t i = 0; i < children.size(); ++i) {
            if (i % static_cast<std::size_t>(hints.columns) == 0)
                rows.push_back({{}, true});
            rows.back().cells.push_back(children[i]);
        }
    } else if (hints.orientation == 1) {
        rows.push_back({children, false});
    } else {
        for (const ZOLDialog* child : children) {
            const bool followsLabel = IsField(*child) && !rows.empty() && rows.back().cells.size() == 1 &&
                                      dynamic_cast<const ZOLDlgLabel*>(rows.back().cells.front());
            if (followsLabel)
                rows.back() = {{rows.back().cells.front(), child}, true};
            else
                rows.push_back({{child}, false});
        }
    }
    return rows;
}

std::vector<int> DialogLayout::ColumnWidths(const std::vector<Row>& rows) {
    std::vector<int> widths;
    for (const Row& row : rows) {
        if (!row.isAligned)
            continue;
        widths.resize(std::max(widths.size(), row.cells.size()));
        for (std::size_t i = 0; i < row.cells.size(); ++i)
            widths[i] = std::max(widths[i], Natural(*row.cells[i]).width);
    }
    return widths;
}

DialogLayout::Insets DialogLayout::InsetsOf(const ZOLDialog& holder) const {
    const int line = _measure.GetLineHeight() + 2 * LayoutMetrics::textMargin;
    if (holder.IsWindow())
        return {spacing, spacing, dynamic_cast<const ZOLDlgDialog*>(&holder) ? line + 2 * spacing : spacing};
    if (IsTabs(holder))
        return {spacing, line + spacing, spacing};
    const auto* frame = dynamic_cast<const ZOLDlgFrame*>(&holder);
    const int title = frame && frame->HasTitle() ? _measure.GetLineHeight() : 0;
    const int border = frame && frame->HasBorder() ? spacing : 0;
    return {border, border + title, border};
}

LayoutSize DialogLayout::Natural(const ZOLDialog& dialog) {
    if (const auto found = _natural.find(&dialog); found != _natural.end())
        return found->second;
    LayoutSize size;
    if (dialog.HoldsChildren()) {
        const Insets insets = InsetsOf(dialog);
        size = NaturalContent(dialog);
        size.width += 2 * insets.side;
        size.height += insets.top + insets.bottom;
    } else {
        size = dialog.GetNaturalSize(_measure);
    }
    const LayoutSize wanted = dialog.GetLayoutHints().size;
    if (wanted.width > 0)
        size.width = wanted.width;
    if (wanted.height > 0)
        size.height = wanted.height;
    _natural.emplace(&dialog, size);
    return size;
}

LayoutSize DialogLayout::NaturalContent(const ZOLDialog& holder) {
    LayoutSize size;
    if (IsTabs(holder)) {
        for (const ZOLDialog* page : ChildrenWithRoom(holder)) {
            const LayoutSize natural = Natural(*page);
            size = {std::max(size.width, natural.width), std::max(size.height, natural.height)};
        }
        return size;
    }
    const std::vector<Row> rows = RowsOf(holder);
    const std::vector<int> columns = ColumnWidths(rows);
    for (const Row& row : rows) {
        const LayoutSize natural = NaturalRow(row, columns);
        size = {std::max(size.width, natural.width), size.height + natural.height};
    }
    size.height += Gaps(rows.size());
    return size;
}

LayoutSize DialogLayout::NaturalRow(const Row& row, const std::vector<int>& columns) {
    LayoutSize size;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const LayoutSize natural = Natural(*row.cells[i]);
        size.width += row.isAligned ? columns[i] : natural.width;
        size.height = std::max(size.height, natural.height);
    }
    size.width += Gaps(row.cells.size());
    return size;
}

void DialogLayout::Place(const ZOLDialog& dialog, const LayoutRectangle& area) {
    _places[&dialog] = area;
    if (!dialog.HoldsChildren())
        return;
    const Insets insets = InsetsOf(dialog);
    const LayoutRectangle inside = {area.x + insets.side, area.y + insets.top, area.width - 2 * insets.side,
                                    area.height - insets.top - insets.bottom};
    if (!IsTabs(dialog))
        return PlaceRows(RowsOf(dialog), inside);
    for (const ZOLDialog* page : ChildrenWithRoom(dialog))
        Place(*page, inside);
}

void DialogLayout::PlaceRows(const std::vector<Row>& rows, const LayoutRectangle& area) {
    const std::vector<int> columns = ColumnWidths(rows);
    std::vector<int> heights;
    std::vector<bool> grows;
    for (const Row& row : rows) {
        heights.push_back(NaturalRow(row, columns).height);
        grows.push_back(std::any_of(row.cells.begin(), row.cells.end(),
                                    [](const ZOLDialog* cell) { return GrowsVertically(*cell); }));
    }
    Spread(heights, grows, area.height);
    int y = area.y;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        PlaceRow(rows[i], columns, {area.x, y, area.width, heights[i]});
        y += heights[i] + spacing;
    }
}

void DialogLayout::PlaceRow(const Row& row, const std::vector<int>& columns, const LayoutRectangle& area) {
    std::vector<int> widths;
    std::vector<bool> grows;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        widths.push_back(row.isAligned ? columns[i] : Natural(*row.cells[i]).width);
        grows.push_back(GrowsHorizontally(*row.cells[i]));
    }
    Spread(widths, grows, area.width);
    int x = area.x;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const ZOLDialog& cell = *row.cells[i];
        const int height = GrowsVertically(cell) ? area.height : std::min(Natural(cell).height, area.height);
        Place(cell, {x, area.y, widths[i], height});
        x += widths[i] + spacing;
    }
}

} // namespace trellis
