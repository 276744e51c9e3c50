#pragma once
// LZ77 for the own deflate: hash chains over the whole input and lazy matching (a match
// is taken only when the match starting one byte later is not longer).

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace iw::deflate {

// A literal (distance 0, `value` the byte) or a match (`value` its length, 3..258).
struct Lz77Symbol {
    std::uint16_t distance;
    std::uint16_t value;
};

struct MatchEffort {
    unsigned maxChain;    // candidates tried per position
    unsigned goodLength;  // a previous match this long quarters the search for a longer one
    unsigned niceLength;  // a match this long ends the search
    unsigned maxLazy;     // a match this long is taken without looking one byte further
};

inline constexpr MatchEffort kBestEffort = {4096, 32, 258, 258};

class Lz77Matcher {
  public:
    Lz77Matcher(std::span<const std::uint8_t> data, MatchEffort effort);

    // Appends symbols for the next stretch of input until `symbols` holds `maxSymbols` or
    // the input is used up. Returns the input position reached: every byte before it is
    // covered by the symbols emitted so far.
    std::size_t Parse(std::vector<Lz77Symbol>& symbols, std::size_t maxSymbols);

  private:
    void Insert(std::size_t pos);
    // The longest match at `pos` longer than `better`, as (length, distance); length 0
    // when none.
    void LongestMatch(std::size_t pos, unsigned better, unsigned& length, unsigned& distance) const;

    std::span<const std::uint8_t> data_;
    MatchEffort effort_;
    std::vector<std::int32_t> head_;
    std::vector<std::int32_t> prev_;
    std::size_t pos_ = 0;       // next position to look at
    std::size_t inserted_ = 0;  // positions below this are in the hash chains
    // Lazy state: a match found at pos_ - 1 waiting for the look one byte further.
    bool pending_ = false;
    unsigned pendingLength = 0;
    unsigned pendingDistance = 0;
};

}  // namespace iw::deflate
