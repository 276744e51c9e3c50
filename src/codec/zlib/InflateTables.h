#pragma once
// Huffman decode tables for the own inflate.
//
// A table is indexed by the next bits of the stream (least significant bit first, as
// deflate packs codes bit-reversed). The primary table has 2^tableBits entries; codes
// longer than that continue in a subtable that the primary entry points to.
//
// Entry layout (32 bits):
//   bits 0-7    bits to drop in total: the code's length plus, for lengths and distances,
//               the extra bits (for a subtable pointer: the primary bits)
//   bits 8-11   the code's length within this table (for a subtable pointer: the
//               subtable's index bits), so extra bits = (bits & mask(total)) >> length
//   bits 12-15  kind: literal, end of block, subtable pointer, invalid; none for a
//               length or distance
//   bits 16-31  literal byte, base length, base distance or subtable offset

#include <cstddef>
#include <cstdint>

namespace iw::inflate {

inline constexpr std::uint32_t kEntryLiteral = 1u << 12;
inline constexpr std::uint32_t kEntryEnd = 1u << 13;
inline constexpr std::uint32_t kEntrySubtable = 1u << 14;
inline constexpr std::uint32_t kEntryInvalid = 1u << 15;

inline constexpr unsigned kLitLenTableBits = 11;
inline constexpr unsigned kDistTableBits = 8;
inline constexpr unsigned kPrecodeTableBits = 7;
// The most entries a complete code can need, primary table included (counted for 288
// symbols at 11 primary bits, 32 at 8, 19 at 7; 15-bit codes at most).
inline constexpr std::size_t kLitLenTableSize = 2342;
inline constexpr std::size_t kDistTableSize = 402;
inline constexpr std::size_t kPrecodeTableSize = 128;

enum class CodeKind { LitLen, Dist, Precode };

constexpr unsigned EntryDrop(std::uint32_t e) {
    return e & 0xFF;
}
constexpr unsigned EntryLength(std::uint32_t e) {
    return (e >> 8) & 0xF;
}
constexpr unsigned EntryValue(std::uint32_t e) {
    return e >> 16;
}

// Builds the table for the code lengths `lengths[0..count)`. False for an oversubscribed
// set, and for an incomplete one except a lone code of length 1 (or no code at all) in a
// literal/length or distance code, which zlib accepts too; the unused slots decode as
// invalid. Checking that the end-of-block code exists is the caller's job.
bool BuildDecodeTable(std::uint32_t* table, std::size_t capacity, const std::uint8_t* lengths,
                      unsigned count, unsigned tableBits, CodeKind kind);

// The tables of block type 1, built once.
const std::uint32_t* FixedLitLenTable();
const std::uint32_t* FixedDistTable();

}  // namespace iw::inflate
