#include "model/ObjectIdentifier.h"

#include <openssl/rand.h>
#include <openssl/sha.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace trellis {

namespace {

constexpr char digits[] = "0123456789abcdef";

using DigestOctets = std::array<unsigned char, SHA256_DIGEST_LENGTH>;

// As many hexadecimal digits as an identifier has, of the first octets.
std::string Digits(const DigestOctets& octets) {
    std::string text;
    for (std::size_t i = 0; i < ObjectIdentifier::Length / 2; ++i) {
        text += digits[octets[i] >> 4];
        text += digits[octets[i] & 15];
    }
    return text;
}

// The digit in lower case, or 0 for any other character.
char Digit(char character) {
    const char lower =
        character >= 'A' && character <= 'F' ? static_cast<char>(character - 'A' + 'a') : character;
    return (lower >= '0' && lower <= '9') || (lower >= 'a' && lower <= 'f') ? lower : '\0';
}

// Identifiers derived from names rest on this digest: databases hold them, so it may never be exchanged.
DigestOctets Digest(const std::string& text) {
    DigestOctets digest{};
    SHA256(reinterpret_cast<const unsigned char*>(text.data()), text.size(), digest.data());
    return digest;
}

} // namespace

ObjectIdentifier::ObjectIdentifier(std::string_view text) {
    if (text.size() != Length)
        return;
    std::string lower(Length, '\0');
    std::transform(text.begin(), text.end(), lower.begin(), Digit);
    if (lower.find('\0') == std::string::npos)
        _digits = std::move(lower);
}

ObjectIdentifier::ObjectIdentifier(const ObjID& flat)
    : ObjectIdentifier(std::string_view(flat.text, strnlen(flat.text, sizeof flat.text))) {}

ObjectIdentifier ObjectIdentifier::Derived(std::string_view kind, std::string_view name) {
    std::string text(kind);
    text += '\0';
    text += name;
    return ObjectIdentifier(Digits(Digest(text)));
}

ObjectIdentifier ObjectIdentifier::Unique() {
    DigestOctets drawn{};
    // Without chance two links could get one identifier, and the database would take neither.
    if (RAND_bytes(drawn.data(), static_cast<int>(drawn.size())) != 1)
        ContractBreach("ObjectIdentifier::Unique", "the system gives no random numbers");
    return ObjectIdentifier(Digits(drawn));
}

ObjID ObjectIdentifier::Flat() const {
    ObjID flat{};
    std::memcpy(flat.text, _digits.data(), _digits.size());
    return flat;
}

} // namespace trellis
