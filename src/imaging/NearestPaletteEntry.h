#pragma once
// The nearest palette entry to a colour by city-block distance, the lowest index winning
// a tie. The entries are held as three channel arrays padded to 256 with far-away values,
// so the search runs over a fixed length that the compiler can turn into vector code.

#include <array>
#include <cstdint>
#include <vector>

#include "document/model/Colors.h"

namespace iw {

class NearestPaletteEntry {
  public:
    static constexpr int kMaxEntries = 256;

    // Entries 0..last of `palette` (last < 256) take part.
    NearestPaletteEntry(const std::vector<PackedColor>& palette, int last);

    // Index of the entry with the least distance to (red, green, blue); -1 when there are
    // no entries.
    int Find(int red, int green, int blue) const;

  private:
    // Padding channels: a padded entry is at least 3 * (8000 - 255) away from any colour,
    // more than the largest real distance of 765 and still within 16 bits.
    static constexpr std::int16_t kFarAway = 8000;
    alignas(32) std::array<std::int16_t, kMaxEntries> red_;
    alignas(32) std::array<std::int16_t, kMaxEntries> green_;
    alignas(32) std::array<std::int16_t, kMaxEntries> blue_;
    int count_;
};

}  // namespace iw
