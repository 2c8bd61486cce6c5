#include "model/ObjectIdentifier.h"

#include "model/Sha256.h"

#include <gtest/gtest.h>

namespace trellis::test {
namespace {

std::string Digest(std::string_view text) {
    std::string hex;
    for (const std::uint8_t octet : Sha256(text)) {
        constexpr char digits[] = "0123456789abcdef";
        hex += digits[octet >> 4];
        hex += digits[octet & 15];
    }
    return hex;
}

// Identifiers in databases rest on the digest; these are its published test values.
TEST(ObjectIdentifierTest, TheDigestIsThePublishedOne) {
    EXPECT_EQ(Digest(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(Digest("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(Digest("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(Digest(std::string(1000000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
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
