#include "codec/png/PngFilters.h"

#include <cstring>

#include "codec/png/PngFormat.h"

#if defined(__SSE2__) || defined(_M_X64) || (defined(_M_IX86_FP) && _M_IX86_FP >= 2)
#include <emmintrin.h>
#define IW_PNG_FILTERS_SSE2 1
#endif

namespace iw::png {
namespace {

// The Paeth predictor rearranged for the inner loops. With lo and hi the smaller and the
// larger of a and b and t = 3c - a - b: the predictor is hi when t <= lo, else lo when
// hi <= t, else c. This picks the same byte as PaethPredictor for every a, b and c (the
// tests try all of them), needs no branches, and puts only a few steps between one
// reconstructed pixel and the next, which is what bounds the speed of Paeth rows.
inline int PaethSelect(int a, int b, int c) {
    const int t = 3 * c - a - b;
    const int lo = a < b ? a : b;
    const int hi = a < b ? b : a;
    const int loOrC = hi <= t ? lo : c;
    return t <= lo ? hi : loOrC;
}

#ifdef IW_PNG_FILTERS_SSE2

// One pixel of 3 or 4 bytes in the low 16-bit lanes of a register, and back.
template <std::size_t Bytes>
inline __m128i LoadPixel(const std::uint8_t* p) {
    std::int32_t v = 0;
    std::memcpy(&v, p, Bytes);
    return _mm_unpacklo_epi8(_mm_cvtsi32_si128(v), _mm_setzero_si128());
}

template <std::size_t Bytes>
inline void StorePixel(std::uint8_t* p, __m128i lanes) {
    const std::int32_t v = _mm_cvtsi128_si32(_mm_packus_epi16(lanes, lanes));
    std::memcpy(p, &v, Bytes);
}

inline __m128i Select(__m128i mask, __m128i ifSet, __m128i otherwise) {
    return _mm_or_si128(_mm_and_si128(mask, ifSet), _mm_andnot_si128(mask, otherwise));
}

// Stops the compiler from folding a value back into the expression that uses it: it
// would otherwise regroup 3c - b - a so that the chain through a grows longer.
inline void KeepAsIs(__m128i& value) {
#if defined(__GNUC__) || defined(__clang__)
    __asm__("" : "+x"(value));
#else
    (void)value;
#endif
}

// PaethSelect on 16-bit lanes. `threeCMinusB` (3c - b) does not depend on a, so it is
// worked out before a is known.
inline __m128i PaethLanes(__m128i a, __m128i b, __m128i c, __m128i threeCMinusB) {
    const __m128i t = _mm_sub_epi16(threeCMinusB, a);
    const __m128i lo = _mm_min_epi16(a, b);
    const __m128i hi = _mm_max_epi16(a, b);
    const __m128i loOrC = Select(_mm_cmpgt_epi16(hi, t), c, lo);
    return Select(_mm_cmpgt_epi16(t, lo), loOrC, hi);
}

// Adds bytes modulo 256 in 16-bit lanes whose high bytes are zero: byte-wise addition
// keeps the carry out of the high byte.
inline __m128i AddLowBytes(__m128i x, __m128i y) {
    return _mm_add_epi8(x, y);
}

// Pixels of 3 or 4 bytes are reconstructed a whole pixel at a time: the chain from one
// pixel to the next is then one pixel long instead of one byte.
template <std::size_t Bytes>
void UnfilterSubPixels(std::uint8_t* row, std::size_t count) {
    __m128i a = _mm_setzero_si128();
    for (std::size_t i = 0; i + Bytes <= count; i += Bytes) {
        a = AddLowBytes(LoadPixel<Bytes>(row + i), a);
        StorePixel<Bytes>(row + i, a);
    }
}

template <std::size_t Bytes>
void UnfilterAveragePixels(std::uint8_t* row, const std::uint8_t* prior, std::size_t count) {
    __m128i a = _mm_setzero_si128();
    for (std::size_t i = 0; i + Bytes <= count; i += Bytes) {
        const __m128i b = LoadPixel<Bytes>(prior + i);
        const __m128i average = _mm_srli_epi16(_mm_add_epi16(a, b), 1);
        a = AddLowBytes(LoadPixel<Bytes>(row + i), average);
        StorePixel<Bytes>(row + i, a);
    }
}

template <std::size_t Bytes>
void UnfilterPaethPixels(std::uint8_t* row, const std::uint8_t* prior, std::size_t count) {
    __m128i a = _mm_setzero_si128();
    __m128i c = _mm_setzero_si128();
    for (std::size_t i = 0; i + Bytes <= count; i += Bytes) {
        const __m128i b = LoadPixel<Bytes>(prior + i);
        __m128i threeCMinusB = _mm_sub_epi16(_mm_add_epi16(_mm_add_epi16(c, c), c), b);
        KeepAsIs(threeCMinusB);
        a = AddLowBytes(LoadPixel<Bytes>(row + i), PaethLanes(a, b, c, threeCMinusB));
        StorePixel<Bytes>(row + i, a);
        c = b;
    }
}

#endif  // IW_PNG_FILTERS_SSE2

// Reconstruction, byte by byte: Recon(x) = Filt(x) + predictor, modulo 256. The stride is
// a template argument for the common pixel sizes so that the loops compile to straight
// code.
template <std::size_t Stride>
void UnfilterSub(std::uint8_t* row, std::size_t count, std::size_t stride) {
    const std::size_t s = Stride ? Stride : stride;
    for (std::size_t i = s; i < count; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + row[i - s]);
}

void UnfilterUp(std::uint8_t* row, const std::uint8_t* prior, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + prior[i]);
}

template <std::size_t Stride>
void UnfilterAverage(std::uint8_t* row, const std::uint8_t* prior, std::size_t count,
                     std::size_t stride) {
    const std::size_t s = Stride ? Stride : stride;
    const std::size_t lead = s < count ? s : count;
    for (std::size_t i = 0; i < lead; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + (prior[i] >> 1));
    for (std::size_t i = lead; i < count; ++i) {
        row[i] = static_cast<std::uint8_t>(row[i] + ((row[i - s] + prior[i]) >> 1));
    }
}

template <std::size_t Stride>
void UnfilterPaeth(std::uint8_t* row, const std::uint8_t* prior, std::size_t count,
                   std::size_t stride) {
    const std::size_t s = Stride ? Stride : stride;
    const std::size_t lead = s < count ? s : count;
    // In the first pixel a and c are 0, so the predictor is b.
    for (std::size_t i = 0; i < lead; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + prior[i]);
    for (std::size_t i = lead; i < count; ++i) {
        row[i] =
            static_cast<std::uint8_t>(row[i] + PaethSelect(row[i - s], prior[i], prior[i - s]));
    }
}

// The first row of an image or pass: the row above is zero, so Up is None, Average halves
// a and Paeth is Sub.
void UnfilterFirstRow(std::uint8_t type, std::uint8_t* row, std::size_t count, std::size_t stride) {
    switch (type) {
        case kFilterSub:
        case kFilterPaeth:
            for (std::size_t i = stride; i < count; ++i)
                row[i] = static_cast<std::uint8_t>(row[i] + row[i - stride]);
            break;
        case kFilterAverage:
            for (std::size_t i = stride; i < count; ++i)
                row[i] = static_cast<std::uint8_t>(row[i] + (row[i - stride] >> 1));
            break;
        default:
            break;
    }
}

template <std::size_t Stride>
void UnfilterWith(std::uint8_t type, std::uint8_t* row, const std::uint8_t* prior,
                  std::size_t count, std::size_t stride) {
    switch (type) {
        case kFilterSub:
#ifdef IW_PNG_FILTERS_SSE2
            if constexpr (Stride == 3 || Stride == 4) {
                if (count % Stride == 0) {
                    UnfilterSubPixels<Stride>(row, count);
                    return;
                }
            }
#endif
            UnfilterSub<Stride>(row, count, stride);
            return;
        case kFilterUp:
            UnfilterUp(row, prior, count);
            return;
        case kFilterAverage:
#ifdef IW_PNG_FILTERS_SSE2
            if constexpr (Stride == 3 || Stride == 4) {
                if (count % Stride == 0) {
                    UnfilterAveragePixels<Stride>(row, prior, count);
                    return;
                }
            }
#endif
            UnfilterAverage<Stride>(row, prior, count, stride);
            return;
        case kFilterPaeth:
#ifdef IW_PNG_FILTERS_SSE2
            if constexpr (Stride == 3 || Stride == 4) {
                if (count % Stride == 0) {
                    UnfilterPaethPixels<Stride>(row, prior, count);
                    return;
                }
            }
#endif
            UnfilterPaeth<Stride>(row, prior, count, stride);
            return;
        default:
            return;
    }
}

}  // namespace

