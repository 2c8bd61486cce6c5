#include "motif/ListPainter.h"

#include "motif/CairoShapes.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr int SelectionBar = 4; // width of the bar before a selected row, in plain pixels
constexpr int NarrowColumn = 2; // characters up to which texts stand in the middle

bool IsTick(const std::string& text) {
    return text == "\xe2\x9c\x93" || text == "\xe2\x9c\x94";
}

bool IsInSight(const ListPicture& picture, const PlacedColumn& column) {
    const int x = column.x - picture.scrolledX;
    return x < picture.area.width && x + column.width > 0;
}

} // namespace

ListPainter::ListPainter(const Theme& theme, TextPainter& text)
    : _theme(theme),
      _text(text),
      _padding(theme.Pixels(Theme::RowPadding)),
      _rowHeight(text.LineHeight() + 2 * _padding) {}

int ListPainter::HeaderHeight(const ListContent& content) const {
    return content.HasTitles() ? _rowHeight + 1 : 0;
}

int ListPainter::PageOf(const ListContent& content, int height) const {
    return std::max(1, (height - HeaderHeight(content)) / _rowHeight);
}

void ListPainter::Paint(cairo_t* context, const ListPicture& picture) {
    const LayoutRectangle all{0, 0, picture.area.width, picture.area.height};
    CairoShapes::Fill(context, all, picture.content.IsSensitive() ? Theme::Field : Theme::GreyedField);
    int y = HeaderHeight(picture.content);
    for (int position = std::max(picture.first, 0);
         position < picture.order.Count() && y < picture.area.height; ++position, y += _rowHeight)
        PaintRow(context, picture, position, y);
    if (picture.content.HasTitles())
        PaintHeader(context, picture);
    if (picture.dropPosition >= 0)
        PaintDropMark(context, picture);
}

void ListPainter::PaintHeader(cairo_t* context, const ListPicture& picture) {
    const int height = HeaderHeight(picture.content);
    CairoShapes::Fill(context, {0, 0, picture.area.width, height}, Theme::Header);
    for (int position = 0; position < static_cast<int>(picture.columns.Placed().size()); ++position)
        PaintTitle(context, picture, position);
    CairoShapes::HorizontalLine(context, 0, height - 1, picture.area.width, Theme::TopShadow);
}

void ListPainter::PaintTitle(cairo_t* context, const ListPicture& picture, int position) {
    const PlacedColumn& column = picture.columns.Placed()[static_cast<std::size_t>(position)];
    if (!IsInSight(picture, column))
        return;
    const int x = column.x - picture.scrolledX;
    if (position == picture.pressedColumn)
        CairoShapes::Fill(context, {x, 0, column.width, _rowHeight}, Theme::Selection);
    const bool isSorted = column.column == picture.order.SortColumn();
    const int arrow = isSorted ? _theme.Pixels(8) : 0;
    const bool isNarrow = picture.content.Characters(column.column) <= NarrowColumn;
    // A narrow column gives its padding for the title, so that one letter and an arrow have room.
    const int padding = isNarrow ? 2 : CellPadding();
    const int width = column.width - 2 * padding - arrow;
    CairoShapes::SetColour(context, picture.content.IsSensitive() ? Theme::HeaderText : Theme::GreyedText);
    _text.DrawWithin(context, picture.content.Title(column.column).Bytes(), x + padding, _padding, width,
                     TextPainter::Bold, isNarrow ? TextPainter::Centred : TextPainter::Leading);
    if (isSorted)
        CairoShapes::Arrow(context, x + column.width - padding - arrow / 2.0, _rowHeight / 2.0, arrow,
                           !picture.order.IsDescending(), Theme::Accent);
    if (x + column.width < picture.area.width)
        CairoShapes::VerticalLine(context, x + column.width - 1, _padding, _rowHeight - 2 * _padding,
                                  Theme::TopShadow);
}

