#pragma once
// Hand-made deflate streams for the inflate tests: a bit writer in the manner of
// libdeflate's put_bits, with helpers for the fixed code and for dynamic block headers,
// so that each malformed stream is spelled out field by field.

#include <cstdint>
#include <span>
#include <vector>

#include "codec/Compression.h"

namespace iw::test {

// Canonical codes (most significant bit first, as RFC 1951 writes them down) for lengths.
inline std::vector<std::uint32_t> CanonicalCodes(const std::vector<std::uint8_t>& lengths) {
    unsigned count[16] = {};
    for (auto len : lengths)
        ++count[len];
    count[0] = 0;
    unsigned next[16] = {};
    unsigned code = 0;
    for (unsigned len = 1; len < 16; ++len) {
        code = (code + count[len - 1]) << 1;
        next[len] = code;
    }
    std::vector<std::uint32_t> codes(lengths.size());
    for (std::size_t s = 0; s < lengths.size(); ++s) {
        if (lengths[s]) codes[s] = next[lengths[s]]++;
    }
    return codes;
}

class StreamBuilder {
  public:
    // Starts with the zlib header 78 01 unless told otherwise.
    explicit StreamBuilder(bool zlibHeader = true) {
        if (zlibHeader) bytes_ = {0x78, 0x01};
    }

    // `count` bits of `value`, least significant first (header fields, extra bits).
    StreamBuilder& Bits(std::uint32_t value, unsigned count) {
        for (unsigned i = 0; i < count; ++i)
            PutBit(i < 32 ? (value >> i) & 1 : 0);  // zeros past 32
        return *this;
    }
    // A Huffman code: its most significant bit goes first.
    StreamBuilder& Code(std::uint32_t code, unsigned length) {
        for (unsigned i = length; i-- > 0;)
            PutBit((code >> i) & 1);
        return *this;
    }
    StreamBuilder& Header(bool final, unsigned type) {
        return Bits(final ? 1 : 0, 1).Bits(type, 2);
    }
    StreamBuilder& Align() {
        used_ = 0;
        return *this;
    }
    StreamBuilder& Bytes(std::span<const std::uint8_t> data) {
        Align();
        bytes_.insert(bytes_.end(), data.begin(), data.end());
        return *this;
    }
    StreamBuilder& U16(unsigned v) {
        const std::uint8_t b[2] = {static_cast<std::uint8_t>(v), static_cast<std::uint8_t>(v >> 8)};
        return Bytes(b);
    }
    // Stored block with the given LEN and NLEN and payload.
    StreamBuilder& Stored(bool final, std::span<const std::uint8_t> data, unsigned len,
                          unsigned nlen) {
        Header(final, 0);
        return U16(len).U16(nlen).Bytes(data);
    }
    StreamBuilder& Stored(bool final, std::span<const std::uint8_t> data) {
        return Stored(final, data, static_cast<unsigned>(data.size()),
                      static_cast<unsigned>(~data.size() & 0xFFFF));
    }

    // Fixed code: literal/length symbol and distance symbol.
    StreamBuilder& FixedSymbol(unsigned s) {
        if (s < 144) return Code(0x30 + s, 8);
        if (s < 256) return Code(0x190 + (s - 144), 9);
        if (s < 280) return Code(s - 256, 7);
        return Code(0xC0 + (s - 280), 8);
    }
    StreamBuilder& FixedDistance(unsigned symbol) { return Code(symbol, 5); }
    StreamBuilder& FixedLiterals(std::span<const std::uint8_t> text) {
        for (auto c : text)
            FixedSymbol(c);
        return *this;
    }

    // A dynamic block header for the given code lengths, the code lengths themselves sent
    // one by one with a complete code-length code (thirteen 4-bit codes, six 5-bit ones).
    StreamBuilder& DynamicHeader(bool final, const std::vector<std::uint8_t>& litlen,
                                 const std::vector<std::uint8_t>& dist) {
        Header(final, 2);
        Bits(static_cast<unsigned>(litlen.size() - 257), 5);
        Bits(static_cast<unsigned>(dist.size() - 1), 5);
        Bits(19 - 4, 4);
        static const unsigned order[19] = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                           11, 4,  12, 3, 13, 2, 14, 1, 15};
        std::vector<std::uint8_t> pre(19);
        for (unsigned s = 0; s < 19; ++s)
            pre[s] = s < 13 ? 4 : 5;
        for (unsigned i = 0; i < 19; ++i)
            Bits(pre[order[i]], 3);
        const auto codes = CanonicalCodes(pre);
        for (auto len : litlen)
            Code(codes[len], pre[len]);
        for (auto len : dist)
            Code(codes[len], pre[len]);
        return *this;
    }

    // The zlib trailer: Adler-32 of `expected`, most significant byte first.
    StreamBuilder& Trailer(std::span<const std::uint8_t> expected) {
        Align();
        const std::uint32_t a = Adler32(1, expected);
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes_.push_back(static_cast<std::uint8_t>(a >> shift));
        return *this;
    }

    const std::vector<std::uint8_t>& Data() const { return bytes_; }

  private:
    void PutBit(unsigned bit) {
        if (used_ == 0) bytes_.push_back(0);
        bytes_.back() |= static_cast<std::uint8_t>(bit << used_);
        used_ = (used_ + 1) % 8;
    }

    std::vector<std::uint8_t> bytes_;
    unsigned used_ = 0;  // bits used in the last byte, 0 when it is full or absent
};

}  // namespace iw::test