void UnfilterRow(std::uint8_t type, std::uint8_t* row, const std::uint8_t* prior, std::size_t count,
                 std::size_t stride) {
    if (count == 0 || type == kFilterNone) return;
    if (!prior) {
        UnfilterFirstRow(type, row, count, stride);
        return;
    }
    switch (stride) {
        case 1:
            return UnfilterWith<1>(type, row, prior, count, stride);
        case 2:
            return UnfilterWith<2>(type, row, prior, count, stride);
        case 3:
            return UnfilterWith<3>(type, row, prior, count, stride);
        case 4:
            return UnfilterWith<4>(type, row, prior, count, stride);
        case 6:
            return UnfilterWith<6>(type, row, prior, count, stride);
        case 8:
            return UnfilterWith<8>(type, row, prior, count, stride);
        default:
            return UnfilterWith<0>(type, row, prior, count, stride);
    }
}

bool UnfilterRows(std::uint8_t* data, std::size_t rows, std::size_t rowBytes, std::size_t stride) {
    if (rows == 0 || rowBytes == 0) return true;
    const std::uint8_t* prior = nullptr;  // the first row's "row above" is zero
    for (std::size_t y = 0; y < rows; ++y) {
        std::uint8_t* line = data + y * (rowBytes + 1);
        if (line[0] > kFilterPaeth) return false;
        UnfilterRow(line[0], line + 1, prior, rowBytes, stride);
        prior = line + 1;
    }
    return true;
}

