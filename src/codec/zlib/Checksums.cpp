// CRC-32 (slicing by 8) and Adler-32 (SSE2 where available, else unrolled scalar).

#include <array>
#include <cstring>

#include "codec/zlib/Checksums.h"

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define IW_ADLER_SSE2 1
#endif

namespace iw {

namespace {

using CrcTables = std::array<std::array<std::uint32_t, 256>, 8>;

// Table k gives the CRC of a byte followed by k zero bytes, so eight bytes are folded in
// with eight independent look-ups.
constexpr CrcTables MakeCrcTables() {
    CrcTables t{};
    for (std::uint32_t n = 0; n < 256; ++n) {
        std::uint32_t c = n;
        for (int k = 0; k < 8; ++k)
            c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
        t[0][n] = c;
    }
    for (std::uint32_t n = 0; n < 256; ++n) {
        for (std::size_t k = 1; k < 8; ++k)
            t[k][n] = (t[k - 1][n] >> 8) ^ t[0][t[k - 1][n] & 0xFF];
    }
    return t;
}

constexpr CrcTables kCrc = MakeCrcTables();

inline std::uint32_t LoadLittle32(const std::uint8_t* p) {
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

constexpr std::uint32_t kAdlerBase = 65521;
// The most bytes after which s2 still fits in 32 bits: 255n(n+1)/2 + (n+1)(BASE-1) < 2^32.
constexpr std::size_t kAdlerMax = 5552;

void AdlerScalar(std::uint32_t& s1, std::uint32_t& s2, const std::uint8_t* p, std::size_t n) {
    while (n >= 16) {
        for (int i = 0; i < 16; ++i) {
            s1 += p[i];
            s2 += s1;
        }
        p += 16;
        n -= 16;
    }
    while (n--) {
        s1 += *p++;
        s2 += s1;
    }
}

#if IW_ADLER_SSE2
inline std::uint64_t SumLanes(__m128i v) {
    alignas(16) std::uint32_t lanes[4];
    _mm_store_si128(reinterpret_cast<__m128i*>(lanes), v);
    return static_cast<std::uint64_t>(lanes[0]) + lanes[1] + lanes[2] + lanes[3];
}

// Blocks of 32 bytes: s1 grows by the byte sum, s2 by 32 * s1-before-the-block plus the
// bytes weighted 32, 31, ..., 1. `n` is a multiple of 32, at most kAdlerMax.
void AdlerBlocks(std::uint32_t& s1, std::uint32_t& s2, const std::uint8_t* p, std::size_t n) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i taps0 = _mm_setr_epi16(32, 31, 30, 29, 28, 27, 26, 25);
    const __m128i taps1 = _mm_setr_epi16(24, 23, 22, 21, 20, 19, 18, 17);
    const __m128i taps2 = _mm_setr_epi16(16, 15, 14, 13, 12, 11, 10, 9);
    const __m128i taps3 = _mm_setr_epi16(8, 7, 6, 5, 4, 3, 2, 1);
    __m128i sum = zero;       // bytes so far
    __m128i before = zero;    // sum of `sum` taken before each block
    __m128i weighted = zero;  // weighted bytes of each block
    const std::size_t blocks = n / 32;
    for (std::size_t b = 0; b < blocks; ++b, p += 32) {
        const __m128i lo = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const __m128i hi = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + 16));
        before = _mm_add_epi32(before, sum);
        sum = _mm_add_epi32(sum, _mm_add_epi32(_mm_sad_epu8(lo, zero), _mm_sad_epu8(hi, zero)));
        const __m128i w0 = _mm_madd_epi16(_mm_unpacklo_epi8(lo, zero), taps0);
        const __m128i w1 = _mm_madd_epi16(_mm_unpackhi_epi8(lo, zero), taps1);
        const __m128i w2 = _mm_madd_epi16(_mm_unpacklo_epi8(hi, zero), taps2);
        const __m128i w3 = _mm_madd_epi16(_mm_unpackhi_epi8(hi, zero), taps3);
        weighted =
            _mm_add_epi32(weighted, _mm_add_epi32(_mm_add_epi32(w0, w1), _mm_add_epi32(w2, w3)));
    }
    const std::uint64_t a = s1;
    const std::uint64_t b2 = s2 + 32 * blocks * a + 32 * SumLanes(before) + SumLanes(weighted);
    s1 = static_cast<std::uint32_t>((a + SumLanes(sum)) % kAdlerBase);
    s2 = static_cast<std::uint32_t>(b2 % kAdlerBase);
}
#endif

}  // namespace

std::uint32_t Crc32(std::uint32_t crc, std::span<const std::uint8_t> data) {
    const std::uint8_t* p = data.data();
    std::size_t n = data.size();
    std::uint32_t c = ~crc;
    while (n >= 8) {
        const std::uint32_t a = LoadLittle32(p) ^ c;
        const std::uint32_t b = LoadLittle32(p + 4);
        c = kCrc[7][a & 0xFF] ^ kCrc[6][(a >> 8) & 0xFF] ^ kCrc[5][(a >> 16) & 0xFF] ^
            kCrc[4][a >> 24] ^ kCrc[3][b & 0xFF] ^ kCrc[2][(b >> 8) & 0xFF] ^
            kCrc[1][(b >> 16) & 0xFF] ^ kCrc[0][b >> 24];
        p += 8;
        n -= 8;
    }
    while (n--)
        c = kCrc[0][(c ^ *p++) & 0xFF] ^ (c >> 8);
    return ~c;
}

std::uint32_t Adler32(std::uint32_t adler, std::span<const std::uint8_t> data) {
    std::uint32_t s1 = adler & 0xFFFF;
    std::uint32_t s2 = adler >> 16;
    const std::uint8_t* p = data.data();
    std::size_t n = data.size();
    while (n > 0) {
        std::size_t chunk = n < kAdlerMax ? n : kAdlerMax;
#if IW_ADLER_SSE2
        const std::size_t vectored = chunk & ~static_cast<std::size_t>(31);
        if (vectored) AdlerBlocks(s1, s2, p, vectored);
        AdlerScalar(s1, s2, p + vectored, chunk - vectored);
#else
        AdlerScalar(s1, s2, p, chunk);
#endif
        s1 %= kAdlerBase;
        s2 %= kAdlerBase;
        p += chunk;
        n -= chunk;
    }
    return (s2 << 16) | s1;
}

}  // namespace iw
