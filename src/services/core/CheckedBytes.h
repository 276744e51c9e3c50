#pragma once
// Reading untrusted bytes: the range check that comes before every read, and the loads of
// little- and big-endian integers that follow it.

#include <cstddef>
#include <cstdint>

namespace iw {

// True when [offset, offset + size) lies inside a buffer of `total` bytes, without overflow.
constexpr bool RangeFits(std::uint64_t offset, std::uint64_t size, std::uint64_t total) {
    return offset <= total && size <= total - offset;
}

// The integer at `p`, whose bytes the caller has checked with RangeFits.
inline std::uint16_t LoadLE16(const std::uint8_t* p) {
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}
inline std::uint32_t LoadLE32(const std::uint8_t* p) {
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}
inline std::uint32_t LoadBE32(const std::uint8_t* p) {
    return (static_cast<std::uint32_t>(p[0]) << 24) | (static_cast<std::uint32_t>(p[1]) << 16) |
           (static_cast<std::uint32_t>(p[2]) << 8) | static_cast<std::uint32_t>(p[3]);
}

}  // namespace iw
