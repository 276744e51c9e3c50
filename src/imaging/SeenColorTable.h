#pragma once
// The palette builder's seen-colour table: one bit per packed colour value, indexed
// directly by the value (0 .. 17,000,000, which covers every 24-bit colour), so that
// counting costs one look-up per pixel. About 2 MB; the builder allocates it once per
// palette build and clears it at the start of each counting pass.

#include <algorithm>
#include <cstdint>
#include <vector>

#include "document/model/Colors.h"

namespace iw {

class SeenColorTable {
  public:
    static constexpr std::int32_t kEntries = 17'000'001;

    SeenColorTable() : words_((kEntries + 63) / 64, 0) {}

    void Clear() { std::fill(words_.begin(), words_.end(), 0); }

    // Marks `color` as seen; true when it was not seen before. `color` must be a colour
    // value (0 .. kEntries - 1), never a marker.
    bool Insert(PackedColor color) {
        std::uint64_t& word = words_[static_cast<std::size_t>(color) >> 6];
        const std::uint64_t bit = std::uint64_t{1} << (static_cast<unsigned>(color) & 63u);
        const bool fresh = (word & bit) == 0;
        word |= bit;
        return fresh;
    }

    bool Contains(PackedColor color) const {
        return (words_[static_cast<std::size_t>(color) >> 6] >>
                (static_cast<unsigned>(color) & 63u)) &
               1u;
    }

  private:
    std::vector<std::uint64_t> words_;
};

}  // namespace iw
