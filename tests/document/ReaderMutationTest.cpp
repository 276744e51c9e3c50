// Every single-byte change and every truncation of a few valid files must give a clean
// result: either a failure, or a set whose every field is in range and that writes again
// as an icon, a cursor and an animated cursor which all read back (checked for the first
// few sets of each shape). AddressSanitizer turns
// any read outside the data into a failure of this test.

#include <gtest/gtest.h>

#include <map>

#include "codec/png/PngCodec.h"
#include "document/io/IconFileReader.h"
#include "support/IcoBuilder.h"
#include "support/TestSupport.h"
#include "support/WriteReadBack.h"

namespace iw {
namespace {

using test::BitmapEntry;
using test::BitmapSpec;
using test::Bytes;

Bytes SmallMixedIcon() {
    std::vector<test::EntrySpec> entries;
    for (int bpp : {1, 4, 8, 24, 32}) {
        BitmapSpec spec;
        spec.width = 5 + bpp % 7;
        spec.height = 3 + bpp % 5;
        spec.bitCount = bpp;
        spec.palette = {{0, 0, 0, 0}, {255, 255, 255, 0}, {10, 20, 30, 0}};
        spec.pixel = [](int x, int y) {
            return test::Rgba{static_cast<std::uint8_t>((x + y) % 3), 40, 50, 60};
        };
        spec.masked = [](int x, int y) { return (x + y) % 4 == 0; };
        entries.push_back(BitmapEntry(spec));
    }
    // And a PNG entry, decoded only when the write looks at its pixels.
    test::EntrySpec png;
    std::vector<std::uint8_t> rgba(6 * 6 * 4);
    for (std::size_t i = 0; i < rgba.size(); ++i)
        rgba[i] = static_cast<std::uint8_t>(i * 37);
    EncodePngStream(6, 6, rgba, png.data);
    png.width = png.height = 6;
    entries.push_back(png);
    return test::BuildIconFile(entries);
}

// The fields the writers decide by. Sets that differ only in their pixels take the same
// way through the writers, so a few of each shape are written back, not all.
std::string ShapeOf(const IconSet& set) {
    std::string shape;
    for (int i = 0; i < set.Count(); ++i) {
        const IconInfo& info = set.Info(i);
        for (int field : {info.Width(), info.Height(), int{info.bitCount}, int{info.png},
                          static_cast<int>(set.Image(i).OriginalPng().size())}) {
            shape += std::to_string(field) + ",";
        }
    }
    return shape;
}

void ExpectClean(std::span<const std::uint8_t> bytes, const std::string& name,
                 std::map<std::string, int>& shapesWritten) {
    IconSet set;
    NullProgress progress;
    IconReadResult result = ReadIconData(bytes, name, set, progress);
    if (!result.Ok()) {
        ASSERT_TRUE(set.Empty());
        return;
    }
    ASSERT_GE(set.Count(), 1);
    ASSERT_LE(set.Count(), IconSet::kMaxImages);
    for (int i = 0; i < set.Count(); ++i) {
        const IconInfo& info = set.Info(i);
        ASSERT_GE(info.Width(), 1);
        ASSERT_LE(info.Width(), 256);
        ASSERT_GE(info.Height(), 1);
        ASSERT_LE(info.Height(), 256);
        ASSERT_TRUE(CanWriteImage(info)) << "image " << i << " bit count " << info.bitCount;
    }
    if (++shapesWritten[ShapeOf(set)] <= 3) {
        ASSERT_EQ(test::CheckWriteAndReadBack(set), "");
    }
}

void MutateEveryByte(const Bytes& original, const std::string& name) {
    std::map<std::string, int> shapesWritten;
    for (std::size_t i = 0; i < original.size(); ++i) {
        for (std::uint8_t value : {std::uint8_t(original[i] ^ 0xFF), std::uint8_t(0x28),
                                   std::uint8_t(0x00), std::uint8_t(0x01)}) {
            Bytes mutated = original;
            mutated[i] = value;
            ASSERT_NO_FATAL_FAILURE(ExpectClean(mutated, name, shapesWritten))
                << name << " byte " << i;
        }
    }
    for (std::size_t length = 0; length < original.size(); ++length) {
        Bytes cut(original.begin(), original.begin() + static_cast<long>(length));
        ASSERT_NO_FATAL_FAILURE(ExpectClean(cut, name, shapesWritten))
            << name << " cut at " << length;
    }
}

TEST(ReaderMutation, BuiltIconSurvivesEveryFlipAndCut) {
    Bytes icon = SmallMixedIcon();
    MutateEveryByte(icon, "m.ico");
    MutateEveryByte(icon, "m.cur");  // the same bytes through the salvage reader
}

TEST(ReaderMutation, FixturesFromOtherToolsSurviveEveryFlipAndCut) {
    for (const char* name :
         {"icotool-1bpp-32.ico", "icotool-4bpp-nonstandard-48.ico", "icotool-cursor-32.cur"}) {
        Bytes file = test::ReadFileBytes(test::TestDataPath(std::string("interop/") + name));
        // Mutating the directory, the headers and the first rows covers every decision; the
        // rest of the pixel data only changes colours.
        file.resize(std::min<std::size_t>(file.size(), 400));
        MutateEveryByte(file, name);
    }
}

TEST(ReaderHostile, LargeFilesOfRepeatingHeaderBytesFinish) {
    // "28 00 00 00" again and again: every fourth byte starts a header-like run.
    Bytes pattern(4u << 20);
    for (std::size_t i = 0; i < pattern.size(); i += 4)
        pattern[i] = 0x28;
    IconSet set;
    NullProgress progress;
    EXPECT_FALSE(ReadIconData(pattern, "x.ani", set, progress).Ok());
    EXPECT_EQ(ReadIconData(pattern, "x.ico", set, progress).status, IconReadStatus::BadHeader);
}

}  // namespace
}  // namespace iw
