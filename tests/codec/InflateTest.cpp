// The own inflate on hand-made streams: valid ones of every block type, and one hostile
// stream per error path, each spelled out field by field.

#include <gtest/gtest.h>

#include <span>
#include <string>

#include "CompressionSamples.h"
#include "PngTestHelpers.h"
#include "codec/zlib/Checksums.h"
#include "codec/zlib/Inflate.h"

namespace iw {
namespace {

using test::AsBytes;
using test::BE32;

// Canonical codes (most significant bit first, as RFC 1951 writes them down) for lengths.
std::vector<std::uint32_t> CanonicalCodes(const std::vector<std::uint8_t>& lengths) {
    unsigned count[16] = {}, next[16] = {};
    for (auto len : lengths)
        ++count[len];
    count[0] = 0;
    for (unsigned len = 1, code = 0; len < 16; ++len)
        next[len] = code = (code + count[len - 1]) << 1;
    std::vector<std::uint32_t> codes(lengths.size());
    for (std::size_t s = 0; s < lengths.size(); ++s)
        codes[s] = lengths[s] ? next[lengths[s]]++ : 0;
    return codes;
}

// A bit writer in the manner of libdeflate's put_bits, starting with the zlib header 78 01
// unless told otherwise.
class StreamBuilder {
  public:
    explicit StreamBuilder(bool zlibHeader = true) {
        if (zlibHeader) bytes_ = {0x78, 0x01};
    }
    // `count` bits of `value`, least significant first (header fields, extra bits).
    StreamBuilder& Bits(std::size_t value, unsigned count) {
        for (unsigned i = 0; i < count; ++i)
            PutBit(i < 64 ? (value >> i) & 1 : 0);
        return *this;
    }
    StreamBuilder& Bytes(std::span<const std::uint8_t> data) {
        used_ = 0;
        bytes_.insert(bytes_.end(), data.begin(), data.end());
        return *this;
    }
    // A Huffman code: its most significant bit goes first.
    StreamBuilder& Code(std::uint32_t code, unsigned length) {
        for (unsigned i = length; i-- > 0;)
            PutBit((code >> i) & 1);
        return *this;
    }
    StreamBuilder& Header(bool final, unsigned type) { return Bits(final, 1).Bits(type, 2); }
    // A stored block with the given LEN and NLEN (by default the right ones).
    StreamBuilder& Stored(bool final, std::string_view text, int len = -1, int nlen = -1) {
        len = len < 0 ? static_cast<int>(text.size()) : len;
        Header(final, 0).used_ = 0;
        for (int v : {len, len >> 8, nlen < 0 ? ~len : nlen, (nlen < 0 ? ~len : nlen) >> 8})
            bytes_.push_back(static_cast<std::uint8_t>(v));
        bytes_.insert(bytes_.end(), text.begin(), text.end());
        return *this;
    }
    // Fixed code: literal/length symbols, and distance symbols.
    StreamBuilder& Fixed(std::initializer_list<unsigned> symbols) {
        for (unsigned s : symbols) {
            if (s < 144)
                Code(0x30 + s, 8);
            else if (s < 256)
                Code(0x190 + (s - 144), 9);
            else if (s < 280)
                Code(s - 256, 7);
            else
                Code(0xC0 + (s - 280), 8);
        }
        return *this;
    }
    StreamBuilder& FixedDistance(unsigned symbol) { return Code(symbol, 5); }
    // Huffman codes given as (code, length) pairs.
    StreamBuilder& Codes(std::initializer_list<std::pair<std::uint32_t, unsigned>> codes) {
        for (auto [code, length] : codes)
            Code(code, length);
        return *this;
    }
    // A dynamic block header whose code-length code is given (in transmission order).
    StreamBuilder& Precode(bool final, unsigned hlit, unsigned hdist,
                           const std::vector<std::uint8_t>& inOrder) {
        Header(final, 2).Bits(hlit, 5).Bits(hdist, 5).Bits(inOrder.size() - 4, 4);
        for (auto len : inOrder)
            Bits(len, 3);
        return *this;
    }
    // A dynamic block header for the given code lengths, sent one by one with a complete
    // code-length code: 0 to 12 take 4 bits (codes 0 to 12), 13 to 18 five (26 to 31).
    StreamBuilder& Dynamic(bool final, const std::vector<std::uint8_t>& litlen,
                           const std::vector<std::uint8_t>& dist) {
        Precode(final, litlen.size() - 257, dist.size() - 1,
                {5, 5, 5, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 5, 4, 5, 4, 5});
        for (const auto* lengths : {&litlen, &dist}) {
            for (unsigned len : *lengths)
                Code(len < 13 ? len : 13 + len, len < 13 ? 4 : 5);
        }
        return *this;
    }
    // The zlib trailer: Adler-32 of `expected`, most significant byte first.
    StreamBuilder& Trailer(std::string_view expected) {
        const auto a = BE32(Adler32(1, AsBytes(expected)));
        return Bytes(a);
    }
    const std::vector<std::uint8_t>& Data() const { return bytes_; }

