// The own inflate on hand-made streams: one per block type and one per fault.

#include <gtest/gtest.h>

#include <string_view>

#include "DeflateStreamBuilder.h"
#include "codec/Inflate.h"

namespace iw {
namespace {

using test::StreamBuilder;

std::span<const std::uint8_t> AsBytes(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

InflateStatus Inflate(const std::vector<std::uint8_t>& stream, std::vector<std::uint8_t>& out,
                      std::size_t limit = 1 << 20) {
    return InflateZlib(stream, limit, out);
}

InflateStatus Inflate(const StreamBuilder& b, std::size_t limit = 1 << 20) {
    std::vector<std::uint8_t> out;
    return InflateZlib(b.Data(), limit, out);
}

std::string Text(const std::vector<std::uint8_t>& v) {
    return {v.begin(), v.end()};
}

// --- Valid streams of each block type ---------------------------------------------------

TEST(InflateBlocks, StoredBlocksAcrossSeveralBlocks) {
    StreamBuilder b;
    b.Stored(false, AsBytes("Icon"))
        .Stored(false, {})
        .Stored(true, AsBytes("wright"))
        .Trailer(AsBytes("Iconwright"));
    std::vector<std::uint8_t> out;
    ASSERT_EQ(Inflate(b.Data(), out), InflateStatus::Ok);
    EXPECT_EQ(Text(out), "Iconwright");
}

TEST(InflateBlocks, FixedCodeLiteralsAndOverlappingMatch) {
    // "ab" then length 6 at distance 2 -> "abababab"; length 258 (symbol 285) at distance 1.
    StreamBuilder b;
    b.Header(true, 1).FixedLiterals(AsBytes("ab"));
    b.FixedSymbol(260).FixedDistance(1);                        // length 6, distance 2
    b.FixedSymbol(285).FixedDistance(0);                        // length 258, distance 1
    b.FixedSymbol(265).Bits(1, 1).FixedDistance(4).Bits(1, 1);  // length 12, distance 6
    b.FixedSymbol(256);
    std::string expected = "abababab" + std::string(258, 'b');
    expected += expected.substr(expected.size() - 6) + expected.substr(expected.size() - 6);
    b.Trailer(AsBytes(expected));
    std::vector<std::uint8_t> out;
    ASSERT_EQ(Inflate(b.Data(), out), InflateStatus::Ok);
    EXPECT_EQ(Text(out), expected);
}

TEST(InflateBlocks, DynamicBlockWithLongCodes) {
    // Literal/length code: 'x' and end-of-block and a length symbol share lengths so that
    // codes reach 15 bits (through the subtables); distance code: two codes.
    std::vector<std::uint8_t> litlen(258, 0);
    litlen['x'] = 1;
    for (unsigned s = 0; s < 13; ++s)
        litlen['a' + s] = static_cast<std::uint8_t>(2 + s);  // 2..14
    litlen[256] = 15;
    litlen[257] = 15;  // length 3
    std::vector<std::uint8_t> dist = {1, 1};
    const auto codes = test::CanonicalCodes(litlen);
    StreamBuilder b;
    b.DynamicHeader(true, litlen, dist);
    for (unsigned s = 0; s < 13; ++s)
        b.Code(codes['a' + s], litlen['a' + s]);
    b.Code(codes['x'], 1);
    b.Code(codes[257], 15).Code(1, 1);  // length 3, distance 2: "mxm"
    b.Code(codes[256], 15);
    const std::string expected = "abcdefghijklmxmxm";
    b.Trailer(AsBytes(expected));
    std::vector<std::uint8_t> out;
    ASSERT_EQ(Inflate(b.Data(), out), InflateStatus::Ok);
    EXPECT_EQ(Text(out), expected);
}

TEST(InflateBlocks, SingleDistanceCodeIsAcceptedAndItsUnusedHalfIsNot) {
    std::vector<std::uint8_t> litlen(258, 0);
    litlen['a'] = 1;
    litlen[256] = 2;
    litlen[257] = 2;
    const auto codes = test::CanonicalCodes(litlen);
    StreamBuilder good;
    good.DynamicHeader(true, litlen, {1});
    good.Code(codes['a'], 1)
        .Code(codes[257], 2)
        .Code(0, 1)
        .Code(codes[256], 2)
        .Trailer(AsBytes("aaaa"));
    std::vector<std::uint8_t> out;
    ASSERT_EQ(Inflate(good.Data(), out), InflateStatus::Ok);
    EXPECT_EQ(Text(out), "aaaa");

    StreamBuilder bad;
    bad.DynamicHeader(true, litlen, {1});
    bad.Code(codes['a'], 1)
        .Code(codes[257], 2)
        .Code(1, 1)
        .Code(codes[256], 2)
        .Trailer(AsBytes("aaaa"));
    EXPECT_EQ(Inflate(bad), InflateStatus::BadSymbol);
}

TEST(InflateBlocks, LiteralOnlyBlockWithoutDistanceCodes) {
    std::vector<std::uint8_t> litlen(257, 0);
    litlen['z'] = 1;
    litlen[256] = 1;
    const auto codes = test::CanonicalCodes(litlen);
    StreamBuilder b;
    b.DynamicHeader(true, litlen, {0});
    b.Code(codes['z'], 1).Code(codes['z'], 1).Code(codes[256], 1).Trailer(AsBytes("zz"));
    std::vector<std::uint8_t> out;
    ASSERT_EQ(Inflate(b.Data(), out), InflateStatus::Ok);
    EXPECT_EQ(Text(out), "zz");
}

TEST(InflateBlocks, EmptyInputStreamAndBytesAfterTheTrailerAreIgnored) {
    StreamBuilder b;
    b.Header(true, 1).FixedSymbol(256).Trailer({});
    std::vector<std::uint8_t> stream = b.Data();
    stream.push_back(0xEE);
    std::vector<std::uint8_t> out{1, 2, 3};
    EXPECT_EQ(Inflate(stream, out), InflateStatus::Ok);
    EXPECT_TRUE(out.empty());
}

// --- Header faults -----------------------------------------------------------------------

TEST(InflateHeader, RefusesWrongMethodWindowCheckBitsAndPresetDictionary) {
    const std::vector<std::vector<std::uint8_t>> headers = {
        {0x79, 0xDA},  // CM 9
        {0x88, 0x98},  // CINFO 8: a 64K window (0x8898 is a multiple of 31)
        {0x78, 0x02},  // FCHECK wrong
        {0x78, 0xBB},  // FDICT set (0x78BB is a multiple of 31)
    };
    for (const auto& h : headers) {
        StreamBuilder b(false);
        b.Bytes(h).Header(true, 1).FixedSymbol(256).Trailer({});
        EXPECT_EQ(Inflate(b), InflateStatus::BadHeader) << int{h[0]} << " " << int{h[1]};
    }
    StreamBuilder shortOne(false);
    shortOne.Bytes(std::vector<std::uint8_t>{0x78});
    EXPECT_EQ(Inflate(shortOne), InflateStatus::TruncatedInput);
}

// --- Block faults --------------------------------------------------------------------------

TEST(InflateFaults, BlockTypeThree) {
    StreamBuilder b;
    b.Header(true, 3).Bits(0, 16);
    EXPECT_EQ(Inflate(b), InflateStatus::BadBlockType);
}

TEST(InflateFaults, StoredLengthAndItsComplementDisagree) {
    StreamBuilder b;
    b.Stored(true, AsBytes("abc"), 3, 0xFFFD).Trailer(AsBytes("abc"));
    EXPECT_EQ(Inflate(b), InflateStatus::BadStoredLength);
}

TEST(InflateFaults, StoredBlockLongerThanTheInput) {
    StreamBuilder b;
    b.Stored(true, AsBytes("abc"), 10, static_cast<unsigned>(~10u & 0xFFFF));
    EXPECT_EQ(Inflate(b), InflateStatus::TruncatedInput);
}

TEST(InflateFaults, FixedLiteralLengthSymbols286And287) {
    for (unsigned symbol : {286u, 287u}) {
        StreamBuilder b;
        b.Header(true, 1).FixedSymbol('a').FixedSymbol(symbol).FixedSymbol(256).Trailer(
            AsBytes("a"));
        EXPECT_EQ(Inflate(b), InflateStatus::BadSymbol) << symbol;
    }
}

TEST(InflateFaults, FixedDistanceSymbols30And31) {
    for (unsigned symbol : {30u, 31u}) {
        StreamBuilder b;
        b.Header(true, 1)
            .FixedSymbol('a')
            .FixedSymbol(257)
            .FixedDistance(symbol)
            .Bits(0, 13)
            .FixedSymbol(256);
        EXPECT_EQ(Inflate(b), InflateStatus::BadSymbol) << symbol;
    }
}

TEST(InflateFaults, DistanceBeforeTheStartOfTheOutput) {
    StreamBuilder first;
    first.Header(true, 1).FixedSymbol(257).FixedDistance(0).FixedSymbol(
        256);  // distance 1, nothing yet
    EXPECT_EQ(Inflate(first), InflateStatus::DistanceTooFar);
    StreamBuilder later;
    later.Header(true, 1)
        .FixedLiterals(AsBytes("ab"))
        .FixedSymbol(257)
        .FixedDistance(2)
        .FixedSymbol(256);  // 3
    EXPECT_EQ(Inflate(later), InflateStatus::DistanceTooFar);
}

TEST(InflateFaults, OutputLimitIsNeverPassed) {
    StreamBuilder b;
    b.Header(true, 1).FixedSymbol('a');
    for (int i = 0; i < 4; ++i)
        b.FixedSymbol(285).FixedDistance(0);
    b.FixedSymbol(256).Trailer(std::vector<std::uint8_t>(1 + 4 * 258, 'a'));
    for (std::size_t limit :
         {std::size_t{0}, std::size_t{1}, std::size_t{100}, std::size_t{1032}}) {
        std::vector<std::uint8_t> out;
        EXPECT_EQ(Inflate(b.Data(), out, limit), InflateStatus::OutputLimit) << limit;
        EXPECT_LE(out.size(), limit);
    }
    std::vector<std::uint8_t> out;
    EXPECT_EQ(Inflate(b.Data(), out, 1033), InflateStatus::Ok);

    StreamBuilder stored;
    stored.Stored(true, AsBytes("0123456789")).Trailer(AsBytes("0123456789"));
    EXPECT_EQ(Inflate(stored.Data(), out, 9), InflateStatus::OutputLimit);
    EXPECT_LE(out.size(), 9u);
}

TEST(InflateFaults, AdlerTrailerMismatchAndMissingTrailer) {
    StreamBuilder b;
    b.Stored(true, AsBytes("abc")).Trailer(AsBytes("abd"));
    EXPECT_EQ(Inflate(b), InflateStatus::BadChecksum);
    StreamBuilder none;
    none.Stored(true, AsBytes("abc"));
    EXPECT_EQ(Inflate(none), InflateStatus::TruncatedInput);
}

// --- Code-length faults ----------------------------------------------------------------------

// A dynamic header whose code-length code is given explicitly.
StreamBuilder WithPrecode(const std::vector<std::uint8_t>& precodeInOrder, unsigned hlit = 0,
                          unsigned hdist = 0) {
    StreamBuilder b;
    b.Header(true, 2).Bits(hlit, 5).Bits(hdist, 5).Bits(
        static_cast<unsigned>(precodeInOrder.size() - 4), 4);
    for (auto len : precodeInOrder)
        b.Bits(len, 3);
    return b;
}

TEST(InflateCodeLengths, OversubscribedAndIncompleteCodeLengthCodes) {
    // Three codes of length 1: oversubscribed.
    EXPECT_EQ(Inflate(WithPrecode({1, 1, 1, 0}).Bits(0, 64)), InflateStatus::BadCodeLengths);
    // A single code of length 1: incomplete, which the code-length code may not be.
    EXPECT_EQ(Inflate(WithPrecode({0, 0, 0, 1}).Bits(0, 64)), InflateStatus::BadCodeLengths);
    // No code at all.
    EXPECT_EQ(Inflate(WithPrecode({0, 0, 0, 0}).Bits(0, 64)), InflateStatus::BadCodeLengths);
}

TEST(InflateCodeLengths, TooManyLiteralLengthOrDistanceCodes) {
    // HLIT 30 -> 287 codes; HDIST 30 -> 31 codes. Precode: 18 and 0 of length 1.
    EXPECT_EQ(Inflate(WithPrecode({0, 0, 1, 1}, 30, 0).Bits(0, 64)), InflateStatus::BadCodeLengths);
    EXPECT_EQ(Inflate(WithPrecode({0, 0, 1, 1}, 0, 30).Bits(0, 64)), InflateStatus::BadCodeLengths);
}

TEST(InflateCodeLengths, RepeatWithoutPreviousLengthAndRepeatPastTheEnd) {
    // Precode: 16 and 18 of length 1 (codes 0 and 1).
    StreamBuilder first = WithPrecode({1, 0, 1, 0});
    first.Code(0, 1).Bits(0, 2).Bits(0, 64);  // 16 as the very first length
    EXPECT_EQ(Inflate(first), InflateStatus::BadCodeLengths);
    // 257 + 1 lengths; three 18s of 138 zeros = 414 > 258.
    StreamBuilder past = WithPrecode({0, 0, 1, 1});
    for (int i = 0; i < 3; ++i)
        past.Code(1, 1).Bits(127, 7);
    past.Bits(0, 64);
    EXPECT_EQ(Inflate(past), InflateStatus::BadCodeLengths);
}

TEST(InflateCodeLengths, LiteralLengthCodeFaults) {
    std::vector<std::uint8_t> litlen(257, 0);
    litlen[256] = 1;
    litlen['a'] = 1;
    litlen['b'] = 1;  // three codes of length 1
    EXPECT_EQ(Inflate(StreamBuilder().DynamicHeader(true, litlen, {1}).Bits(0, 64)),
              InflateStatus::BadCodeLengths);
    litlen['b'] = 2;  // 1/2 + 1/2 + 1/4: oversubscribed
    EXPECT_EQ(Inflate(StreamBuilder().DynamicHeader(true, litlen, {1}).Bits(0, 64)),
              InflateStatus::BadCodeLengths);
    litlen['a'] = 2;  // 1/2 + 1/4 + 1/4 = 1 but end-of-block missing below
    litlen[256] = 0;
    litlen['c'] = 1;
    EXPECT_EQ(Inflate(StreamBuilder().DynamicHeader(true, litlen, {1}).Bits(0, 64)),
              InflateStatus::BadCodeLengths);
    litlen['c'] = 0;
    litlen[256] = 2;  // 1/4 * 3: incomplete with more than one code
    EXPECT_EQ(Inflate(StreamBuilder().DynamicHeader(true, litlen, {1}).Bits(0, 64)),
              InflateStatus::BadCodeLengths);
}

TEST(InflateCodeLengths, IncompleteDistanceCodeWithTwoLengths) {
    std::vector<std::uint8_t> litlen(257, 0);
    litlen['a'] = 1;
    litlen[256] = 1;
    EXPECT_EQ(Inflate(StreamBuilder().DynamicHeader(true, litlen, {2, 2}).Bits(0, 64)),
              InflateStatus::BadCodeLengths);
    EXPECT_EQ(Inflate(StreamBuilder().DynamicHeader(true, litlen, {1, 1, 1}).Bits(0, 64)),
              InflateStatus::BadCodeLengths);
}

// --- Truncation --------------------------------------------------------------------------------

TEST(InflateTruncation, EveryCutOfHandMadeStreamsIsAnError) {
    std::vector<std::uint8_t> litlen(258, 0);
    litlen['x'] = 1;
    litlen[256] = 2;
    litlen[257] = 2;
    const auto codes = test::CanonicalCodes(litlen);
    StreamBuilder dynamic;
    dynamic.DynamicHeader(false, litlen, {1});
    dynamic.Code(codes['x'], 1).Code(codes[257], 2).Code(0, 1).Code(codes[256], 2);
    dynamic.Header(true, 1).FixedSymbol(256).Trailer(AsBytes("xxxx"));
    StreamBuilder stored;
    stored.Stored(false, AsBytes("abc")).Stored(true, AsBytes("def")).Trailer(AsBytes("abcdef"));
    for (const auto* b : {&dynamic, &stored}) {
        const auto& full = b->Data();
        std::vector<std::uint8_t> out;
        ASSERT_EQ(InflateZlib(full, 100, out), InflateStatus::Ok);
        for (std::size_t cut = 0; cut < full.size(); ++cut) {
            EXPECT_EQ(InflateZlib(std::span(full).first(cut), 100, out),
                      InflateStatus::TruncatedInput)
                << cut;
        }
    }
}

}  // namespace
}  // namespace iw
