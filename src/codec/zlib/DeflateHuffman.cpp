#include "codec/zlib/DeflateHuffman.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include "codec/zlib/DeflateFormat.h"

namespace iw::deflate {

namespace {

// Depth of every leaf of an optimal Huffman tree over `weights` (ascending), by the
// two-queue method: leaves and merged nodes are both consumed in ascending order.
std::vector<unsigned> HuffmanDepths(const std::vector<std::uint32_t>& weights) {
    const std::size_t n = weights.size();
    std::vector<std::uint64_t> nodeWeight(n - 1);
    std::vector<std::size_t> parent(2 * n - 1);  // leaves 0..n-1, inner nodes n..2n-2
    std::size_t leaf = 0, inner = 0, made = 0;
    auto takeSmallest = [&]() {
        if (leaf < n && (inner >= made || weights[leaf] <= nodeWeight[inner])) {
            const std::size_t taken = leaf++;
            return std::pair<std::uint64_t, std::size_t>{weights[taken], taken};
        }
        const std::size_t node = n + inner;
        return std::pair<std::uint64_t, std::size_t>{nodeWeight[inner++], node};
    };
    while (made < n - 1) {
        const auto a = takeSmallest();
        const auto b = takeSmallest();
        nodeWeight[made] = a.first + b.first;
        parent[a.second] = n + made;
        parent[b.second] = n + made;
        ++made;
    }
    // The root is the last inner node; depths from the root down.
    std::vector<unsigned> depth(2 * n - 1, 0);
    for (std::size_t node = 2 * n - 2; node-- > 0;)
        depth[node] = depth[parent[node]] + 1;
    return {depth.begin(), depth.begin() + static_cast<std::ptrdiff_t>(n)};
}

}  // namespace

void BuildCodeLengths(std::span<const std::uint32_t> freq, unsigned maxLength,
                      std::span<std::uint8_t> lengths) {
    std::fill(lengths.begin(), lengths.end(), 0);
    std::vector<std::uint16_t> used;
    for (std::size_t s = 0; s < freq.size(); ++s) {
        if (freq[s]) used.push_back(static_cast<std::uint16_t>(s));
    }
    for (std::uint16_t s = 0; used.size() < 2 && s < freq.size(); ++s) {
        if (!freq[s]) used.push_back(s);
    }
    if (used.size() < 2) return;  // a one-symbol alphabet: nothing sensible to build

    // Ascending by frequency (ties by symbol, for reproducible output).
    std::stable_sort(used.begin(), used.end(),
                     [&](std::uint16_t a, std::uint16_t b) { return freq[a] < freq[b]; });
    std::vector<std::uint32_t> weights(used.size());
    for (std::size_t i = 0; i < used.size(); ++i)
        weights[i] = std::max<std::uint32_t>(freq[used[i]], 1);
    const std::vector<unsigned> depth = HuffmanDepths(weights);

    // Count codes per length, fold the ones that are too long into maxLength, then restore
    // the Kraft equality by lengthening the deepest codes that may still grow.
    std::array<unsigned, 64> count{};
    for (unsigned d : depth)
        ++count[std::min(d, 63u)];
    for (unsigned len = maxLength + 1; len < count.size(); ++len) {
        count[maxLength] += count[len];
        count[len] = 0;
    }
    std::uint64_t kraft = 0;
    for (unsigned len = 1; len <= maxLength; ++len)
        kraft += std::uint64_t{count[len]} << (maxLength - len);
    const std::uint64_t full = std::uint64_t{1} << maxLength;
    while (kraft > full) {
        --count[maxLength];
        for (unsigned len = maxLength - 1; len > 0; --len) {
            if (count[len]) {
                --count[len];
                count[len + 1] += 2;
                break;
            }
        }
        --kraft;
    }

    // Longest codes to the rarest symbols. `used` is ascending by frequency.
    std::size_t i = 0;
    for (unsigned len = maxLength; len > 0; --len) {
        for (unsigned k = 0; k < count[len]; ++k)
            lengths[used[i++]] = static_cast<std::uint8_t>(len);
    }
}

void BuildCanonicalCodes(std::span<const std::uint8_t> lengths, std::span<std::uint16_t> codes) {
    std::array<unsigned, kMaxCodeLength + 2> count{};
    for (std::uint8_t len : lengths)
        ++count[len];
    count[0] = 0;
    std::array<unsigned, kMaxCodeLength + 2> next{};
    unsigned code = 0;
    for (unsigned len = 1; len <= kMaxCodeLength; ++len) {
        code = (code + count[len - 1]) << 1;
        next[len] = code;
    }
    for (std::size_t s = 0; s < lengths.size(); ++s) {
        const unsigned len = lengths[s];
        if (!len) {
            codes[s] = 0;
            continue;
        }
        unsigned c = next[len]++;
        unsigned r = 0;
        for (unsigned b = 0; b < len; ++b, c >>= 1)
            r = (r << 1) | (c & 1);
        codes[s] = static_cast<std::uint16_t>(r);
    }
}

}  // namespace iw::deflate
