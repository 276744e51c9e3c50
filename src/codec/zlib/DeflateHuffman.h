#pragma once
// Huffman codes for the own deflate: length-limited code lengths from symbol frequencies,
// and the canonical codes for those lengths.

#include <cstdint>
#include <span>

namespace iw::deflate {

// Code lengths for `freq` (0 for unused symbols), none longer than `maxLength`. When fewer
// than two symbols are used, the first unused ones get codes too, so that every code has
// at least two codes of length >= 1 (what older decoders expect).
void BuildCodeLengths(std::span<const std::uint32_t> freq, unsigned maxLength,
                      std::span<std::uint8_t> lengths);

// Canonical codes for `lengths`, bit-reversed for writing least significant bit first.
void BuildCanonicalCodes(std::span<const std::uint8_t> lengths, std::span<std::uint16_t> codes);

}  // namespace iw::deflate
