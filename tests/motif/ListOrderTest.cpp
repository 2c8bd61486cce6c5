#include "motif/ListOrder.h"
#include "motif/ListColumns.h"
#include "motif/ListContent.h"
#include "motif/PaintFixture.h"

#include <algorithm>
#include <random>

namespace {

using trellis::ListColumns;
using trellis::ListContent;
using trellis::ListOrder;

class ListOrderTest : public ListPaintTest {
protected:
    std::vector<int> Shown() const {
        std::vector<int> rows;
        for (int position = 0; position < order.Count(); ++position)
            rows.push_back(order.RowAt(position));
        return rows;
    }
    std::vector<int> ColumnsShown() const {
        std::vector<int> columns;
        for (const trellis::PlacedColumn& column : placed.Placed())
            columns.push_back(column.column);
        return columns;
    }
    void UpdateColumns(int room) { placed.Update(ListContent(*list), 8, 4, room); }

    ListOrder order;
    ListColumns placed;
};

using Rows = std::vector<int>;

TEST_F(ListOrderTest, PressingAHeaderSortsUpThenDownThenAsInTheModel) {
    Fill({"pear", "Apple", "fig"});
    const ListContent content(*list);
    const Rows steps[] = {{1, 2, 0}, {0, 2, 1}, {0, 1, 2}};
    for (const Rows& expected : steps) {
        order.SortBy(0);
        order.Update(content);
        EXPECT_EQ(Shown(), expected);
    }
    EXPECT_EQ(order.SortColumn(), -1);
}

TEST_F(ListOrderTest, NumbersInTextsSortByValueAndEqualTextsStayInPlace) {
    Fill({"R10", "r9", "R10", "", "R9"});
    order.SortBy(0);
    order.Update(ListContent(*list));
    EXPECT_EQ(Shown(), (Rows{3, 1, 4, 0, 2}));
    order.SortBy(0);
    order.Update(ListContent(*list));
    EXPECT_EQ(Shown(), (Rows{0, 2, 1, 4, 3}));
}

TEST_F(ListOrderTest, SortedRowsFollowTheModelAndTheModelStaysAsItIs) {
    Fill({"c", "a", "b"});
    order.SortBy(0);
    order.Update(ListContent(*list));
    list->SetColumnItem(0, "z", 1, ZOLChangeLine);
    list->SetColumnItem(0, "aa");
    order.Update(ListContent(*list));
    EXPECT_EQ(Shown(), (Rows{3, 2, 0, 1}));
    EXPECT_EQ(list->GetRowText(0).Bytes(), "c");
    list->ClearLine();
    order.Update(ListContent(*list));
    EXPECT_EQ(order.Count(), 0);
    EXPECT_EQ(order.RowAt(0), -1);
}

TEST_F(ListOrderTest, PositionsAndRowsAreInverseForAnyContent) {
    std::mt19937 random(20261122);
    for (int round = 0; round < 50; ++round) {
        std::vector<std::string> names;
        for (unsigned count = random() % 40; count > 0; --count)
            names.push_back(std::string(1 + random() % 3, static_cast<char>('a' + random() % 4)));
        Fill(names);
        order.SortBy(0);
        order.Update(ListContent(*list));
        Rows rows = Shown();
        for (int position = 0; position < order.Count(); ++position)
            ASSERT_EQ(order.PositionOf(order.RowAt(position)), position);
        std::sort(rows.begin(), rows.end());
        for (std::size_t i = 0; i < rows.size(); ++i)
            ASSERT_EQ(rows[i], static_cast<int>(i));
    }
}

TEST_F(ListOrderTest, DraggedColumnsKeepTheirNumbersAndHiddenOnesTheirPlace) {
    const ZOLUnicodeString titles[] = {"a", "b", "c", "d"};
    list->SetColumnTitles(4, titles);
    list->SetColumnVisibility(1, ZOLHidden);
    UpdateColumns(0);
    EXPECT_EQ(ColumnsShown(), (Rows{0, 2, 3}));
    placed.Move(2, 0);
    UpdateColumns(0);
    EXPECT_EQ(ColumnsShown(), (Rows{3, 0, 2}));
    placed.Move(0, 3);
    placed.Move(7, 0);
    list->SetColumnVisibility(1, ZOLShown);
    UpdateColumns(0);
    EXPECT_EQ(ColumnsShown(), (Rows{0, 1, 2, 3}));
    EXPECT_EQ(list->GetColumnTitle(3).Bytes(), "d");
}

TEST_F(ListOrderTest, TheLastColumnTakesTheRoomThatIsLeft) {
    UpdateColumns(400);
    EXPECT_EQ(placed.Placed()[0].width, 12 * 8 + 8);
    EXPECT_EQ(placed.TotalWidth(), 400);
    placed.Resize(0, 200);
    UpdateColumns(240);
    EXPECT_EQ(placed.Placed()[1].x, 200);
    EXPECT_EQ(placed.TotalWidth(), 200 + 8 * 8 + 8);
    placed.Resize(0, -5);
    UpdateColumns(0);
    EXPECT_GT(placed.Placed()[0].width, 8);
}

TEST_F(ListOrderTest, BordersAndDropPlacesAreFoundFromBothSides) {
    UpdateColumns(0); // 0..104..176
    EXPECT_EQ(placed.BorderAt(101), 0);
    EXPECT_EQ(placed.BorderAt(107), 0);
    EXPECT_EQ(placed.BorderAt(90), -1);
    EXPECT_EQ(placed.PositionAt(104), 1);
    EXPECT_EQ(placed.PositionAt(176), -1);
    EXPECT_EQ(placed.DropPositionAt(-20), 0);
    EXPECT_EQ(placed.DropPositionAt(60), 1);
    EXPECT_EQ(placed.DropPositionAt(170), 2);
}

} // namespace
