#include "codec/png/PngFilterStrategy.h"

#include <array>
#include <cstring>

#include "codec/png/PngFilters.h"
#include "codec/png/PngFormat.h"

#if (defined(__SSE2__) && defined(__x86_64__)) || defined(_M_X64)
#include <emmintrin.h>
#define IW_PNG_STRATEGY_SSE2 1
#endif

namespace iw::png {
namespace {

// The filtered bytes read as signed differences: small magnitudes compress well. A
// candidate already worse than the best so far need not be summed to the end: any sum of
// at least `stopAt` loses alike.
std::uint64_t AbsoluteSum(const std::uint8_t* data, std::size_t count, std::uint64_t stopAt) {
    std::uint64_t sum = 0;
    std::size_t i = 0;
#ifdef IW_PNG_STRATEGY_SSE2
    // |v| of a byte read as signed is the smaller of v and 256 - v; the sum of absolute
    // differences against zero adds 8 of them into each half of the register.
    const __m128i zero = _mm_setzero_si128();
    while (i + 16 <= count) {
        __m128i total = zero;
        const std::size_t end = count - i >= 256 ? i + 256 : i + (count - i) / 16 * 16;
        for (; i < end; i += 16) {
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + i));
            total =
                _mm_add_epi64(total, _mm_sad_epu8(_mm_min_epu8(v, _mm_sub_epi8(zero, v)), zero));
        }
        sum += static_cast<std::uint64_t>(_mm_cvtsi128_si64(total)) +
               static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(total, total)));
        if (sum >= stopAt) return sum;
    }
#endif
    for (; i < count; ++i) {
        const unsigned v = data[i];
        sum += v < 128 ? v : 256 - v;
        if ((i & 255) == 255 && sum >= stopAt) return sum;
    }
    return sum;
}

std::uint8_t FixedFilter(FilterStrategy strategy) {
    switch (strategy) {
        case FilterStrategy::Sub:
            return kFilterSub;
        case FilterStrategy::Up:
            return kFilterUp;
        case FilterStrategy::Paeth:
            return kFilterPaeth;
        default:
            return kFilterNone;
    }
}

}  // namespace

std::vector<std::uint8_t> FilterImage(std::span<const std::uint8_t> rows, std::size_t height,
                                      std::size_t rowBytes, std::size_t stride,
                                      FilterStrategy strategy) {
    std::vector<std::uint8_t> out(height * (rowBytes + 1));
    const std::vector<std::uint8_t> zeros(rowBytes, 0);
    std::array<std::vector<std::uint8_t>, kFilterCount> trial;
    if (strategy == FilterStrategy::MinimumSum) {
        for (auto& buffer : trial)
            buffer.resize(rowBytes);
    }
    for (std::size_t y = 0; y < height; ++y) {
        const std::uint8_t* row = rows.data() + y * rowBytes;
        const std::uint8_t* prior = y == 0 ? zeros.data() : row - rowBytes;
        std::uint8_t* line = out.data() + y * (rowBytes + 1);
        if (strategy != FilterStrategy::MinimumSum) {
            line[0] = FixedFilter(strategy);
            FilterRow(line[0], row, prior, rowBytes, stride, line + 1);
            continue;
        }
        std::uint8_t best = kFilterNone;
        std::uint64_t bestSum = AbsoluteSum(row, rowBytes, UINT64_MAX);
        for (std::uint8_t type = kFilterSub; type < kFilterCount; ++type) {
            FilterRow(type, row, prior, rowBytes, stride, trial[type].data());
            const std::uint64_t sum = AbsoluteSum(trial[type].data(), rowBytes, bestSum);
            if (sum < bestSum) {
                bestSum = sum;
                best = type;
            }
        }
        line[0] = best;
        std::memcpy(line + 1, best == kFilterNone ? row : trial[best].data(), rowBytes);
    }
    return out;
}

}  // namespace iw::png
