#include "values/ZOLBaseUnknown.h"
#include "values/ZOLListPtr.h"
#include "values/ZOLListVal.h"
#include "values/ZOLUnicodeString.h"
#include "values/ZOLVar.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

using Texts = ZOLListValZOLUnicodeString;

TEST(ZOLListTest, PositionsBeginAtOneAndAbsenceIsBelowOne) {
    Texts list;
    EXPECT_LT(list.Locate("a", 1), 1);
    list.Append(ZOLUnicodeString("a"));
    list.Append(ZOLUnicodeString("b"));
    list.Append(ZOLUnicodeString("a"));
    EXPECT_EQ(list[1], "a");
    EXPECT_EQ(list.Locate("a", 1), 1);
    EXPECT_EQ(list.Locate("a", 2), 3);
    EXPECT_LT(list.Locate("b", 3), 1);
}

TEST(ZOLListDeathTest, AnIndexOutsideEndsTheProcessWithFunctionAndReason) {
    Texts list{"a"};
    EXPECT_DEATH(list[0], "operator.*outside 1..Size");
    EXPECT_DEATH(list[2], "operator.*outside 1..Size");
    EXPECT_DEATH(list.RemovePosition(2), "RemovePosition.*outside 1..Size");
}

TEST(ZOLListTest, AListMayBeAppendedToAndRemovedFromItself) {
    Texts list{"a", "b"};
    list.Append(list);
    EXPECT_EQ(list.Size(), 4);
    EXPECT_EQ(list[4], "b");
    list.RemoveDuplicates();
    EXPECT_EQ(list.Size(), 2);
    list.Remove(list);
    EXPECT_EQ(list.Size(), 0);
}

struct Pair {
    int key;
    int tag;
    bool operator==(const Pair&) const = default;
};

RC_GTEST_PROP(ZOLListTest, SortIsStableAndRemovalOfDuplicatesKeepsTheFirst, ()) {
    const auto keys = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 5));
    ZOLListVal<Pair> list;
    ZOLListVal<int> hashed;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        list.Append(Pair{keys[i], static_cast<int>(i)});
        hashed.Append(keys[i]);
    }
    list.QuickSort([](const Pair* a, const Pair* b) { return a->key - b->key; });
    for (int i = 2; i <= list.Size(); ++i)
        RC_ASSERT(list[i - 1].key < list[i].key ||
                  (list[i - 1].key == list[i].key && list[i - 1].tag < list[i].tag));
    hashed.RemoveDuplicates();
    std::vector<int> expected;
    for (const int key : keys)
        if (std::find(expected.begin(), expected.end(), key) == expected.end())
            expected.push_back(key);
    RC_ASSERT(std::vector<int>(hashed.begin(), hashed.end()) == expected);
}

// Tells where it dies, and which stored object it stands for.
class Thing : public ZOLBaseUnknown {
public:
    Thing(int identity, std::vector<int>* dead) : _identity(identity), _dead(dead) {}
    ~Thing() override { _dead->push_back(_identity); }
    int IsEqual(const ZOLBaseUnknown* other) const override {
        const auto* thing = dynamic_cast<const Thing*>(other);
        return thing && thing->_identity == _identity;
    }

private:
    int _identity;
    std::vector<int>* _dead;
};

TEST(ZOLListTest, OwnedElementsAreDeletedFromTheLastToTheFirst) {
    std::vector<int> dead;
    ZOLListPtr<Thing> list;
    for (int i = 1; i <= 3; ++i)
        list.Append(new Thing(i, &dead));
    ZOLDeleteElements(list);
    EXPECT_EQ(dead, (std::vector<int>{3, 2, 1}));
    EXPECT_EQ(list.Size(), 0);
}

TEST(ZOLVarTest, HandlesOfTheSameStoredObjectAreEqualAndKeepTheirs) {
    std::vector<int> dead;
    ZOLVar<Thing> first(new Thing(1, &dead));
    {
        const ZOLVar<Thing> again(new Thing(1, &dead));
        const ZOLVar<ZOLBaseUnknown> base = first;
        EXPECT_TRUE(first == again);
        EXPECT_TRUE(base.Narrow<Thing>() == again);
        EXPECT_FALSE(first == ZOLVar<Thing>(new Thing(2, &dead)));
        EXPECT_FALSE(first == NULL_var);
        EXPECT_TRUE(ZOLVar<Thing>() == NULL_var);
    }
    EXPECT_EQ(dead, (std::vector<int>{2, 1}));
    first = first.Narrow<Thing>();
    EXPECT_EQ(dead.size(), 2u);
    first = nullptr;
    EXPECT_EQ(dead.size(), 3u);
}

} // namespace
