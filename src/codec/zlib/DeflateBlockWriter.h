#pragma once
// Writing deflate blocks: a bit writer, and one block of LZ77 symbols written as stored,
// fixed-code or dynamic-code data, whichever comes out smallest.

#include <cstdint>
#include <span>
#include <vector>

#include "codec/zlib/DeflateMatcher.h"

namespace iw::deflate {

class BitWriter {
  public:
    explicit BitWriter(std::vector<std::uint8_t>& out) : out_(out) {}

    // Appends the low `count` bits of `bits` (count <= 32), least significant first.
    void Put(std::uint32_t bits, unsigned count) {
        buffer_ |= std::uint64_t{bits} << used_;
        used_ += count;
        if (used_ >= 32) {
            for (int i = 0; i < 4; ++i)
                out_.push_back(static_cast<std::uint8_t>(buffer_ >> (8 * i)));
            buffer_ >>= 32;
            used_ -= 32;
        }
    }
    // Pads with zero bits to a byte boundary and writes out every pending bit.
    void AlignToByte() {
        while (used_ > 0) {
            out_.push_back(static_cast<std::uint8_t>(buffer_));
            buffer_ >>= 8;
            used_ = used_ > 8 ? used_ - 8 : 0;
        }
        buffer_ = 0;
    }
    // Bits already written past the last byte boundary.
    unsigned PendingBits() const { return used_ % 8; }
    void PutBytes(std::span<const std::uint8_t> bytes) {  // after AlignToByte
        out_.insert(out_.end(), bytes.begin(), bytes.end());
    }

  private:
    std::vector<std::uint8_t>& out_;
    std::uint64_t buffer_ = 0;
    unsigned used_ = 0;
};

// Writes `symbols` as one block (or, when stored, as many as 64 KiB allows), with `raw`
// the input bytes they cover. `final` marks the stream's last block.
void WriteBlock(BitWriter& writer, std::span<const Lz77Symbol> symbols,
                std::span<const std::uint8_t> raw, bool final);

}  // namespace iw::deflate
