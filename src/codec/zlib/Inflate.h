#pragma once
// The program's own inflate (RFC 1950 zlib streams of RFC 1951 deflate blocks), used when
// no zlib is loaded. Every fault in the stream is reported; nothing is read past `in` and
// never more than `maxOutput` bytes are produced.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "codec/zlib/Compression.h"

namespace iw {

// Inflates the zlib stream `in` into `out` (replaced). Bytes after the Adler-32 trailer are
// ignored. On failure `out` holds what was decoded before the fault.
InflateStatus InflateZlib(std::span<const std::uint8_t> in, std::size_t maxOutput,
                          std::vector<std::uint8_t>& out);

}  // namespace iw
