// The own deflate: LZ77 with lazy matching, cut into blocks of a fixed number of symbols,
// each written with the cheapest of the three block types.

#include "codec/zlib/Deflate.h"

#include "codec/zlib/Checksums.h"
#include "codec/zlib/DeflateBlockWriter.h"
#include "codec/zlib/DeflateMatcher.h"

namespace iw {

namespace {

// Symbols per block: long enough to pay for a dynamic code's header, short enough for the
// codes to follow changes in the data.
constexpr std::size_t kBlockSymbols = 16384;

}  // namespace

std::vector<std::uint8_t> DeflateZlib(std::span<const std::uint8_t> in) {
    // CMF 0x78: deflate, 32K window; FLG 0xDA: maximum compression, FCHECK for 31.
    std::vector<std::uint8_t> out{0x78, 0xDA};
    out.reserve(in.size() / 2 + 64);
    deflate::BitWriter writer(out);
    deflate::Lz77Matcher matcher(in, deflate::kBestEffort);
    std::vector<deflate::Lz77Symbol> symbols;
    symbols.reserve(kBlockSymbols);
    std::size_t blockStart = 0;
    bool final = false;
    while (!final) {
        symbols.clear();
        const std::size_t reached = matcher.Parse(symbols, kBlockSymbols);
        final = reached >= in.size();
        deflate::WriteBlock(writer, symbols, in.subspan(blockStart, reached - blockStart), final);
        blockStart = reached;
    }
    writer.AlignToByte();
    const std::uint32_t adler = Adler32(1, in);
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<std::uint8_t>(adler >> shift));
    return out;
}

}  // namespace iw
