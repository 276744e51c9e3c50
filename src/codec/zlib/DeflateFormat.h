#pragma once
// Constants of the deflate format (RFC 1951) shared by the own inflate and deflate.

#include <array>
#include <cstdint>

namespace iw::deflate {

inline constexpr unsigned kMaxCodeLength = 15;      // literal/length and distance codes
inline constexpr unsigned kMaxPrecodeLength = 7;    // the code-length code
inline constexpr unsigned kNumLitLenSymbols = 288;  // 286 and 287 take part in the fixed code only
inline constexpr unsigned kNumDistSymbols = 32;     // 30 and 31 likewise
inline constexpr unsigned kMaxLitLenUsed = 286;     // HLIT + 257 may not pass this
inline constexpr unsigned kMaxDistUsed = 30;        // HDIST + 1 may not pass this
inline constexpr unsigned kNumPrecodeSymbols = 19;
inline constexpr unsigned kEndOfBlock = 256;
inline constexpr unsigned kMinMatch = 3;
inline constexpr unsigned kMaxMatch = 258;
inline constexpr unsigned kWindowSize = 32768;

// "The code length repeat codes ... are sent in this order."
inline constexpr std::array<std::uint8_t, kNumPrecodeSymbols> kPrecodeOrder = {
    16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};

// Length symbols 257..285: base length and extra bits.
inline constexpr std::array<std::uint16_t, 29> kLengthBase = {
    3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
    31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
inline constexpr std::array<std::uint8_t, 29> kLengthExtra = {
    0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};

// Distance symbols 0..29: base distance and extra bits.
inline constexpr std::array<std::uint16_t, 30> kDistBase = {
    1,   2,   3,   4,   5,   7,    9,    13,   17,   25,   33,   49,   65,    97,    129,
    193, 257, 385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
inline constexpr std::array<std::uint8_t, 30> kDistExtra = {0, 0, 0,  0,  1,  1,  2,  2,  3,  3,
                                                            4, 4, 5,  5,  6,  6,  7,  7,  8,  8,
                                                            9, 9, 10, 10, 11, 11, 12, 12, 13, 13};

// The fixed code's lengths (block type 1).
constexpr unsigned FixedLitLenLength(unsigned symbol) {
    return symbol < 144 ? 8 : symbol < 256 ? 9 : symbol < 280 ? 7 : 8;
}
inline constexpr unsigned kFixedDistLength = 5;

}  // namespace iw::deflate
