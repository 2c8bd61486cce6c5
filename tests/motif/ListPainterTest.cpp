#include "motif/ListPainter.h"
#include "motif/PaintFixture.h"

#include <memory>

namespace {

using trellis::LayoutRectangle;
using trellis::LayoutSize;
using trellis::ListHit;
using trellis::Theme;

class ListPainterTest : public ListPaintTest {
protected:
    void SetUp() override {
        ListPaintTest::SetUp();
        Fill({"axle", "bell", "chain", "drive"});
        for (int row = 0; row < 4; ++row)
            list->SetColumnItem(1, "often", row);
    }
    trellis::ListPicture Picture() {
        order.Update(content());
        columns.Update(content(), text.CharacterWidth(), painter.CellPadding(), size.width);
        return {content(), order, columns, size};
    }
    const trellis::ListContent& content() {
        if (!_content)
            _content = std::make_unique<trellis::ListContent>(*list);
        return *_content;
    }
    std::unique_ptr<PaintedImage> Painted(const trellis::ListPicture& picture) {
        auto image = std::make_unique<PaintedImage>(size);
        image->Paint([&](cairo_t* context) { painter.Paint(context, picture); });
        return image;
    }
    int Header() { return painter.HeaderHeight(content()); }
    LayoutRectangle RowPlace(int position) {
        return {0, Header() + position * painter.RowHeight(), size.width, painter.RowHeight()};
    }

    LayoutSize size{300, 160};
    Theme theme;
    trellis::TextPainter text{theme};
    trellis::ListPainter painter{theme, text};
    trellis::ListOrder order;
    trellis::ListColumns columns;

private:
    std::unique_ptr<trellis::ListContent> _content;
};

TEST_F(ListPainterTest, SelectionFocusAndNeitherDifferWithoutColour) {
    for (int row = 0; row < 4; ++row)
        list->SetColumnItem(0, "same", row);
    const int selected[] = {1, 2};
    list->SetSelect(selected, 2);
    trellis::ListPicture picture = Picture();
    picture.hasFocus = true;
    picture.cursorRow = 2;
    const auto image = Painted(picture);
    std::set<std::vector<int>> looks;
    for (int position = 0; position < 3; ++position)
        looks.insert(image->Greys(RowPlace(position)));
    EXPECT_EQ(looks.size(), 3U);
    const LayoutRectangle bar{0, RowPlace(1).y + 2, 2, painter.RowHeight() - 4};
    EXPECT_EQ(image->Colours(bar), std::set<std::uint32_t>{Theme::Accent.rgb});
}

TEST_F(ListPainterTest, AGreyedListShowsNoFocusAndNoAccent) {
    const int selected[] = {1};
    list->SetSelect(selected, 1);
    list->SetSensitivity(ZOLGreyed);
    trellis::ListPicture picture = Picture();
    picture.hasFocus = true;
    picture.cursorRow = 1;
    const auto image = Painted(picture);
    const auto colours = image->Colours({0, 0, size.width, size.height});
    EXPECT_EQ(colours.count(Theme::Accent.rgb), 0U);
    EXPECT_EQ(colours.count(Theme::Text.rgb), 0U);
    EXPECT_EQ(colours.count(Theme::GreyedSelection.rgb), 1U);
}

TEST_F(ListPainterTest, WhatLiesAtAPointIsWhatIsPaintedThere) {
    order.SortBy(0);
    order.SortBy(0);
    trellis::ListPicture picture = Picture();
    picture.first = 1;
    const ListHit row = painter.HitAt(picture, {10, Header() + painter.RowHeight() + 2});
    EXPECT_EQ(row.kind, ListHit::Row);
    EXPECT_EQ(row.row, 2);
    EXPECT_EQ(order.RowAt(row.row), 1) << "from bottom up";
    const int border = columns.Placed()[1].x;
    EXPECT_EQ(painter.HitAt(picture, {border - 2, 3}).kind, ListHit::Border);
    EXPECT_EQ(painter.HitAt(picture, {border + 20, 3}).kind, ListHit::Header);
    EXPECT_EQ(painter.HitAt(picture, {border + 20, 3}).column, 1);
    EXPECT_EQ(painter.HitAt(picture, {border + 20, Header()}).column, 1);
    EXPECT_EQ(painter.HitAt(picture, {10, Header() + 3 * painter.RowHeight()}).kind, ListHit::Nothing);
    EXPECT_EQ(painter.HitAt(picture, {-1, 3}).kind, ListHit::Nothing);
    picture.scrolledX = 30;
    EXPECT_EQ(painter.HitAt(picture, {border - 30 + 20, 3}).column, 1);
}

TEST_F(ListPainterTest, LongTextsStayInsideTheirCells) {
    list->SetColumnItem(0, std::string(500, 'W').c_str(), 0, ZOLChangeLine);
    list->SetColumnItem(1, "", 0, ZOLChangeLine);
    const auto image = Painted(Picture());
    const int next = columns.Placed()[1].x;
    const LayoutRectangle row = RowPlace(0);
    EXPECT_EQ(image->Colours({next, row.y, size.width - next, row.height - 1}),
              std::set<std::uint32_t>{Theme::Field.rgb});
    EXPECT_GT(image->Colours({0, row.y, next, row.height - 1}).size(), 3U);
}

TEST_F(ListPainterTest, ATickStandsInTheMiddleOfItsCell) {
    list->SetColumnItem(1, "\xe2\x9c\x93", 0, ZOLChangeLine);
    const auto image = Painted(Picture());
    const trellis::PlacedColumn& column = columns.Placed()[1];
    const LayoutRectangle row = RowPlace(0);
    const int middle = column.x + column.width / 2;
    EXPECT_GT(image->Colours({middle - 6, row.y, 12, row.height - 1}).size(), 1U);
    EXPECT_EQ(image->Colours({column.x, row.y, column.width / 2 - 10, row.height - 1}).size(), 1U);
}

TEST_F(ListPainterTest, AListWithoutTitlesGivesTheirRoomToRows) {
    const int before = painter.PageOf(content(), size.height);
    const ZOLUnicodeString titles[] = {"", ""};
    list->SetColumnTitles(2, titles);
    EXPECT_EQ(painter.HitAt(Picture(), {5, 2}).kind, ListHit::Row);
    EXPECT_EQ(painter.PageOf(content(), size.height), before + 1);
}

TEST_F(ListPainterTest, AnyBytesAndAnySizeCanBePainted) {
    Fill({"\xff\xfe broken", "line\nfeed\ttab\x01", "مقود", "全角文字", std::string(100000, 'x')});
    for (const LayoutSize each :
         {LayoutSize{300, 160}, LayoutSize{1, 1}, LayoutSize{20, 5}, LayoutSize{40, 400}}) {
        size = each;
        trellis::ListPicture picture = Picture();
        picture.hasFocus = true;
        picture.cursorRow = 0;
        picture.dropPosition = 2;
        Painted(picture);
    }
}

} // namespace
