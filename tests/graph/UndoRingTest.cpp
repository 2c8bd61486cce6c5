#include "graph/UndoRing.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <vector>

namespace trellis::test {

namespace {

void Save(UndoRing& ring, int number) {
    ZOLListPtrZOLParameter parameters;
    parameters.Append(new ZOLParameter("", ZOLUnicodeString::FromNumber(number), 0));
    ring.Save(parameters, {});
    ZOLDeleteElements(parameters);
}

int NumberOf(const UndoRing::State* state) {
    int number = -1;
    if (state)
        state->parameters.front().GetOption().ConvertToNum(&number);
    return number;
}

} // namespace

TEST(UndoRingTest, ReachesNineStatesBackAndAllOfThemForthAgain) {
    UndoRing ring;
    EXPECT_EQ(ring.Undo(), nullptr);
    for (int i = 1; i <= 11; ++i)
        Save(ring, i);
    for (int i = 10; i >= 2; --i)
        EXPECT_EQ(NumberOf(ring.Undo()), i);
    EXPECT_EQ(ring.Undo(), nullptr);
    for (int i = 3; i <= 11; ++i)
        EXPECT_EQ(NumberOf(ring.Redo()), i);
    EXPECT_EQ(ring.Redo(), nullptr);
}

// What was taken back is behind the new state then, as if it were older.
TEST(UndoRingTest, AStateSavedAfterUndoOnceItHasWrappedMovesTheOldest) {
    UndoRing ring;
    for (int i = 1; i <= 12; ++i)
        Save(ring, i);
    for (int i = 0; i < 3; ++i)
        ring.Undo();
    Save(ring, 100);
    EXPECT_EQ(ring.Redo(), nullptr);
    for (const int number : {9, 8, 7, 6, 5, 4, 3, 12, 11})
        EXPECT_EQ(NumberOf(ring.Undo()), number);
    EXPECT_EQ(ring.Undo(), nullptr);
}

// An unbounded list is the model as long as the ring has not wrapped, or nothing is saved after an undo once it has.
TEST(UndoRingTest, BehavesAsAnUnboundedListWithinItsReach) {
    EXPECT_TRUE(rc::check([](const std::vector<int>& gestures) {
        UndoRing ring;
        std::vector<int> states;
        std::size_t shown = 0; // states up to here are in force
        std::size_t saved = 0;
        for (const int gesture : gestures) {
            if (gesture % 3 == 0) {
                if (saved >= 10 && shown < states.size())
                    continue; // the ring moves its oldest state then
                states.resize(shown);
                states.push_back(static_cast<int>(++saved));
                Save(ring, states.back());
                shown = states.size();
            } else if (gesture % 3 == 1) {
                const std::size_t oldest = states.size() > 10 ? states.size() - 10 : 0;
                const bool canUndo = shown > oldest + 1;
                shown -= canUndo ? 1U : 0U;
                RC_ASSERT(NumberOf(ring.Undo()) == (canUndo ? states[shown - 1] : -1));
            } else {
                const bool canRedo = shown < states.size();
                shown += canRedo ? 1U : 0U;
                RC_ASSERT(NumberOf(ring.Redo()) == (canRedo ? states[shown - 1] : -1));
            }
        }
    }));
}

} // namespace trellis::test
