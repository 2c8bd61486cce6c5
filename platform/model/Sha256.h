#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace trellis {

// The SHA-256 digest of a text: identifiers derived from names rest on it, so it may never be exchanged.
std::array<std::uint8_t, 32> Sha256(std::string_view text);

} // namespace trellis
