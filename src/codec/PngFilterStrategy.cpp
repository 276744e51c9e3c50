#include "codec/PngFilterStrategy.h"

#include <array>
#include <cstring>

#include "codec/PngFilters.h"
#include "codec/PngFormat.h"

namespace iw::png {
namespace {

// The filtered bytes read as signed differences: small magnitudes compress well.
std::uint64_t AbsoluteSum(const std::uint8_t* data, std::size_t count, std::uint64_t stopAt) {
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned v = data[i];
        sum += v < 128 ? v : 256 - v;
        // A candidate already worse than the best so far need not be summed to the end.
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
