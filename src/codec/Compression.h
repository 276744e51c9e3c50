#pragma once
// zlib streams (RFC 1950 around RFC 1951 deflate data) for the PNG codec. The system's
// zlib is loaded at run time when present; otherwise the program's own inflate and
// deflate do the work. Callers do not need to know which one ran.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace iw {

enum class InflateStatus {
    Ok,
    TruncatedInput,     // the stream ended before its final block / trailer
    BadHeader,          // CMF/FLG wrong: not deflate, window too large, check bits, preset dictionary
    BadBlockType,       // block type 3
    BadStoredLength,    // LEN and NLEN do not match
    BadCodeLengths,     // oversubscribed or incomplete code set, bad repeat
    BadSymbol,          // literal/length 286-287, distance 30-31, or a code not in the table
    DistanceTooFar,     // a distance reaching before the start of the output
    OutputLimit,        // the output would pass the size the caller allows
    BadChecksum,        // Adler-32 trailer mismatch
};

const char* InflateStatusText(InflateStatus status);

// Inflates the zlib stream `in` into `out` (replaced), producing at most `maxOutput` bytes.
// Uses the loaded zlib when there is one, else the own inflate.
InflateStatus ZlibDecompress(std::span<const std::uint8_t> in, std::size_t maxOutput,
                             std::vector<std::uint8_t>& out);

// A zlib stream of `in`: zlib's compress2 at level 9 (else compress) when loaded, else the
// own deflate.
std::vector<std::uint8_t> ZlibCompress(std::span<const std::uint8_t> in);

// CRC-32 as PNG uses it (start with 0).
std::uint32_t Crc32(std::uint32_t crc, std::span<const std::uint8_t> data);
std::uint32_t Adler32(std::uint32_t adler, std::span<const std::uint8_t> data);

// True when a usable zlib was loaded (and ICONWRIGHT_NO_ZLIB=1 is not set).
bool IsZlibLoaded();

}  // namespace iw
