#include "values/CORBAAny.h"

#include <gtest/gtest.h>

namespace {

TEST(CORBAAnyTest, AWrongTypeIsToldAndLeavesTheTarget) {
    CORBAAny value;
    value <<= 7;
    ZOLUnicodeString text("kept");
    ZOLTimeValue time{5};
    EXPECT_FALSE(value >>= text);
    EXPECT_FALSE(value >>= time);
    EXPECT_EQ(text, "kept");
    EXPECT_EQ(time.seconds, 5);
    int number = 0;
    EXPECT_TRUE(value >>= number);
    EXPECT_EQ(number, 7);
}

TEST(CORBAAnyTest, SequencesNestAndCopiesAreTheirOwn) {
    _SEQUENCE_CORBAAny inner;
    inner.length(2);
    inner[0] <<= ZOLUnicodeString("program");
    inner[1] <<= _SEQUENCE_octet("id");
    CORBAAny outer;
    outer <<= inner;
    inner[0] <<= 1;
    inner.length(1);

    _SEQUENCE_CORBAAny taken;
    ASSERT_TRUE(outer >>= taken);
    ASSERT_EQ(taken.length(), 2u);
    ZOLUnicodeString text;
    EXPECT_TRUE(taken[0] >>= text);
    EXPECT_EQ(text, "program");
    _SEQUENCE_octet octets;
    EXPECT_TRUE(taken[1] >>= octets);
    EXPECT_TRUE(SequenceIsEqual(octets, _SEQUENCE_octet("id")));
}

TEST(CORBAAnyDeathTest, AnIndexOutsideEndsTheProcess) {
    const _SEQUENCE_CORBAAny empty;
    EXPECT_DEATH(empty[0], "outside 0..length");
    const _SEQUENCE_octet octets("a");
    EXPECT_DEATH(octets[1], "outside 0..length");
}

} // namespace