namespace {

#ifdef IW_PNG_FILTERS_SSE2

inline __m128i Load16(const std::uint8_t* p) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
}
inline void Store16(std::uint8_t* p, __m128i v) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v);
}

// Filtering needs only bytes of the original rows, so 16 bytes go at a time. Each returns
// how many bytes it did from `start`; the caller finishes the rest byte by byte.
std::size_t FilterSubWide(const std::uint8_t* row, std::size_t start, std::size_t count,
                          std::size_t stride, std::uint8_t* out) {
    std::size_t i = start;
    for (; i + 16 <= count; i += 16)
        Store16(out + i, _mm_sub_epi8(Load16(row + i), Load16(row + i - stride)));
    return i;
}

std::size_t FilterUpWide(const std::uint8_t* row, const std::uint8_t* prior, std::size_t count,
                         std::uint8_t* out) {
    std::size_t i = 0;
    for (; i + 16 <= count; i += 16)
        Store16(out + i, _mm_sub_epi8(Load16(row + i), Load16(prior + i)));
    return i;
}

std::size_t FilterAverageWide(const std::uint8_t* row, const std::uint8_t* prior, std::size_t start,
                              std::size_t count, std::size_t stride, std::uint8_t* out) {
    const __m128i one = _mm_set1_epi8(1);
    std::size_t i = start;
    for (; i + 16 <= count; i += 16) {
        const __m128i a = Load16(row + i - stride);
        const __m128i b = Load16(prior + i);
        // floor((a + b) / 2): the rounded-up average less the carried low bit.
        const __m128i average =
            _mm_sub_epi8(_mm_avg_epu8(a, b), _mm_and_si128(_mm_xor_si128(a, b), one));
        Store16(out + i, _mm_sub_epi8(Load16(row + i), average));
    }
    return i;
}

