#include "motif/ListCursor.h"
#include "motif/ListContent.h"
#include "motif/ListOrder.h"
#include "motif/ListScroll.h"
#include "motif/PaintFixture.h"
#include "motif/TypeAhead.h"

#include <random>

namespace {

using trellis::ListContent;
using trellis::ListCursor;
using trellis::ListKey;
using trellis::ListOrder;
using trellis::ListScroll;
using trellis::TypeAhead;

using Rows = std::vector<int>;
constexpr trellis::ListModifiers Plain;
constexpr trellis::ListModifiers Shift{true, false};
constexpr trellis::ListModifiers Ctrl{false, true};

class ListCursorTest : public ListPaintTest {
protected:
    void SetUp() override {
        ListPaintTest::SetUp();
        Fill({"brake", "axle", "Bell", "chain", "basket"});
        order.Update(ListContent(*list));
    }
    void SortByName() {
        order.SortBy(0);
        order.Update(ListContent(*list)); // axle basket Bell brake chain: rows 1 4 2 0 3
    }

    ListOrder order;
    ListCursor several{true};
    ListCursor one{false};
};

TEST_F(ListCursorTest, ShiftSelectsTheRangeThatTheUserSeesInModelRows) {
    SortByName();
    EXPECT_EQ(several.Click(1, Plain, order, {}), (Rows{4}));
    EXPECT_EQ(several.Click(3, Shift, order, {4}), (Rows{4, 2, 0}));
    EXPECT_EQ(several.Move(ListKey::Up, Shift, 10, order), (Rows{4, 2}));
    EXPECT_EQ(several.Move(ListKey::Home, Shift, 10, order), (Rows{1, 4}));
}

TEST_F(ListCursorTest, CtrlTakesOneRowInAndOutAndMovesWithoutSelecting) {
    EXPECT_EQ(several.Click(3, Ctrl, order, {0}), (Rows{0, 3}));
    EXPECT_EQ(several.Click(0, Ctrl, order, {0, 3}), (Rows{3}));
    EXPECT_EQ(several.Move(ListKey::Down, Ctrl, 10, order), std::nullopt);
    EXPECT_EQ(several.Row(), 1);
    EXPECT_EQ(several.Toggle({3}), (Rows{3, 1}));
    EXPECT_EQ(several.All(order)->size(), 5U);
}

TEST_F(ListCursorTest, AListOfOneRowNeverSelectsNoneOrTwo) {
    EXPECT_EQ(one.Click(2, Ctrl, order, {2}), (Rows{2}));
    EXPECT_EQ(one.Click(3, Shift, order, {2}), (Rows{3}));
    EXPECT_EQ(one.Move(ListKey::Up, Ctrl, 10, order), (Rows{2}));
    EXPECT_EQ(one.Toggle({2}), (Rows{2}));
    EXPECT_EQ(one.All(order), std::nullopt);
}

TEST_F(ListCursorTest, KeysStopAtTheEndsAndTheFirstKeyEntersTheList) {
    EXPECT_EQ(one.Move(ListKey::Up, Plain, 3, order), (Rows{4}));
    EXPECT_EQ(one.Move(ListKey::Down, Plain, 3, order), (Rows{4}));
    EXPECT_EQ(one.Move(ListKey::PageUp, Plain, 3, order), (Rows{2}));
    EXPECT_EQ(one.Move(ListKey::Home, Plain, 3, order), (Rows{0}));
    EXPECT_EQ(ListCursor(false).Move(ListKey::Down, Plain, 3, order), (Rows{0}));
    EXPECT_EQ(one.Click(5, Plain, order, {}), std::nullopt);
    list->ClearLine();
    order.Update(ListContent(*list));
    one.Follow(order, {});
    EXPECT_EQ(one.Move(ListKey::Down, Plain, 3, order), std::nullopt);
    EXPECT_EQ(one.Row(), -1);
}

TEST_F(ListCursorTest, SortingTakesTheCursorAlongAndSelectingByCodeMovesIt) {
    one.Click(0, Plain, order, {});
    SortByName();
    EXPECT_EQ(one.Move(ListKey::Down, Plain, 3, order), (Rows{3}));
    one.Follow(order, {1});
    EXPECT_EQ(one.Row(), 1);
}

TEST_F(ListCursorTest, TypedLettersFindTheBeginningOfARow) {
    SortByName();
    const ListContent content(*list);
    TypeAhead typed;
    EXPECT_EQ(typed.Find("B", 1000, content, order, 0, -1), 1) << "basket";
    EXPECT_EQ(typed.Find("r", 1200, content, order, 0, 1), 3) << "br: brake";
    EXPECT_EQ(typed.Find("x", 1400, content, order, 0, 3), -1) << "brx: nothing";
    EXPECT_EQ(typed.Find("a", 9000, content, order, 0, 3), 0) << "after a pause a new beginning";
}

TEST_F(ListCursorTest, TheSameLetterWalksThroughAllThatBeginWithIt) {
    SortByName();
    const ListContent content(*list);
    TypeAhead typed;
    int position = 0;
    Rows met;
    for (unsigned long i = 0; i < 4; ++i) {
        position = typed.Find("b", 1000 + 100 * i, content, order, 0, position);
        met.push_back(position);
    }
    EXPECT_EQ(met, (Rows{1, 2, 3, 1}));
}

TEST(ListScrollTest, TheFirstRowIsAlwaysSuchThatThePageIsFull) {
    std::mt19937 random(7);
    ListScroll scroll;
    for (int round = 0; round < 2000; ++round) {
        const int number = static_cast<int>(random() % 60) - 10;
        switch (random() % 4) {
        case 0:
            scroll.SetCount(number);
            break;
        case 1:
            scroll.SetPage(number);
            break;
        case 2:
            scroll.ScrollBy(number);
            break;
        default:
            scroll.Reveal(number);
            if (number >= 0 && number < scroll.Count()) {
                ASSERT_LE(scroll.First(), number);
                ASSERT_GT(scroll.First() + scroll.Page(), number);
            }
        }
        ASSERT_GE(scroll.First(), 0);
        ASSERT_LE(scroll.First(), std::max(scroll.Count() - scroll.Page(), 0));
    }
}

TEST(ListScrollTest, RevealingWhatIsInSightMovesNothing) {
    ListScroll scroll;
    scroll.SetCount(100);
    scroll.SetPage(10);
    scroll.SetFirst(20);
    scroll.Reveal(25);
    EXPECT_EQ(scroll.First(), 20);
    scroll.Reveal(30);
    EXPECT_EQ(scroll.First(), 21);
    scroll.Reveal(3);
    EXPECT_EQ(scroll.First(), 3);
}

} // namespace
