#include "imaging/NearestPaletteEntry.h"

#include <cstdint>

#include "imaging/ColorMapping.h"

namespace iw {

NearestPaletteEntry::NearestPaletteEntry(const std::vector<PackedColor>& palette, int last)
    : count_(last + 1) {
    red_.fill(kFarAway);
    green_.fill(kFarAway);
    blue_.fill(kFarAway);
    for (int k = 0; k < count_; ++k) {
        const PackedColor c = palette[static_cast<std::size_t>(k)];
        red_[static_cast<std::size_t>(k)] = static_cast<std::int16_t>(RedOf(c));
        green_[static_cast<std::size_t>(k)] = static_cast<std::int16_t>(GreenOf(c));
        blue_[static_cast<std::size_t>(k)] = static_cast<std::int16_t>(BlueOf(c));
    }
}

int NearestPaletteEntry::Find(int red, int green, int blue) const {
    if (count_ <= 0) return -1;
    const auto r = static_cast<std::int16_t>(red);
    const auto g = static_cast<std::int16_t>(green);
    const auto b = static_cast<std::int16_t>(blue);
    // A running minimum per lane and the first entry where each lane reached it, over
    // blocks of kLanes entries: fixed-size inner loops that the compiler turns into vector
    // code. Within a lane the entries come in rising order and only a strictly smaller
    // distance replaces the lane's best, so each lane keeps its lowest index.
    constexpr int kLanes = 16;
    alignas(32) std::array<std::int16_t, kLanes> least;
    alignas(32) std::array<std::int16_t, kLanes> first;
    alignas(32) std::array<std::int16_t, kLanes> index;
    least.fill(INT16_MAX);
    first.fill(0);
    for (int lane = 0; lane < kLanes; ++lane)
        index[lane] = static_cast<std::int16_t>(lane);
    for (int block = 0; block < kMaxEntries; block += kLanes) {
        for (int lane = 0; lane < kLanes; ++lane) {
            const int k = block + lane;
            const auto dr = static_cast<std::int16_t>(red_[k] - r);
            const auto dg = static_cast<std::int16_t>(green_[k] - g);
            const auto db = static_cast<std::int16_t>(blue_[k] - b);
            const auto d = static_cast<std::int16_t>((dr < 0 ? -dr : dr) + (dg < 0 ? -dg : dg) +
                                                     (db < 0 ? -db : db));
            const bool closer = d < least[lane];
            least[lane] = closer ? d : least[lane];
            first[lane] = closer ? index[lane] : first[lane];
            index[lane] = static_cast<std::int16_t>(index[lane] + kLanes);
        }
    }
    // Across the lanes: the least distance, and on a tie the lowest index.
    int bestLane = 0;
    for (int lane = 1; lane < kLanes; ++lane) {
        if (least[lane] < least[bestLane] ||
            (least[lane] == least[bestLane] && first[lane] < first[bestLane])) {
            bestLane = lane;
        }
    }
    return first[bestLane];
}

}  // namespace iw
