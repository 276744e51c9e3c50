// Animated cursors: what the writer writes reads back whole (the chunk layout itself is
// walked from scratch by tests/interop/check_write.py), the rate chunk only where rates
// differ, and the reader on hand-made hostile chunks.

#include <gtest/gtest.h>

#include <algorithm>

#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileReader.h"
#include "support/IcoBuilder.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

using test::Bytes;

// Frames of 32 x 32 at 32 bits, each with one pixel of its own, and hotspot (3, 4).
IconSet Frames(std::vector<int> rates) {
    IconSet set;
    set.mode = FileMode::ANI;
    for (int i = 0; i < static_cast<int>(rates.size()); ++i) {
        set.AddIcon(31, 31, 32);
        set.Info(i).rate = static_cast<std::int16_t>(rates[static_cast<std::size_t>(i)]);
        set.Image(i).Color(i, i) = PackColor(255, i * 40, 0);
        set.Image(i).Alpha(i, i) = 255;
    }
    set.properties.hotspotX = 3;
    set.properties.hotspotY = 4;
    return set;
}

bool HasChunk(const Bytes& file, std::string_view tag) {
    return std::search(file.begin(), file.end(), tag.begin(), tag.end()) != file.end();
}

TEST(AnimatedCursor, NameArtistRatesSequenceAndFramesReadBack) {
    test::CoreFixture f;
    IconSet set = Frames({5, 10, 15});
    set.properties.name = "Spinner";  // odd: padded
    set.properties.artist = "Ann";
    set.properties.sequence = "0,1,2,1,";
    set.animation.sequenceInUse = true;
    const auto path = (f.dir / "busy.ani").string();
    ASSERT_TRUE(WriteAnimatedCursor(path, set, f.context));
    IconSet back;
    ASSERT_TRUE(ReadIconFile(path, back, f.context));
    EXPECT_EQ(
        std::tuple(back.mode, back.Count(), back.properties.name, back.properties.artist,
                   back.properties.sequence, back.animation.sequenceInUse, back.animation.ratesText,
                   back.properties.hotspotX, back.properties.hotspotY),
        std::tuple(FileMode::ANI, 3, std::string("Spinner"), std::string("Ann"),
                   std::string("0,1,2,1,"), true, std::string("5|10|15|10"), std::int16_t{3},
                   std::int16_t{4}));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(back.Info(i).rate, set.Info(i).rate);
        EXPECT_EQ(back.Image(i).Color(i, i), set.Image(i).Color(i, i));
    }
}

TEST(AnimatedCursor, EqualRatesGoIntoTheHeaderAlone) {
    test::CoreFixture f;
    const Bytes file = BuildAnimatedCursor(Frames({9, 9}), f.context).value();
    EXPECT_FALSE(HasChunk(file, "rate") || HasChunk(file, "seq ") || HasChunk(file, "INFO"));
    IconSet back;
    NullProgress progress;
    ASSERT_TRUE(ReadIconData(file, "even.ani", back, progress).Ok());
    EXPECT_EQ(std::pair(back.Info(0).rate, back.Info(1).rate),
              (std::pair<std::int16_t, std::int16_t>(9, 9)));
    EXPECT_FALSE(back.animation.sequenceInUse);
}

// Hand-made chunk streams for the reader's edge cases.
Bytes Riff(const Bytes& chunks, const char* form = "ACON", const char* riff = "RIFF") {
    Bytes out(riff, riff + 4);
    test::AppendLE32(out, static_cast<std::uint32_t>(chunks.size() + 4));
    out.insert(out.end(), form, form + 4);
    out.insert(out.end(), chunks.begin(), chunks.end());
    return out;
}

void AppendChunk(Bytes& out, const char* tag, std::initializer_list<std::uint32_t> words,
                 std::uint32_t declared = UINT32_MAX) {
    out.insert(out.end(), tag, tag + 4);
    test::AppendLE32(
        out, declared == UINT32_MAX ? static_cast<std::uint32_t>(4 * words.size()) : declared);
    for (auto w : words)
        test::AppendLE32(out, w);
}

TEST(AnimatedCursorReader, HostileChunks) {
    IconSet set;
    for (int i = 0; i < 2; ++i)
        set.AddIcon(15, 15, 32);
    // Neither RIFF nor ACON: refused. One of the two is enough.
    EXPECT_FALSE(ReadAnimationChunks(Riff({}, "WAVE", "RIFX"), set));
    EXPECT_TRUE(ReadAnimationChunks(Riff({}, "ACON", "RIFX"), set));
    EXPECT_TRUE(ReadAnimationChunks(Riff({}, "WAVE", "RIFF"), set));
    // A chunk that runs past the end of the file cannot be walked.
    Bytes past;
    AppendChunk(past, "rate", {1, 2}, 4000);
    EXPECT_FALSE(ReadAnimationChunks(Riff(past), set));

    // Odd sizes are padded; a sequence pointing past the frames loses those steps; a rate
    // array shorter than the steps gives rates to the steps it has.
    Bytes all = {'j', 'u', 'n', 'k', 3, 0, 0, 0, 7, 7, 7, 0};
    AppendChunk(all, "anih", {36, 2, 5, 0, 0, 0, 0, 4, 1});
    AppendChunk(all, "seq ", {1, 7, 0, 1000000, 1});
    AppendChunk(all, "rate", {20});
    ASSERT_TRUE(ReadAnimationChunks(Riff(all), set));
    EXPECT_EQ(std::tuple(set.properties.sequence, set.animation.sequenceInUse, set.Info(1).rate,
                         set.Info(0).rate, set.animation.ratesText),
              std::tuple(std::string("1,0,1,"), true, std::int16_t{20}, std::int16_t{4},
                         std::string("20")));

    // A huge declared step count with no data behind it changes nothing.
    Bytes huge;
    AppendChunk(huge, "anih", {36, 2, 0xFFFFFFF0u, 0, 0, 0, 0, 3, 1});
    ASSERT_TRUE(ReadAnimationChunks(Riff(huge), set));
    EXPECT_EQ(set.Info(0).rate, 3);
    EXPECT_FALSE(set.animation.sequenceInUse);  // cleared before reading
}

TEST(AnimatedCursorReader, CorruptChunksFailTheWholeReadWithTheCorruptMessage) {
    test::CoreFixture f;
    Bytes file = BuildAnimatedCursor(Frames({6, 6}), f.context).value();
    test::PutLE32(file, 16, 0x7FFFFFF0u);  // the anih chunk claims more than the file holds
    test::WriteFileBytes(f.dir / "bad.ani", file);
    IconSet back;
    EXPECT_FALSE(ReadIconFile((f.dir / "bad.ani").string(), back, f.context));
    EXPECT_TRUE(back.Empty());
    EXPECT_EQ(f.presenter.Keys(), std::vector<std::string>{"CorruptFile"});
}

}  // namespace
}  // namespace iw
