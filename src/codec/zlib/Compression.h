#pragma once
// zlib streams (RFC 1950 around RFC 1951 deflate data) for the PNG codec. The system's
// zlib is loaded at run time when present; otherwise the program's own inflate and
// deflate do the work. Callers do not need to know which one ran.
//
// Running without zlib: set the environment variable ICONWRIGHT_NO_ZLIB=1 before start,
// or, inside the process (tests, benchmarks), keep a ScopedZlibDisabled alive. The own
// inflate and deflate are also callable directly (codec/zlib/Inflate.h, codec/zlib/Deflate.h),
// the checksums through codec/zlib/Checksums.h.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace iw {

enum class InflateStatus {
    Ok,
    TruncatedInput,   // the stream ended before its final block / trailer
    BadHeader,        // CMF/FLG wrong: not deflate, window too large, check bits, preset dictionary
    BadBlockType,     // block type 3
    BadStoredLength,  // LEN and NLEN do not match
    BadCodeLengths,   // oversubscribed or incomplete code set, bad repeat
    BadSymbol,        // literal/length 286-287, distance 30-31, or a code not in the table
    DistanceTooFar,   // a distance reaching before the start of the output
    OutputLimit,      // the output would pass the size the caller allows
    BadChecksum,      // Adler-32 trailer mismatch
    LibraryError,     // the loaded zlib failed for a reason of its own (out of memory)
};

const char* InflateStatusText(InflateStatus status);

// Inflates the zlib stream `in` into `out` (replaced), producing at most `maxOutput` bytes.
// Uses the loaded zlib when there is one, else the own inflate. Pass the size that is
// expected (the PNG's raw data size) as `maxOutput`: the loaded library needs its buffer up
// front, sized min(maxOutput, the most that `in` can expand to). On failure `out` holds
// what was decoded before the fault (possibly nothing).
InflateStatus ZlibDecompress(std::span<const std::uint8_t> in, std::size_t maxOutput,
                             std::vector<std::uint8_t>& out);

// Inflates the zlib stream `in` into the caller's buffer `out`, which the stream must fill
// exactly: Ok only when it holds out.size() bytes, no more and no fewer. The bytes of
// `out` are undefined after a failure.
InflateStatus ZlibDecompressInto(std::span<const std::uint8_t> in, std::span<std::uint8_t> out);

// A zlib stream of `in`: zlib's compress2 at level 9 (else compress) when loaded, else the
// own deflate. Empty when the library's call failed (a zlib stream is never empty).
std::vector<std::uint8_t> ZlibCompress(std::span<const std::uint8_t> in);
// The same with zlib's filtered strategy where the loaded library offers it (see
// ZlibLibrary::CompressFiltered); otherwise exactly ZlibCompress.
std::vector<std::uint8_t> ZlibCompressFiltered(std::span<const std::uint8_t> in);
// True when ZlibCompressFiltered makes a stream of its own (a loaded zlib with the calls
// it needs), not the same one as ZlibCompress.
bool CanCompressFiltered();

// True when a usable zlib was loaded (and ICONWRIGHT_NO_ZLIB=1 is not set, and no
// ScopedZlibDisabled is alive).
bool IsZlibLoaded();

// While an instance lives, the functions above behave as if no zlib were present:
// IsZlibLoaded() is false and the own inflate/deflate run. Scopes nest.
class ScopedZlibDisabled {
  public:
    ScopedZlibDisabled();
    ~ScopedZlibDisabled();
    ScopedZlibDisabled(const ScopedZlibDisabled&) = delete;
    ScopedZlibDisabled& operator=(const ScopedZlibDisabled&) = delete;
};

}  // namespace iw