void ListPainter::PaintRow(cairo_t* context, const ListPicture& picture, int position, int y) {
    const int row = picture.order.RowAt(position);
    const int width = picture.area.width;
    const bool isSensitive = picture.content.IsSensitive();
    if (picture.content.IsSelected(row)) {
        CairoShapes::Fill(context, {0, y, width, _rowHeight},
                          isSensitive ? Theme::Selection : Theme::GreyedSelection);
        CairoShapes::Fill(context, {0, y, _theme.Pixels(SelectionBar), _rowHeight - 1},
                          isSensitive ? Theme::Accent : Theme::BottomShadow);
    }
    CairoShapes::HorizontalLine(context, 0, y + _rowHeight - 1, width, Theme::Rule);
    for (const PlacedColumn& column : picture.columns.Placed())
        if (IsInSight(picture, column))
            PaintCell(context, picture, column, row, y);
    if (picture.hasFocus && isSensitive && row == picture.cursorRow)
        CairoShapes::FocusRing(context, {0, y, width, _rowHeight});
}

void ListPainter::PaintCell(cairo_t* context, const ListPicture& picture, const PlacedColumn& column, int row,
                            int y) {
    const std::string text = picture.content.Text(row, column.column).Bytes();
    if (text.empty())
        return;
    const int x = column.x - picture.scrolledX;
    const ThemeColour colour = picture.content.IsSensitive() ? Theme::Text : Theme::GreyedText;
    if (IsTick(text)) {
        CairoShapes::CheckMark(context, x + column.width / 2.0, y + _rowHeight / 2.0, _theme.Pixels(11),
                               colour);
        return;
    }
    const int characters = picture.content.Characters(column.column);
    const bool isNarrow = characters > 0 && characters <= NarrowColumn;
    CairoShapes::SetColour(context, colour);
    _text.DrawWithin(context, text, x + CellPadding(), y + _padding, column.width - 2 * CellPadding(),
                     TextPainter::Plain, isNarrow ? TextPainter::Centred : TextPainter::Leading);
}

void ListPainter::PaintDropMark(cairo_t* context, const ListPicture& picture) {
    const auto& placed = picture.columns.Placed();
    const auto position = static_cast<std::size_t>(picture.dropPosition);
    const int x = position < placed.size() ? placed[position].x : picture.columns.TotalWidth();
    const int left = std::clamp(x - picture.scrolledX - 1, 0, std::max(picture.area.width - 3, 0));
    CairoShapes::Fill(context, {left, 0, 3, picture.area.height}, Theme::Accent);
}

ZOLUnicodeString ListPainter::CutTextAt(const ListPicture& picture, LayoutPoint point) const {
    const ListHit hit = HitAt(picture, point);
    if (hit.column < 0 || (hit.kind != ListHit::Row && hit.kind != ListHit::Header))
        return {};
    const PlacedColumn& column = picture.columns.Placed()[static_cast<std::size_t>(hit.column)];
    const bool isTitle = hit.kind == ListHit::Header;
    const ZOLUnicodeString text = isTitle ? picture.content.Title(column.column)
                                          : picture.content.Text(picture.order.RowAt(hit.row), column.column);
    const int left = column.x - picture.scrolledX;
    const int right = std::min(left + column.width, picture.area.width) - CellPadding();
    const int width = _text.Width(text.Bytes(), isTitle ? TextPainter::Bold : TextPainter::Plain);
    return left < 0 || left + CellPadding() + width > right ? text : ZOLUnicodeString();
}

ListHit ListPainter::HitAt(const ListPicture& picture, LayoutPoint point) const {
    if (point.x < 0 || point.y < 0 || point.x >= picture.area.width || point.y >= picture.area.height)
        return {};
    const int x = point.x + picture.scrolledX;
    const int header = HeaderHeight(picture.content);
    if (point.y < header) {
        const int border = picture.columns.BorderAt(x);
        return border >= 0 ? ListHit{ListHit::Border, -1, border}
                           : ListHit{ListHit::Header, -1, picture.columns.PositionAt(x)};
    }
    const int position = std::max(picture.first, 0) + (point.y - header) / _rowHeight;
    if (position >= picture.order.Count())
        return {};
    return {ListHit::Row, position, picture.columns.PositionAt(x)};
}

} // namespace trellis
