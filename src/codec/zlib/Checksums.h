#pragma once
// The two checksums of PNG and zlib streams, computed by the program's own routines
// whichever library is loaded.

#include <cstdint>
#include <span>

namespace iw {

// CRC-32 as PNG and zlib compute it (start with 0; feed pieces by passing the last
// result).
std::uint32_t Crc32(std::uint32_t crc, std::span<const std::uint8_t> data);
// Adler-32 as RFC 1950 defines it (start with 1).
std::uint32_t Adler32(std::uint32_t adler, std::span<const std::uint8_t> data);

}  // namespace iw
