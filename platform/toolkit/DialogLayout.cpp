// DialogLayout: how much room everything needs.

#include "toolkit/DialogLayout.h"

#include "toolkit/ButtonRowLayout.h"
#include "toolkit/Growth.h"
#include "toolkit/LayoutChildren.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLDlgContainer.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMenuBar.h"

#include <algorithm>

namespace trellis {

DialogLayout::DialogLayout(const ZOLDialog& window, const TextMeasure& measure, LayoutSize size)
    : _measure(measure), _spacing(LayoutMetrics(measure).Spacing()), _root(&window) {
    const LayoutSize natural = Natural(window);
    _size = {std::max(size.width, natural.width), std::max(size.height, natural.height)};
    Place(window, {0, 0, _size.width, _size.height});
    if (const ZOLDlgMenuBar* bar = ZOLDlgMenuBar::Find(window))
        _places[bar] = {0, 0, _size.width, Natural(*bar).height};
    if (const auto* dialog = dynamic_cast<const ZOLDlgDialog*>(&window))
        PlaceButtons(*dialog);
}

std::optional<LayoutRectangle> DialogLayout::Find(const ZOLDialog& dialog) const {
    const auto found = _places.find(&dialog);
    return found == _places.end() ? std::nullopt : std::optional(found->second);
}

std::optional<LayoutRectangle> DialogLayout::FindTitle(const ZOLDialog& field) const {
    const auto found = _titles.find(&field);
    return found == _titles.end() ? std::nullopt : std::optional(found->second);
}

std::optional<LayoutRectangle> DialogLayout::FindButton(ZOLDialogButton button) const {
    const auto found = _buttons.find(button);
    return found == _buttons.end() ? std::nullopt : std::optional(found->second);
}

// Lines of a form: a field behind a label, or behind its own title, makes one line with it.
std::vector<DialogLayout::Row> DialogLayout::FormOf(const std::vector<const ZOLDialog*>& children) const {
    std::vector<Row> rows;
    for (const ZOLDialog* child : children) {
        const bool followsLabel = IsField(*child) && !rows.empty() && rows.back().cells.size() == 1 &&
                                  dynamic_cast<const ZOLDlgLabel*>(rows.back().cells.front().dialog);
        if (followsLabel)
            rows.back() = {{rows.back().cells.front(), {child}}, true};
        else if (HasTitleBefore(*child))
            rows.push_back({{{child, Cell::Title}, {child, Cell::Field}}, true});
        else
            rows.push_back({{{child}}, false});
    }
    return rows;
}

std::vector<DialogLayout::Row> DialogLayout::RowsOf(const ZOLDialog& holder) const {
    const std::vector<const ZOLDialog*> children = ChildrenWithRoom(holder);
    const LayoutHints& hints = holder.GetLayoutHints();
    std::vector<Row> rows;
    if (hints.columns > 0) {
        for (std::size_t i = 0; i < children.size(); ++i) {
            if (i % static_cast<std::size_t>(hints.columns) == 0)
                rows.push_back({{}, true});
            rows.back().cells.push_back({children[i]});
        }
        return rows;
    }
    if (hints.orientation != 1)
        return FormOf(children);
    rows.emplace_back();
    for (const ZOLDialog* child : children)
        rows.back().cells.push_back({child});
    return rows;
}

std::vector<int> DialogLayout::ColumnWidths(const std::vector<Row>& rows) {
    std::vector<int> widths;
    for (const Row& row : rows) {
        if (!row.isAligned)
            continue;
        widths.resize(std::max(widths.size(), row.cells.size()));
        for (std::size_t i = 0; i < row.cells.size(); ++i)
            widths[i] = std::max(widths[i], Natural(row.cells[i]).width);
    }
    return widths;
}

DialogLayout::Insets DialogLayout::InsetsOf(const ZOLDialog& holder) {
    const LayoutMetrics metrics(_measure);
    const int margin = metrics.WindowMargin();
    if (holder.IsWindow())
        return {margin, MenuBarSize(holder).height + margin, ButtonRowSize(holder).height + margin};
    if (IsTabs(holder))
        return {_spacing, metrics.LineOfText() + _spacing, _spacing};
    const auto* frame = dynamic_cast<const ZOLDlgFrame*>(&holder);
    const int title = frame && frame->HasTitle() ? _measure.GetLineHeight() : 0;
    const int border = frame && frame->HasBorder() ? _spacing : 0;
    return {border, border + title, border};
}

LayoutSize DialogLayout::MenuBarSize(const ZOLDialog& holder) {
    const ZOLDlgMenuBar* bar = ZOLDlgMenuBar::Find(holder);
    return bar ? Natural(*bar) : LayoutSize();
}

// With the space above it; nothing in windows without buttons.
LayoutSize DialogLayout::ButtonRowSize(const ZOLDialog& holder) const {
    const auto* dialog = dynamic_cast<const ZOLDlgDialog*>(&holder);
    if (!dialog)
        return {};
    const LayoutSize row = ButtonRowLayout(dialog->GetButtons(), *dialog, _measure).GetSize();
    return {row.width, row.height + LayoutMetrics(_measure).WindowMargin()};
}

LayoutSize DialogLayout::Natural(const ZOLDialog& dialog) {
    if (const auto found = _natural.find(&dialog); found != _natural.end())
        return found->second;
    LayoutSize size;
    if (dialog.HoldsChildren()) {
        const Insets insets = InsetsOf(dialog);
        size = NaturalContent(dialog);
        size.width = std::max(size.width, ButtonRowSize(dialog).width);
        size.width = std::max(size.width + 2 * insets.side, MenuBarSize(dialog).width);
        size.height += insets.top + insets.bottom;
    } else {
        size = dialog.GetNaturalSize(_measure);
    }
    _natural.emplace(&dialog, size = Bounded(dialog, size));
    return size;
}

// What scrolls asks for no more than a good part of a screen, however much it holds; as root it is laid out with
// all that it holds. The wanted size of a window says how it opens, not how much room its content needs.
LayoutSize DialogLayout::Bounded(const ZOLDialog& dialog, LayoutSize size) const {
    if (dynamic_cast<const ZOLDlgContainer*>(&dialog)) {
        if (&dialog == _root)
            return size;
        size.width = std::min(size.width, 80 * _measure.GetCharacterWidth());
        size.height = std::min(size.height, 20 * _measure.GetRowHeight());
    }
    if (dialog.IsWindow())
        return size;
    const LayoutSize wanted = dialog.GetLayoutHints().size;
    return {wanted.width > 0 ? wanted.width : size.width, wanted.height > 0 ? wanted.height : size.height};
}

LayoutSize DialogLayout::Natural(const Cell& cell) {
    const LayoutSize field = Natural(*cell.dialog);
    if (cell.part == Cell::Field || !HasTitleBefore(*cell.dialog))
        return field;
    const LayoutSize title = {_measure.GetTextWidth(cell.dialog->GetTitle()), _measure.GetLineHeight()};
    if (cell.part == Cell::Title)
        return title;
    return {title.width + _spacing + field.width, std::max(title.height, field.height)};
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
    size.height += Gaps(rows.size(), _spacing);
    return size;
}

LayoutSize DialogLayout::NaturalRow(const Row& row, const std::vector<int>& columns) {
    LayoutSize size;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const LayoutSize natural = Natural(row.cells[i]);
        size.width += row.isAligned ? columns[i] : natural.width;
        size.height = std::max(size.height, natural.height);
    }
    size.width += Gaps(row.cells.size(), _spacing);
    return size;
}

} // namespace trellis