  private:
    void PutBit(std::size_t bit) {
        if (used_ == 0) bytes_.push_back(0);
        bytes_.back() |= static_cast<std::uint8_t>(bit << used_);
        used_ = (used_ + 1) % 8;
    }
    std::vector<std::uint8_t> bytes_;
    unsigned used_ = 0;  // bits used in the last byte, 0 when it is full or absent
};

// Literal/length code lengths: `lengths` for the symbols listed, 0 for the others.
std::vector<std::uint8_t> Lengths(std::size_t count,
                                  std::initializer_list<std::pair<unsigned, int>> lengths) {
    std::vector<std::uint8_t> v(count, 0);
    for (auto [symbol, len] : lengths)
        v[symbol] = static_cast<std::uint8_t>(len);
    return v;
}

StreamBuilder FixedBlock() {
    return std::move(StreamBuilder().Header(true, 1));
}

struct ValidStream {
    const char* what;
    std::vector<std::uint8_t> stream;
    std::string text;
};

std::vector<ValidStream> ValidStreams() {
    std::vector<ValidStream> streams;
    StreamBuilder stored;
    stored.Stored(false, "Icon").Stored(false, "").Stored(true, "wright").Trailer("Iconwright");
    streams.push_back({"stored blocks, one empty", stored.Data(), "Iconwright"});
    streams.push_back({"empty", FixedBlock().Fixed({256}).Trailer("").Data(), ""});
    // "ab", length 6 at distance 2 (overlapping), 258 (symbol 285) at distance 1, and
    // length 12 with an extra bit at distance 6 with an extra bit.
    std::string text = "abababab" + std::string(258, 'b');
    text += text.substr(text.size() - 6) + text.substr(text.size() - 6);
    StreamBuilder fixed = FixedBlock();
    fixed.Fixed({'a', 'b', 260}).FixedDistance(1).Fixed({285}).FixedDistance(0);
    fixed.Fixed({265}).Bits(1, 1).FixedDistance(4).Bits(1, 1).Fixed({256}).Trailer(text);
    streams.push_back({"fixed code, overlapping matches", fixed.Data(), text});
    // Codes of 1 to 15 bits (through the subtables); two distance codes.
    auto litlen = Lengths(258, {{'x', 1}, {256, 15}, {257, 15}});
    for (unsigned s = 0; s < 13; ++s)
        litlen['a' + s] = static_cast<std::uint8_t>(2 + s);
    auto codes = CanonicalCodes(litlen);
    StreamBuilder dynamic;
    dynamic.Dynamic(true, litlen, {1, 1});
    for (unsigned s = 0; s < 13; ++s)
        dynamic.Code(codes['a' + s], litlen['a' + s]);
    dynamic.Codes({{codes['x'], 1}, {codes[257], 15}, {1, 1}, {codes[256], 15}});  // "mxm"
    streams.push_back(
        {"long codes", dynamic.Trailer("abcdefghijklmxmxm").Data(), "abcdefghijklmxmxm"});
    // A single distance code (its other half unused: codes a 0, 256 10, 257 11), then a
    // fixed final block.
    StreamBuilder single;
    single.Dynamic(false, Lengths(258, {{'a', 1}, {256, 2}, {257, 2}}), {1});
    single.Codes({{0, 1}, {3, 2}, {0, 1}, {2, 2}}).Header(true, 1).Fixed({256}).Trailer("aaaa");
    streams.push_back({"single distance code", single.Data(), "aaaa"});
    StreamBuilder literals;
    literals.Dynamic(true, Lengths(257, {{'z', 1}, {256, 1}}), {0}).Codes({{0, 1}, {0, 1}, {1, 1}});
    streams.push_back({"literals only, no distance code", literals.Trailer("zz").Data(), "zz"});
    return streams;
}

// Each valid stream decodes to its text, ignores bytes after its trailer, stops at every
// smaller output limit without passing it, and every cut of it is truncated input.
TEST(Inflate, ValidStreamsDecodeAndEveryCutIsTruncated) {
    for (const auto& [what, stream, text] : ValidStreams()) {
        SCOPED_TRACE(what);
        std::vector<std::uint8_t> out{1, 2, 3};
        ASSERT_EQ(InflateZlib(stream, text.size(), out), InflateStatus::Ok);
        EXPECT_EQ(std::string(out.begin(), out.end()), text);
        auto extended = stream;
        extended.push_back(0xEE);
        EXPECT_EQ(InflateZlib(extended, text.size(), out), InflateStatus::Ok);
        for (std::size_t limit : {std::size_t{0}, text.size() / 2, text.size() - 1}) {
            if (limit >= text.size()) continue;
            EXPECT_EQ(InflateZlib(stream, limit, out), InflateStatus::OutputLimit) << limit;
            EXPECT_LE(out.size(), limit);
        }
        for (std::size_t cut = 0; cut < stream.size(); ++cut) {
            EXPECT_EQ(InflateZlib(std::span(stream).first(cut), 1000, out),
                      InflateStatus::TruncatedInput)
                << "cut at " << cut;
        }
    }
}

std::vector<std::uint8_t> WithZlibHeader(std::vector<std::uint8_t> header) {
    return StreamBuilder(false).Bytes(header).Header(true, 1).Fixed({256}).Trailer("").Data();
}

std::vector<std::uint8_t> WithLengths(const std::vector<std::uint8_t>& litlen,
                                      const std::vector<std::uint8_t>& dist) {
    return StreamBuilder().Dynamic(true, litlen, dist).Bits(0, 64).Data();
}

std::vector<std::uint8_t> WithPrecode(const std::vector<std::uint8_t>& inOrder, unsigned hlit = 0,
                                      unsigned hdist = 0) {
    return StreamBuilder().Precode(true, hlit, hdist, inOrder).Bits(0, 64).Data();
}

TEST(Inflate, HostileStreamsReportTheirFault) {
    using S = InflateStatus;
    // Precode {1, 0, 1, 0}: 16 and 18 of one bit; {0, 0, 1, 1}: 0 and 18 of one bit.
    StreamBuilder repeatFirst = StreamBuilder().Precode(true, 0, 0, {1, 0, 1, 0});
    StreamBuilder repeatPastEnd = StreamBuilder().Precode(true, 0, 0, {0, 0, 1, 1});
    for (int i = 0; i < 3; ++i)
        repeatPastEnd.Code(1, 1).Bits(127, 7);  // three times 138 zeros > 258 lengths
    StreamBuilder unusedHalf;
    unusedHalf.Dynamic(true, Lengths(258, {{'a', 1}, {256, 2}, {257, 2}}), {1});
    const struct {
        const char* what;
        std::vector<std::uint8_t> stream;
        S status;
    } cases[] = {
        {"method 9", WithZlibHeader({0x79, 0xDA}), S::BadHeader},
        {"64K window", WithZlibHeader({0x88, 0x98}), S::BadHeader},
        {"check bits", WithZlibHeader({0x78, 0x02}), S::BadHeader},
        {"preset dictionary", WithZlibHeader({0x78, 0xBB}), S::BadHeader},
        {"one header byte", {0x78}, S::TruncatedInput},
        {"block type 3", StreamBuilder().Header(true, 3).Bits(0, 16).Data(), S::BadBlockType},
        {"LEN, NLEN", StreamBuilder().Stored(true, "abc", 3, 0xFFFD).Data(), S::BadStoredLength},
        {"stored past the input", StreamBuilder().Stored(true, "abc", 10).Data(),
         S::TruncatedInput},
        {"no trailer", StreamBuilder().Stored(true, "abc").Data(), S::TruncatedInput},
        {"Adler-32", StreamBuilder().Stored(true, "abc").Trailer("abd").Data(), S::BadChecksum},
        {"literal/length 286", FixedBlock().Fixed({286, 256}).Trailer("").Data(), S::BadSymbol},
        {"literal/length 287", FixedBlock().Fixed({287, 256}).Trailer("").Data(), S::BadSymbol},
        {"distance 30", FixedBlock().Fixed({'a', 257}).FixedDistance(30).Bits(0, 20).Data(),
         S::BadSymbol},
        {"distance 31", FixedBlock().Fixed({'a', 257}).FixedDistance(31).Bits(0, 20).Data(),
         S::BadSymbol},
        {"unused half of a single distance code",
         unusedHalf.Codes({{0, 1}, {3, 2}, {1, 1}, {2, 2}}).Trailer("aaaa").Data(), S::BadSymbol},
        {"distance 1, no output", FixedBlock().Fixed({257}).FixedDistance(0).Fixed({256}).Data(),
         S::DistanceTooFar},
        {"distance 3, two bytes", FixedBlock().Fixed({'a', 'b', 257}).FixedDistance(2).Data(),
         S::DistanceTooFar},
        {"precode oversubscribed", WithPrecode({1, 1, 1, 0}), S::BadCodeLengths},
        {"precode of one code", WithPrecode({0, 0, 0, 1}), S::BadCodeLengths},
        {"precode empty", WithPrecode({0, 0, 0, 0}), S::BadCodeLengths},
        {"287 literal/length codes", WithPrecode({0, 0, 1, 1}, 30, 0), S::BadCodeLengths},
        {"31 distance codes", WithPrecode({0, 0, 1, 1}, 0, 30), S::BadCodeLengths},
        {"repeat as the first length", repeatFirst.Code(0, 1).Bits(0, 66).Data(),
         S::BadCodeLengths},
        {"repeat past the end", repeatPastEnd.Bits(0, 64).Data(), S::BadCodeLengths},
        {"three 1-bit literal codes",
         WithLengths(Lengths(257, {{'a', 1}, {'b', 1}, {256, 1}}), {1}), S::BadCodeLengths},
        {"literal code oversubscribed",
         WithLengths(Lengths(257, {{'a', 1}, {'b', 2}, {256, 1}}), {1}), S::BadCodeLengths},
        {"no end-of-block code", WithLengths(Lengths(257, {{'a', 2}, {'b', 2}, {'c', 1}}), {1}),
         S::BadCodeLengths},
        {"literal code incomplete", WithLengths(Lengths(257, {{'a', 2}, {'b', 2}, {256, 2}}), {1}),
         S::BadCodeLengths},
        {"distance code incomplete", WithLengths(Lengths(257, {{'a', 1}, {256, 1}}), {2, 2}),
         S::BadCodeLengths},
        {"distance code oversubscribed", WithLengths(Lengths(257, {{'a', 1}, {256, 1}}), {1, 1, 1}),
         S::BadCodeLengths},
    };
    for (const auto& c : cases) {
        std::vector<std::uint8_t> out;
        EXPECT_EQ(InflateZlib(c.stream, 1 << 20, out), c.status) << c.what;
    }
}

}  // namespace
}  // namespace iw
