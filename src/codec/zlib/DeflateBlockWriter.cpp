#include "codec/zlib/DeflateBlockWriter.h"

#include <algorithm>
#include <array>

#include "codec/zlib/DeflateFormat.h"
#include "codec/zlib/DeflateHuffman.h"

namespace iw::deflate {

namespace {

struct SymbolTables {
    std::array<std::uint16_t, kMaxMatch + 1> lengthSymbol{};  // 257..285 per length
    std::array<std::uint8_t, 512> distSymbol{};               // see DistSymbol
};

constexpr SymbolTables MakeSymbolTables() {
    SymbolTables t{};
    for (unsigned s = 0; s < 29; ++s) {
        const unsigned end = s == 28 ? kMaxMatch + 1 : kLengthBase[s + 1];
        for (unsigned len = kLengthBase[s]; len < end && len <= kMaxMatch; ++len) {
            t.lengthSymbol[len] = static_cast<std::uint16_t>(257 + s);
        }
    }
    // 258 has its own symbol, not 284 + 31.
    t.lengthSymbol[kMaxMatch] = 285;
    for (unsigned s = 0; s < 30; ++s) {
        const unsigned end = s == 29 ? 32769 : kDistBase[s + 1];
        for (unsigned d = kDistBase[s]; d < end; ++d) {
            if (d <= 256)
                t.distSymbol[d - 1] = static_cast<std::uint8_t>(s);
            else
                t.distSymbol[256 + ((d - 1) >> 7)] = static_cast<std::uint8_t>(s);
        }
    }
    return t;
}

constexpr SymbolTables kTables = MakeSymbolTables();

inline unsigned DistSymbol(unsigned distance) {
    return distance <= 256 ? kTables.distSymbol[distance - 1]
                           : kTables.distSymbol[256 + ((distance - 1) >> 7)];
}

// One code-length code item: symbol 0..18 and, for 16-18, the repeat count's extra bits.
struct PrecodeItem {
    std::uint8_t symbol;
    std::uint8_t extra;
};

// Run-length codes the concatenated literal/length and distance code lengths.
std::vector<PrecodeItem> RunLengthCode(std::span<const std::uint8_t> lengths) {
    std::vector<PrecodeItem> items;
    std::size_t i = 0;
    while (i < lengths.size()) {
        const std::uint8_t len = lengths[i];
        std::size_t run = 1;
        while (i + run < lengths.size() && lengths[i + run] == len)
            ++run;
        std::size_t left = run;
        if (len == 0) {
            while (left >= 11) {
                const std::size_t n = std::min<std::size_t>(left, 138);
                items.push_back({18, static_cast<std::uint8_t>(n - 11)});
                left -= n;
            }
            if (left >= 3) {
                items.push_back({17, static_cast<std::uint8_t>(left - 3)});
                left = 0;
            }
        } else {
            items.push_back({len, 0});
            --left;
            while (left >= 3) {
                const std::size_t n = std::min<std::size_t>(left, 6);
                items.push_back({16, static_cast<std::uint8_t>(n - 3)});
                left -= n;
            }
        }
        for (; left > 0; --left)
            items.push_back({len, 0});
        i += run;
    }
    return items;
}

constexpr unsigned PrecodeExtraBits(unsigned symbol) {
    return symbol == 16 ? 2 : symbol == 17 ? 3 : symbol == 18 ? 7 : 0;
}

struct Code {
    std::array<std::uint8_t, kNumLitLenSymbols> litlenLength{};
    std::array<std::uint16_t, kNumLitLenSymbols> litlenCode{};
    std::array<std::uint8_t, kNumDistSymbols> distLength{};
    std::array<std::uint16_t, kNumDistSymbols> distCode{};
};

const Code& FixedCode() {
    static const Code code = [] {
        Code c;
        for (unsigned s = 0; s < kNumLitLenSymbols; ++s)
            c.litlenLength[s] = static_cast<std::uint8_t>(FixedLitLenLength(s));
        c.distLength.fill(kFixedDistLength);
        BuildCanonicalCodes(c.litlenLength, c.litlenCode);
        BuildCanonicalCodes(c.distLength, c.distCode);
        return c;
    }();
    return code;
}

// Bits of the symbols under `code`, extra bits included.
std::uint64_t DataBits(const Code& code, std::span<const std::uint32_t> litFreq,
                       std::span<const std::uint32_t> distFreq) {
    std::uint64_t bits = 0;
    for (unsigned s = 0; s < kMaxLitLenUsed; ++s) {
        bits += std::uint64_t{litFreq[s]} *
                (code.litlenLength[s] + (s > 256 ? kLengthExtra[s - 257] : 0));
    }
    for (unsigned s = 0; s < kMaxDistUsed; ++s) {
        bits += std::uint64_t{distFreq[s]} * (code.distLength[s] + kDistExtra[s]);
    }
    return bits;
}

void WriteSymbols(BitWriter& w, const Code& code, std::span<const Lz77Symbol> symbols) {
    for (const Lz77Symbol& sym : symbols) {
        if (sym.distance == 0) {
            w.Put(code.litlenCode[sym.value], code.litlenLength[sym.value]);
            continue;
        }
        const unsigned ls = kTables.lengthSymbol[sym.value];
        w.Put(code.litlenCode[ls], code.litlenLength[ls]);
        if (const unsigned extra = kLengthExtra[ls - 257])
            w.Put(sym.value - kLengthBase[ls - 257], extra);
        const unsigned ds = DistSymbol(sym.distance);
        w.Put(code.distCode[ds], code.distLength[ds]);
        if (const unsigned extra = kDistExtra[ds]) w.Put(sym.distance - kDistBase[ds], extra);
    }
    w.Put(code.litlenCode[kEndOfBlock], code.litlenLength[kEndOfBlock]);
}

void WriteStored(BitWriter& w, std::span<const std::uint8_t> raw, bool final) {
    std::size_t pos = 0;
    do {
        const std::size_t n = std::min<std::size_t>(raw.size() - pos, 65535);
        const bool last = pos + n == raw.size();
        w.Put((final && last) ? 1 : 0, 3);  // BFINAL, BTYPE 00
        w.AlignToByte();
        w.Put(static_cast<std::uint32_t>(n) | (static_cast<std::uint32_t>(~n & 0xFFFF) << 16), 32);
        w.PutBytes(raw.subspan(pos, n));
        pos += n;
    } while (pos < raw.size());
}

}  // namespace

void WriteBlock(BitWriter& w, std::span<const Lz77Symbol> symbols,
                std::span<const std::uint8_t> raw, bool final) {
    std::array<std::uint32_t, kNumLitLenSymbols> litFreq{};
    std::array<std::uint32_t, kNumDistSymbols> distFreq{};
    for (const Lz77Symbol& sym : symbols) {
        if (sym.distance == 0) {
            ++litFreq[sym.value];
        } else {
            ++litFreq[kTables.lengthSymbol[sym.value]];
            ++distFreq[DistSymbol(sym.distance)];
        }
    }
    litFreq[kEndOfBlock] = 1;

    Code dynamic;
    BuildCodeLengths(std::span(litFreq).first(kMaxLitLenUsed), kMaxCodeLength,
                     std::span(dynamic.litlenLength).first(kMaxLitLenUsed));
    BuildCodeLengths(std::span(distFreq).first(kMaxDistUsed), kMaxCodeLength,
                     std::span(dynamic.distLength).first(kMaxDistUsed));
    BuildCanonicalCodes(dynamic.litlenLength, dynamic.litlenCode);
    BuildCanonicalCodes(dynamic.distLength, dynamic.distCode);

    unsigned hlit = kMaxLitLenUsed;
    while (hlit > 257 && dynamic.litlenLength[hlit - 1] == 0)
        --hlit;
    unsigned hdist = kMaxDistUsed;
    while (hdist > 1 && dynamic.distLength[hdist - 1] == 0)
        --hdist;
    std::array<std::uint8_t, kMaxLitLenUsed + kMaxDistUsed> all{};
    std::copy_n(dynamic.litlenLength.begin(), hlit, all.begin());
    std::copy_n(dynamic.distLength.begin(), hdist, all.begin() + hlit);
    const std::vector<PrecodeItem> items = RunLengthCode(std::span(all).first(hlit + hdist));

    std::array<std::uint32_t, kNumPrecodeSymbols> preFreq{};
    for (const PrecodeItem& item : items)
        ++preFreq[item.symbol];
    std::array<std::uint8_t, kNumPrecodeSymbols> preLength{};
    std::array<std::uint16_t, kNumPrecodeSymbols> preCode{};
    BuildCodeLengths(preFreq, kMaxPrecodeLength, preLength);
    BuildCanonicalCodes(preLength, preCode);
    unsigned hclen = kNumPrecodeSymbols;
    while (hclen > 4 && preLength[kPrecodeOrder[hclen - 1]] == 0)
        --hclen;

    std::uint64_t dynamicBits = 3 + 5 + 5 + 4 + 3 * hclen;
    for (const PrecodeItem& item : items)
        dynamicBits += preLength[item.symbol] + PrecodeExtraBits(item.symbol);
    dynamicBits += DataBits(dynamic, litFreq, distFreq);
    const std::uint64_t fixedBits = 3 + DataBits(FixedCode(), litFreq, distFreq);
    const std::uint64_t chunks = raw.empty() ? 1 : (raw.size() + 65534) / 65535;
    const std::uint64_t storedBits = (8 - (w.PendingBits() + 3) % 8) % 8 + 3 +
                                     (chunks - 1) * (3 + 7) + chunks * 32 +
                                     8 * std::uint64_t{raw.size()};

    if (storedBits <= fixedBits && storedBits <= dynamicBits) {
        WriteStored(w, raw, final);
    } else if (fixedBits <= dynamicBits) {
        w.Put(final ? 3 : 2, 3);  // BFINAL, BTYPE 01
        WriteSymbols(w, FixedCode(), symbols);
    } else {
        w.Put(final ? 5 : 4, 3);  // BFINAL, BTYPE 10
        w.Put(hlit - 257, 5);
        w.Put(hdist - 1, 5);
        w.Put(hclen - 4, 4);
        for (unsigned i = 0; i < hclen; ++i)
            w.Put(preLength[kPrecodeOrder[i]], 3);
        for (const PrecodeItem& item : items) {
            w.Put(preCode[item.symbol], preLength[item.symbol]);
            if (const unsigned extra = PrecodeExtraBits(item.symbol)) w.Put(item.extra, extra);
        }
        WriteSymbols(w, dynamic, symbols);
    }
}

}  // namespace iw::deflate
