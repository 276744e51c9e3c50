#pragma once
// The program's own deflate (RFC 1951 blocks in an RFC 1950 zlib stream), used when no zlib
// is loaded.

#include <cstdint>
#include <span>
#include <vector>

namespace iw {

// A zlib stream of `in` at the own compressor's highest effort.
std::vector<std::uint8_t> DeflateZlib(std::span<const std::uint8_t> in);

}  // namespace iw
