#include "model/ObjectIdentifier.h"

#include <gtest/gtest.h>

namespace trellis::test {
namespace {

// Databases hold derived identifiers, so the way they are derived may never change.
TEST(ObjectIdentifierTest, DerivedIdentifiersAreThoseOfEarlierDatabases) {
    EXPECT_EQ(ObjectIdentifier::Derived("part", "frame").Text(),
              "3c8477b05192c20d9008063bd7261c1943c20784f41ef20ec3");
}

TEST(ObjectIdentifierTest, AllFormsMeanTheSame) {
    const ObjectIdentifier identifier = ObjectIdentifier::Derived("part", "frame");
    EXPECT_EQ(identifier.Text().size(), 50u);
    EXPECT_EQ(ObjectIdentifier(identifier.Octets()), identifier);
    EXPECT_EQ(ObjectIdentifier(identifier.Flat()), identifier);
    EXPECT_EQ(ObjectIdentifier(std::string(50, 'A')).Text(), std::string(50, 'a'));
    EXPECT_NE(ObjectIdentifier::Derived("link", "frame"), identifier);
}

TEST(ObjectIdentifierTest, WhatIsNotFiftyHexadecimalDigitsIsNone) {
    for (const std::string& text : {std::string(), std::string(49, 'a'), std::string(51, 'a'),
                                    std::string(50, 'g'), std::string(50, '\0')})
        EXPECT_TRUE(ObjectIdentifier(text).IsEmpty());
    ObjID flat;
    std::fill(std::begin(flat.text), std::end(flat.text), 'a'); // no closing zero
    EXPECT_TRUE(ObjectIdentifier(flat).IsEmpty());
    EXPECT_EQ(ObjectIdentifier().Flat().text[0], '\0');
}

} // namespace
} // namespace trellis::test