std::size_t FilterPaethWide(const std::uint8_t* row, const std::uint8_t* prior, std::size_t start,
                            std::size_t count, std::size_t stride, std::uint8_t* out) {
    const __m128i zero = _mm_setzero_si128();
    std::size_t i = start;
    for (; i + 16 <= count; i += 16) {
        const __m128i a = Load16(row + i - stride);
        const __m128i b = Load16(prior + i);
        const __m128i c = Load16(prior + i - stride);
        __m128i predicted[2];
        for (int half = 0; half < 2; ++half) {
            const __m128i a16 = half ? _mm_unpackhi_epi8(a, zero) : _mm_unpacklo_epi8(a, zero);
            const __m128i b16 = half ? _mm_unpackhi_epi8(b, zero) : _mm_unpacklo_epi8(b, zero);
            const __m128i c16 = half ? _mm_unpackhi_epi8(c, zero) : _mm_unpacklo_epi8(c, zero);
            const __m128i threeCMinusB =
                _mm_sub_epi16(_mm_add_epi16(_mm_add_epi16(c16, c16), c16), b16);
            predicted[half] = PaethLanes(a16, b16, c16, threeCMinusB);
        }
        Store16(out + i,
                _mm_sub_epi8(Load16(row + i), _mm_packus_epi16(predicted[0], predicted[1])));
    }
    return i;
}

#else

std::size_t FilterSubWide(const std::uint8_t*, std::size_t start, std::size_t, std::size_t,
                          std::uint8_t*) {
    return start;
}
std::size_t FilterUpWide(const std::uint8_t*, const std::uint8_t*, std::size_t, std::uint8_t*) {
    return 0;
}
std::size_t FilterAverageWide(const std::uint8_t*, const std::uint8_t*, std::size_t start,
                              std::size_t, std::size_t, std::uint8_t*) {
    return start;
}
std::size_t FilterPaethWide(const std::uint8_t*, const std::uint8_t*, std::size_t start,
                            std::size_t, std::size_t, std::uint8_t*) {
    return start;
}

#endif

}  // namespace

void FilterRow(std::uint8_t type, const std::uint8_t* row, const std::uint8_t* prior,
               std::size_t count, std::size_t stride, std::uint8_t* out) {
    // Bytes of the first pixel have no left neighbour (a = c = 0).
    const std::size_t lead = stride < count ? stride : count;
    switch (type) {
        case kFilterSub:
            std::memcpy(out, row, lead);
            for (std::size_t i = FilterSubWide(row, lead, count, stride, out); i < count; ++i) {
                out[i] = static_cast<std::uint8_t>(row[i] - row[i - stride]);
            }
            break;
        case kFilterUp:
            for (std::size_t i = FilterUpWide(row, prior, count, out); i < count; ++i)
                out[i] = static_cast<std::uint8_t>(row[i] - prior[i]);
            break;
        case kFilterAverage:
            for (std::size_t i = 0; i < lead; ++i) {
                out[i] = static_cast<std::uint8_t>(row[i] - (prior[i] >> 1));
            }
            for (std::size_t i = FilterAverageWide(row, prior, lead, count, stride, out); i < count;
                 ++i) {
                out[i] = static_cast<std::uint8_t>(row[i] - ((row[i - stride] + prior[i]) >> 1));
            }
            break;
        case kFilterPaeth:
            for (std::size_t i = 0; i < lead; ++i)
                out[i] = static_cast<std::uint8_t>(row[i] - prior[i]);
            for (std::size_t i = FilterPaethWide(row, prior, lead, count, stride, out); i < count;
                 ++i) {
                out[i] = static_cast<std::uint8_t>(
                    row[i] - PaethSelect(row[i - stride], prior[i], prior[i - stride]));
            }
            break;
        default:
            std::memcpy(out, row, count);
            break;
    }
}

}  // namespace iw::png
