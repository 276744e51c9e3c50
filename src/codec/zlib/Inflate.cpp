// The own inflate. A 64-bit bit buffer refilled eight bytes at a time, table-driven
// Huffman decoding (InflateTables.h) and match copies in 8- and 16-byte steps into one
// flat output buffer that grows up to the caller's limit.
//
// Near the end of the input the buffer is padded with zero bytes so that the decoding
// loop needs no per-bit checks; the padding is counted, and consuming any of it means the
// stream was truncated.

#include "codec/zlib/Inflate.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "codec/zlib/Checksums.h"
#include "codec/zlib/DeflateFormat.h"
#include "codec/zlib/InflateTables.h"

namespace iw {

namespace {

using namespace iw::inflate;
using deflate::kPrecodeOrder;

inline std::uint64_t Load64(const std::uint8_t* p) {
    std::uint64_t v;
    std::memcpy(&v, p, 8);
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
    v = __builtin_bswap64(v);
#endif
    return v;
}

inline std::uint64_t Mask(unsigned bits) {
    return (std::uint64_t{1} << bits) - 1;
}

// Copies a match of `length` bytes from `distance` back. May write up to 16 bytes past
// the match's end; the caller leaves that much room.
inline void CopyMatch(std::uint8_t* op, std::size_t distance, std::size_t length) {
    const std::uint8_t* src = op - distance;
    std::uint8_t* const end = op + length;
    if (distance >= 16) {
        do {
            std::memcpy(op, src, 16);
            op += 16;
            src += 16;
        } while (op < end);
    } else if (distance >= 8) {
        do {
            std::memcpy(op, src, 8);
            op += 8;
            src += 8;
        } while (op < end);
    } else {
        // Short periods (runs of one pixel or one colour): a 16-byte pattern that starts
        // in phase, advanced by the largest multiple of the period that fits in 16.
        std::uint8_t pattern[16];
        for (std::size_t i = 0; i < 16; ++i)
            pattern[i] = src[i % distance];
        const std::size_t step = 16 - 16 % distance;
        do {
            std::memcpy(op, pattern, 16);
            op += step;
        } while (op < end);
    }
}

class Inflater {
  public:
    Inflater(std::span<const std::uint8_t> in, std::size_t maxOutput,
             std::vector<std::uint8_t>& out)
        : in_(in.data()),
          inEnd_(in.data() + in.size()),
          inSize_(in.size()),
          limit_(maxOutput),
          out_(out) {}

    InflateStatus Run();

  private:
    static constexpr std::size_t kSlop = 16;  // room CopyMatch may write past a match

    // Puts at least 56 bits into the buffer (zero padding past the end of the input).
    void Refill() {
        if (inEnd_ - in_ >= 8) {
            bitbuf_ |= Load64(in_) << bitcount_;
            in_ += (63 - bitcount_) >> 3;
            bitcount_ |= 56;
        } else {
            while (bitcount_ < 56) {
                if (in_ < inEnd_) {
                    bitbuf_ |= std::uint64_t{*in_++} << bitcount_;
                } else {
                    ++padding_;
                }
                bitcount_ += 8;
            }
        }
    }
    std::uint32_t Bits(unsigned n) const { return static_cast<std::uint32_t>(bitbuf_ & Mask(n)); }
    void Drop(unsigned n) {
        bitbuf_ >>= n;
        bitcount_ -= n;
    }
    std::uint32_t Take(unsigned n) {
        if (bitcount_ < n) Refill();
        const std::uint32_t v = Bits(n);
        Drop(n);
        return v;
    }
    // True when padding bytes were consumed, i.e. the stream is longer than the input.
    bool PaddingConsumed() const { return padding_ * 8 > bitcount_; }
    // Padding beyond one buffer's worth can only feed a decoder that is lost in a cut
    // stream; stop it early.
    bool TooMuchPadding() const { return padding_ > 8; }

    InflateStatus Fail(InflateStatus status) const {
        return PaddingConsumed() || TooMuchPadding() ? InflateStatus::TruncatedInput : status;
    }

