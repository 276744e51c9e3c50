#include "codec/zlib/DeflateMatcher.h"

#include <algorithm>
#include <cstring>

#include "codec/zlib/DeflateFormat.h"

namespace iw::deflate {

namespace {

constexpr unsigned kHashBits = 16;
constexpr std::size_t kWindowMask = kWindowSize - 1;
// A three-byte match this far back costs more than its literals.
constexpr unsigned kTooFar = 4096;

inline std::uint32_t Hash3(const std::uint8_t* p) {
    const std::uint32_t v = p[0] | (p[1] << 8) | (p[2] << 16);
    return (v * 0x9E3779B1u) >> (32 - kHashBits);
}

inline unsigned MatchLength(const std::uint8_t* a, const std::uint8_t* b, unsigned limit) {
    unsigned n = 0;
    while (n + 8 <= limit) {
        std::uint64_t x, y;
        std::memcpy(&x, a + n, 8);
        std::memcpy(&y, b + n, 8);
        if (const std::uint64_t diff = x ^ y) {
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
            return n + static_cast<unsigned>(__builtin_clzll(diff) >> 3);
#else
            return n + static_cast<unsigned>(__builtin_ctzll(diff) >> 3);
#endif
        }
        n += 8;
    }
    while (n < limit && a[n] == b[n])
        ++n;
    return n;
}

}  // namespace

Lz77Matcher::Lz77Matcher(std::span<const std::uint8_t> data, MatchEffort effort)
    : data_(data),
      effort_(effort),
      head_(std::size_t{1} << kHashBits, -1),
      prev_(kWindowSize, -1) {}

void Lz77Matcher::Insert(std::size_t pos) {
    const std::uint32_t h = Hash3(data_.data() + pos);
    prev_[pos & kWindowMask] = head_[h];
    head_[h] = static_cast<std::int32_t>(pos);
}

void Lz77Matcher::LongestMatch(std::size_t pos, unsigned better, unsigned& length,
                               unsigned& distance) const {
    length = 0;
    distance = 0;
    const std::size_t n = data_.size();
    const unsigned limit = static_cast<unsigned>(std::min<std::size_t>(kMaxMatch, n - pos));
    if (limit < kMinMatch || better >= limit) return;
    const std::uint8_t* const cur = data_.data() + pos;
    // Candidates must lie inside the window; -1 ends a chain.
    const std::int64_t lowest = std::max<std::int64_t>(
        -1, static_cast<std::int64_t>(pos) - static_cast<std::int64_t>(kWindowSize));
    unsigned chain = better >= effort_.goodLength ? effort_.maxChain / 4 : effort_.maxChain;
    unsigned best = better < kMinMatch - 1 ? kMinMatch - 1 : better;
    std::int64_t cand = head_[Hash3(cur)];
    while (cand > lowest && chain-- > 0) {
        const std::uint8_t* const c = data_.data() + cand;
        if (c[best] == cur[best] && c[0] == cur[0] && c[1] == cur[1]) {
            const unsigned len = MatchLength(c, cur, limit);
            if (len > best) {
                best = len;
                length = len;
                distance = static_cast<unsigned>(pos - static_cast<std::size_t>(cand));
                if (len >= effort_.niceLength || len >= limit) break;
            }
        }
        const std::int64_t next = prev_[static_cast<std::size_t>(cand) & kWindowMask];
        if (next >= cand) break;  // the chain has wrapped into newer positions
        cand = next;
    }
}

std::size_t Lz77Matcher::Parse(std::vector<Lz77Symbol>& symbols, std::size_t maxSymbols) {
    const std::size_t n = data_.size();
    const auto literal = [&](std::size_t at) { symbols.push_back({0, data_[at]}); };
    // One step emits at most two symbols. A pending match always ends at least two bytes
    // before the end, so the input never ends with one still pending.
    while (symbols.size() + 2 <= maxSymbols && pos_ < n) {
        // Hash chains hold every position before pos_ that has three bytes.
        while (inserted_ < pos_ && inserted_ + kMinMatch <= n)
            Insert(inserted_++);
        if (inserted_ < pos_) inserted_ = pos_;

        unsigned length = 0, distance = 0;
        const unsigned prevLength = pending_ ? pendingLength : 0;
        if (!pending_ || prevLength < effort_.maxLazy) {
            LongestMatch(pos_, prevLength, length, distance);
            if (length == kMinMatch && distance > kTooFar) length = 0;
        }
        if (pending_ && length <= prevLength) {
            // The match at pos_ - 1 stands: emit it and skip the bytes it covers.
            symbols.push_back({static_cast<std::uint16_t>(pendingDistance),
                               static_cast<std::uint16_t>(pendingLength)});
            pos_ = pos_ - 1 + pendingLength;
            pending_ = false;
            continue;
        }
        if (pending_) literal(pos_ - 1);  // a longer match starts here: pos_ - 1 is a literal
        if (length >= kMinMatch) {
            pending_ = true;
            pendingLength = length;
            pendingDistance = distance;
            if (length >= effort_.maxLazy) {
                symbols.push_back(
                    {static_cast<std::uint16_t>(distance), static_cast<std::uint16_t>(length)});
                pos_ += length;
                pending_ = false;
                continue;
            }
        } else {
            pending_ = false;
            literal(pos_);
        }
        ++pos_;
    }
    return pending_ ? pos_ - 1 : pos_;
}

}  // namespace iw::deflate
