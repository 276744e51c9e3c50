#include "codec/zlib/InflateTables.h"

#include <array>

#include "codec/zlib/DeflateFormat.h"

namespace iw::inflate {

namespace {

using namespace iw::deflate;

// What a symbol decodes to, before the code length is filled in.
std::uint32_t SymbolEntry(unsigned symbol, CodeKind kind) {
    switch (kind) {
        case CodeKind::Precode:
            return (symbol << 16) | kEntryLiteral;
        case CodeKind::Dist:
            if (symbol >= kMaxDistUsed) return kEntryInvalid;
            return (static_cast<std::uint32_t>(kDistBase[symbol]) << 16) | kDistExtra[symbol];
        case CodeKind::LitLen:
            if (symbol < 256) return (symbol << 16) | kEntryLiteral;
            if (symbol == kEndOfBlock) return kEntryEnd;
            if (symbol >= kMaxLitLenUsed) return kEntryInvalid;
            return (static_cast<std::uint32_t>(kLengthBase[symbol - 257]) << 16) |
                   kLengthExtra[symbol - 257];
    }
    return kEntryInvalid;
}

// `base` carries the value, kind and extra-bit count; the length goes into bits 8-11 and
// is added to the drop count.
constexpr std::uint32_t WithLength(std::uint32_t base, unsigned length) {
    return base + (length << 8) + length;
}

unsigned Reverse(unsigned code, unsigned length) {
    unsigned r = 0;
    for (unsigned i = 0; i < length; ++i, code >>= 1)
        r = (r << 1) | (code & 1);
    return r;
}

}  // namespace

bool BuildDecodeTable(std::uint32_t* table, std::size_t capacity, const std::uint8_t* lengths,
                      unsigned count, unsigned tableBits, CodeKind kind) {
    std::array<unsigned, kMaxCodeLength + 1> perLength{};
    for (unsigned s = 0; s < count; ++s) {
        if (lengths[s] > kMaxCodeLength) return false;
        ++perLength[lengths[s]];
    }
    perLength[0] = 0;
    unsigned maxLength = 0;
    for (unsigned len = 1; len <= kMaxCodeLength; ++len) {
        if (perLength[len]) maxLength = len;
    }

    const std::size_t primarySize = std::size_t{1} << tableBits;
    if (capacity < primarySize) return false;

    // Kraft sum: `left` counts the codes still free at each length.
    int left = 1;
    for (unsigned len = 1; len <= kMaxCodeLength; ++len) {
        left = 2 * left - static_cast<int>(perLength[len]);
        if (left < 0) return false;  // oversubscribed
    }
    if (left > 0) {
        // Incomplete: zlib allows no code at all or one code of length 1, except in the
        // code-length code.
        if (kind == CodeKind::Precode || maxLength > 1) return false;
        for (std::size_t i = 0; i < primarySize; ++i)
            table[i] = kEntryInvalid | tableBits;
    }
    if (maxLength == 0) return true;

    // Symbols sorted by (length, symbol): canonical order.
    std::array<unsigned, kMaxCodeLength + 2> offset{};
    for (unsigned len = 1; len <= kMaxCodeLength; ++len)
        offset[len + 1] = offset[len] + perLength[len];
    std::array<std::uint16_t, kNumLitLenSymbols> sorted{};
    if (offset[kMaxCodeLength + 1] > sorted.size()) return false;
    for (unsigned s = 0; s < count; ++s) {
        if (lengths[s]) sorted[offset[lengths[s]]++] = static_cast<std::uint16_t>(s);
    }
    const unsigned used = offset[kMaxCodeLength];  // after the loop offset[len] = end of len

    // Canonical codewords, bit-reversed for least-significant-bit-first lookup.
    std::array<std::uint16_t, kNumLitLenSymbols> reversed{};
    {
        unsigned code = 0;
        unsigned prevLength = 0;
        for (unsigned i = 0; i < used; ++i) {
            const unsigned len = lengths[sorted[i]];
            code <<= (len - prevLength);
            prevLength = len;
            reversed[i] = static_cast<std::uint16_t>(Reverse(code, len));
            ++code;
        }
    }

    std::size_t next = primarySize;  // where the next subtable goes
    const unsigned primaryMask = static_cast<unsigned>(primarySize - 1);
    unsigned i = 0;
    for (; i < used && lengths[sorted[i]] <= tableBits; ++i) {
        const unsigned len = lengths[sorted[i]];
        const std::uint32_t entry = WithLength(SymbolEntry(sorted[i], kind), len);
        for (std::size_t slot = reversed[i]; slot < primarySize; slot += std::size_t{1} << len) {
            table[slot] = entry;
        }
    }
    // Longer codes: those sharing their first tableBits bits are neighbours in canonical
    // order, and the last of them is the longest.
    while (i < used) {
        const unsigned prefix = reversed[i] & primaryMask;
        unsigned end = i;
        while (end < used && (reversed[end] & primaryMask) == prefix)
            ++end;
        const unsigned subBits = lengths[sorted[end - 1]] - tableBits;
        const std::size_t subSize = std::size_t{1} << subBits;
        if (next + subSize > capacity) return false;
        table[prefix] =
            (static_cast<std::uint32_t>(next) << 16) | kEntrySubtable | (subBits << 8) | tableBits;
        for (; i < end; ++i) {
            const unsigned len = lengths[sorted[i]] - tableBits;
            const std::uint32_t entry = WithLength(SymbolEntry(sorted[i], kind), len);
            for (std::size_t slot = reversed[i] >> tableBits; slot < subSize;
                 slot += std::size_t{1} << len) {
                table[next + slot] = entry;
            }
        }
        next += subSize;
    }
    return true;
}

const std::uint32_t* FixedLitLenTable() {
    static const auto table = [] {
        std::array<std::uint32_t, kLitLenTableSize> t{};
        std::array<std::uint8_t, kNumLitLenSymbols> lengths{};
        for (unsigned s = 0; s < kNumLitLenSymbols; ++s) {
            lengths[s] = static_cast<std::uint8_t>(FixedLitLenLength(s));
        }
        BuildDecodeTable(t.data(), t.size(), lengths.data(), kNumLitLenSymbols, kLitLenTableBits,
                         CodeKind::LitLen);
        return t;
    }();
    return table.data();
}

const std::uint32_t* FixedDistTable() {
    static const auto table = [] {
        std::array<std::uint32_t, kDistTableSize> t{};
        std::array<std::uint8_t, kNumDistSymbols> lengths{};
        lengths.fill(kFixedDistLength);
        BuildDecodeTable(t.data(), t.size(), lengths.data(), kNumDistSymbols, kDistTableBits,
                         CodeKind::Dist);
        return t;
    }();
    return table.data();
}

}  // namespace iw::inflate