    // Hands whole bytes still in the bit buffer back to the input (after byte alignment).
    bool ReturnBufferedBytes() {
        Drop(bitcount_ & 7);
        if (PaddingConsumed()) return false;
        in_ -= (bitcount_ >> 3) - padding_;
        bitbuf_ = 0;
        bitcount_ = 0;
        padding_ = 0;
        return true;
    }

    bool Grow(std::size_t needed);
    InflateStatus StoredBlock();
    InflateStatus DynamicTables();
    InflateStatus HuffmanBlock(const std::uint32_t* litlen, const std::uint32_t* dist);

    const std::uint8_t* in_;
    const std::uint8_t* inEnd_;
    std::size_t inSize_;
    std::uint64_t bitbuf_ = 0;
    unsigned bitcount_ = 0;
    unsigned padding_ = 0;

    std::size_t limit_;
    std::vector<std::uint8_t>& out_;
    std::uint8_t* base_ = nullptr;
    std::uint8_t* op_ = nullptr;
    std::uint8_t* oend_ = nullptr;

    struct Tables {
        std::uint32_t litlen[kLitLenTableSize];
        std::uint32_t dist[kDistTableSize];
        std::uint32_t precode[kPrecodeTableSize];
    };
    std::unique_ptr<Tables> tables_;
};

// Makes room for `needed` more bytes (more when the limit allows: the buffer doubles).
bool Inflater::Grow(std::size_t needed) {
    const std::size_t used = static_cast<std::size_t>(op_ - base_);
    if (needed > limit_ - used) return false;
    const std::size_t size = out_.size();
    if (size >= limit_) return false;
    std::size_t target = std::max({size * 2, used + needed, std::size_t{1} << 16});
    target = std::min(target, limit_);
    out_.resize(target);
    base_ = out_.data();
    op_ = base_ + used;
    oend_ = base_ + target;
    return true;
}

InflateStatus Inflater::StoredBlock() {
    if (!ReturnBufferedBytes()) return InflateStatus::TruncatedInput;
    if (inEnd_ - in_ < 4) return InflateStatus::TruncatedInput;
    const unsigned len = in_[0] | (in_[1] << 8);
    const unsigned nlen = in_[2] | (in_[3] << 8);
    in_ += 4;
    if (len != (~nlen & 0xFFFF)) return InflateStatus::BadStoredLength;
    const std::size_t available = static_cast<std::size_t>(inEnd_ - in_);
    const std::size_t n = std::min<std::size_t>(len, available);
    if (static_cast<std::size_t>(oend_ - op_) < n && !Grow(n)) return InflateStatus::OutputLimit;
    if (n) std::memcpy(op_, in_, n);  // op_ is null while nothing has been allowed
    op_ += n;
    in_ += n;
    return n < len ? InflateStatus::TruncatedInput : InflateStatus::Ok;
}

InflateStatus Inflater::DynamicTables() {
    using namespace iw::deflate;
    Refill();
    const unsigned nlen = Take(5) + 257;
    const unsigned ndist = Take(5) + 1;
    const unsigned nprecode = Take(4) + 4;
    if (nlen > kMaxLitLenUsed || ndist > kMaxDistUsed) return Fail(InflateStatus::BadCodeLengths);

    std::uint8_t precodeLengths[kNumPrecodeSymbols] = {};
    Refill();  // 19 * 3 = 57 bits at most: two refills
    for (unsigned i = 0; i < nprecode; ++i)
        precodeLengths[kPrecodeOrder[i]] = static_cast<std::uint8_t>(Take(3));
    if (!BuildDecodeTable(tables_->precode, kPrecodeTableSize, precodeLengths, kNumPrecodeSymbols,
                          kPrecodeTableBits, CodeKind::Precode)) {
        return Fail(InflateStatus::BadCodeLengths);
    }

    std::uint8_t lengths[kMaxLitLenUsed + kMaxDistUsed] = {};
    const unsigned total = nlen + ndist;
    for (unsigned i = 0; i < total;) {
        Refill();
        if (TooMuchPadding()) return InflateStatus::TruncatedInput;
        const std::uint32_t entry = tables_->precode[Bits(kPrecodeTableBits)];
        Drop(EntryDrop(entry));
        const unsigned symbol = EntryValue(entry);
        if (symbol < 16) {
            lengths[i++] = static_cast<std::uint8_t>(symbol);
            continue;
        }
        unsigned repeat;
        std::uint8_t value = 0;
        if (symbol == 16) {
            if (i == 0) return Fail(InflateStatus::BadCodeLengths);  // nothing to repeat
            value = lengths[i - 1];
            repeat = 3 + Take(2);
        } else if (symbol == 17) {
            repeat = 3 + Take(3);
        } else {
            repeat = 11 + Take(7);
        }
        if (repeat > total - i) return Fail(InflateStatus::BadCodeLengths);
        std::memset(lengths + i, value, repeat);
        i += repeat;
    }
    if (lengths[deflate::kEndOfBlock] == 0) return Fail(InflateStatus::BadCodeLengths);
    if (!BuildDecodeTable(tables_->litlen, kLitLenTableSize, lengths, nlen, kLitLenTableBits,
                          CodeKind::LitLen) ||
        !BuildDecodeTable(tables_->dist, kDistTableSize, lengths + nlen, ndist, kDistTableBits,
                          CodeKind::Dist)) {
        return Fail(InflateStatus::BadCodeLengths);
    }
    return InflateStatus::Ok;
}

InflateStatus Inflater::HuffmanBlock(const std::uint32_t* litlen, const std::uint32_t* dist) {
    constexpr std::uint64_t litMask = (1u << kLitLenTableBits) - 1;
    constexpr std::uint64_t distMask = (1u << kDistTableBits) - 1;
    for (;;) {
        // 56 bits cover a literal/length code with its extra bits (15 + 5) and a distance
        // code with its extra bits (15 + 13).
        Refill();
        if (TooMuchPadding()) return InflateStatus::TruncatedInput;
        std::uint32_t entry = litlen[bitbuf_ & litMask];
        if (entry & kEntryLiteral) {
            Drop(EntryDrop(entry));
            if (op_ == oend_ && !Grow(1)) return Fail(InflateStatus::OutputLimit);
            *op_++ = static_cast<std::uint8_t>(EntryValue(entry));
            // A second literal fits in what is left of the 56 bits.
            entry = litlen[bitbuf_ & litMask];
            if (!(entry & kEntryLiteral)) continue;
            Drop(EntryDrop(entry));
            if (op_ == oend_ && !Grow(1)) return Fail(InflateStatus::OutputLimit);
            *op_++ = static_cast<std::uint8_t>(EntryValue(entry));
            continue;
        }
        if (entry & kEntrySubtable) {
            Drop(kLitLenTableBits);
            entry = litlen[EntryValue(entry) + Bits(EntryLength(entry))];
            if (entry & kEntryLiteral) {
                Drop(EntryDrop(entry));
                if (op_ == oend_ && !Grow(1)) return Fail(InflateStatus::OutputLimit);
                *op_++ = static_cast<std::uint8_t>(EntryValue(entry));
                continue;
            }
        }
        if (entry & (kEntryEnd | kEntryInvalid)) {
            Drop(EntryDrop(entry));
            if (entry & kEntryInvalid) return Fail(InflateStatus::BadSymbol);
            return PaddingConsumed() ? InflateStatus::TruncatedInput : InflateStatus::Ok;
        }
        const std::size_t length =
            EntryValue(entry) +
            static_cast<std::size_t>(Bits(EntryDrop(entry)) >> EntryLength(entry));
        Drop(EntryDrop(entry));

        entry = dist[bitbuf_ & distMask];
        if (entry & kEntrySubtable) {
            Drop(kDistTableBits);
            entry = dist[EntryValue(entry) + Bits(EntryLength(entry))];
        }
        if (entry & kEntryInvalid) return Fail(InflateStatus::BadSymbol);
        const std::size_t distance =
            EntryValue(entry) +
            static_cast<std::size_t>(Bits(EntryDrop(entry)) >> EntryLength(entry));
        Drop(EntryDrop(entry));
        if (distance > static_cast<std::size_t>(op_ - base_))
            return Fail(InflateStatus::DistanceTooFar);

        std::size_t room = static_cast<std::size_t>(oend_ - op_);
        if (room < length) {
            if (!Grow(length)) return Fail(InflateStatus::OutputLimit);
            room = static_cast<std::size_t>(oend_ - op_);
        }
        if (room >= length + kSlop) {
            CopyMatch(op_, distance, length);
        } else {
            // Near the end of the buffer: byte by byte (the source may overlap the copy).
            const std::uint8_t* src = op_ - distance;
            for (std::size_t i = 0; i < length; ++i)
                op_[i] = src[i];
        }
        op_ += length;
    }
}

InflateStatus Inflater::Run() {
    out_.clear();
    // Deflate expands 1032:1 at most; start with all of that when it is modest, so that
    // the usual case (the caller knows the size) needs one allocation.
    const std::size_t most =
        inSize_ > (limit_ / 1032) ? limit_ : std::min(limit_, inSize_ * 1032 + 64);
    const std::size_t first =
        most <= (std::size_t{16} << 20) ? most : std::max(inSize_ * 4, std::size_t{1} << 20);
    out_.resize(first);
    base_ = op_ = out_.data();
    oend_ = base_ + out_.size();

    InflateStatus status = InflateStatus::Ok;
    auto finish = [&](InflateStatus s) {
        out_.resize(static_cast<std::size_t>(op_ - base_));
        return s;
    };

    // RFC 1950 header: CM 8 (deflate), CINFO <= 7 (window up to 32K), FCHECK makes
    // CMF * 256 + FLG a multiple of 31, FDICT 0 (a preset dictionary cannot be supplied).
    if (inEnd_ - in_ < 2) return finish(InflateStatus::TruncatedInput);
    const unsigned cmf = in_[0];
    const unsigned flg = in_[1];
    if ((cmf & 0x0F) != 8 || (cmf >> 4) > 7 || (cmf * 256 + flg) % 31 != 0 || (flg & 0x20)) {
        return finish(InflateStatus::BadHeader);
    }
    in_ += 2;

    bool final = false;
    while (!final) {
        Refill();
        final = Take(1) != 0;
        const unsigned type = Take(2);
        if (PaddingConsumed()) return finish(InflateStatus::TruncatedInput);
        switch (type) {
            case 0:
                status = StoredBlock();
                break;
            case 1:
                status = HuffmanBlock(FixedLitLenTable(), FixedDistTable());
                break;
            case 2:
                if (!tables_) tables_ = std::make_unique<Tables>();
                status = DynamicTables();
                if (status == InflateStatus::Ok)
                    status = HuffmanBlock(tables_->litlen, tables_->dist);
                break;
            default:
                status = InflateStatus::BadBlockType;
                break;
        }
        if (status != InflateStatus::Ok) return finish(status);
    }

    // Adler-32 of the uncompressed data, most significant byte first.
    if (!ReturnBufferedBytes() || inEnd_ - in_ < 4) return finish(InflateStatus::TruncatedInput);
    const std::uint32_t stored = (std::uint32_t{in_[0]} << 24) | (std::uint32_t{in_[1]} << 16) |
                                 (std::uint32_t{in_[2]} << 8) | in_[3];
    finish(InflateStatus::Ok);
    return Adler32(1, out_) == stored ? InflateStatus::Ok : InflateStatus::BadChecksum;
}

}  // namespace

InflateStatus InflateZlib(std::span<const std::uint8_t> in, std::size_t maxOutput,
                          std::vector<std::uint8_t>& out) {
    return Inflater(in, maxOutput, out).Run();
}

}  // namespace iw
