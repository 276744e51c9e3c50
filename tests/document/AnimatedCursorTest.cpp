#include <gtest/gtest.h>

#include <cstring>
#include <map>

#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileReader.h"
#include "support/IcoBuilder.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

using test::Bytes;

// An independent reading of the RIFF layout: every chunk with its tag, its declared size,
// its data, and the path of LIST types above it.
struct Chunk {
    std::string path;  // e.g. "LIST:INFO/INAM"
    std::uint32_t size = 0;
    Bytes data;
};

std::uint32_t Le32(const Bytes& b, std::size_t at) {
    return static_cast<std::uint32_t>(b[at] | (b[at + 1] << 8) | (b[at + 2] << 16) |
                                      (b[at + 3] << 24));
}

void Walk(const Bytes& b, std::size_t begin, std::size_t end, const std::string& parent,
          std::vector<Chunk>& out) {
    std::size_t at = begin;
    while (at < end) {
        ASSERT_LE(at + 8, end) << "chunk header cut at " << at;
        std::string tag(b.begin() + static_cast<long>(at), b.begin() + static_cast<long>(at) + 4);
        const std::uint32_t size = Le32(b, at + 4);
        ASSERT_LE(at + 8 + size, end) << tag << " runs past its parent";
        Chunk c{parent + tag, size,
                Bytes(b.begin() + static_cast<long>(at) + 8,
                      b.begin() + static_cast<long>(at + 8 + size))};
        out.push_back(c);
        if (tag == "LIST") {
            std::string type(c.data.begin(), c.data.begin() + 4);
            Walk(b, at + 12, at + 8 + size, parent + "LIST:" + type + "/", out);
        }
        at += 8 + size + (size % 2);
    }
    ASSERT_EQ(at, end) << "chunks do not fill their parent exactly";
}

std::vector<Chunk> WalkFile(const Bytes& b) {
    EXPECT_EQ(std::string(b.begin(), b.begin() + 4), "RIFF");
    EXPECT_EQ(Le32(b, 4), b.size() - 8);
    EXPECT_EQ(std::string(b.begin() + 8, b.begin() + 12), "ACON");
    std::vector<Chunk> chunks;
    Walk(b, 12, b.size(), "", chunks);
    return chunks;
}

const Chunk* Find(const std::vector<Chunk>& chunks, const std::string& path) {
    for (const Chunk& c : chunks) {
        if (c.path == path) return &c;
    }
    return nullptr;
}

struct AniFixture {
    test::MessageFixture messages;
    NullProgress progress;
    NullLog log;
    CoreContext context{messages.service, progress, log};
    IconSet set;

    AniFixture(int frames, int rate = 6) {
        set.mode = FileMode::ANI;
        for (int i = 0; i < frames; ++i) {
            set.AddIcon(31, 31, 32);
            set.Info(i).rate = static_cast<std::int16_t>(rate);
            set.Image(i).Color(i, i) = PackColor(255, i * 40, 0);
            set.Image(i).Alpha(i, i) = 255;
        }
        set.properties.hotspotX = 3;
        set.properties.hotspotY = 4;
    }
};

TEST(AnimatedCursorWriter, PlainAnimationHasNoInfoRateOrSeqChunks) {
    AniFixture f(3);
    Bytes file = BuildAnimatedCursor(f.set, f.context).value();
    auto chunks = WalkFile(file);
    for (const Chunk& c : chunks) {
        if (c.path == "LIST") {
            EXPECT_EQ(std::string(c.data.begin(), c.data.begin() + 4), "fram");
        }
    }
    EXPECT_EQ(Find(chunks, "rate"), nullptr);
    EXPECT_EQ(Find(chunks, "seq "), nullptr);
    EXPECT_EQ(chunks[0].path, "anih");
    const Chunk* anih = Find(chunks, "anih");
    ASSERT_NE(anih, nullptr);
    ASSERT_EQ(anih->size, 36u);
    const std::uint32_t want[] = {36, 3, 3, 0, 0, 0, 0, 6, 1};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(Le32(anih->data, 4 * i), want[i]) << "field " << i;
    int icons = 0;
    for (const Chunk& c : chunks) {
        if (c.path != "LIST:fram/icon") continue;
        ++icons;
        // A one-image cursor with the set's hotspot and its data at 22.
        EXPECT_EQ(c.data[2], 2);
        EXPECT_EQ(c.data[4], 1);
        EXPECT_EQ(c.data[10] | (c.data[11] << 8), 3);
        EXPECT_EQ(c.data[12] | (c.data[13] << 8), 4);
        EXPECT_EQ(Le32(c.data, 18), 22u);
        EXPECT_EQ(Le32(c.data, 14) + 22, c.size);
    }
    EXPECT_EQ(icons, 3);
}

TEST(AnimatedCursorWriter, NameArtistRatesAndSequence) {
    AniFixture f(3);
    f.set.properties.name = "Spin";      // even
    f.set.properties.artist = "Q. Ann";  // 6: even
    f.set.properties.name = "Spinner";   // 7: odd, padded
    f.set.Info(1).rate = 12;
    f.set.properties.sequence = "2,0,1,0,";
    f.set.animation.sequenceInUse = true;
    Bytes file = BuildAnimatedCursor(f.set, f.context).value();
    auto chunks = WalkFile(file);
    const Chunk* name = Find(chunks, "LIST:INFO/INAM");
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->size, 7u);  // the pad byte is not counted
    EXPECT_EQ(std::string(name->data.begin(), name->data.end()), "Spinner");
    const Chunk* artist = Find(chunks, "LIST:INFO/IART");
    ASSERT_NE(artist, nullptr);
    EXPECT_EQ(std::string(artist->data.begin(), artist->data.end()), "Q. Ann");
    const Chunk* anih = Find(chunks, "anih");
    EXPECT_EQ(Le32(anih->data, 8), 4u);   // steps: the sequence's length
    EXPECT_EQ(Le32(anih->data, 32), 1u);  // flags stay 1 with a sequence
    const Chunk* rate = Find(chunks, "rate");
    ASSERT_NE(rate, nullptr);
    ASSERT_EQ(rate->size, 16u);
    const std::uint32_t rates[] = {6, 6, 12, 6};  // the rate of the frame at each step
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Le32(rate->data, 4 * i), rates[i]);
    const Chunk* seq = Find(chunks, "seq ");
    ASSERT_NE(seq, nullptr);
    const std::uint32_t frames[] = {2, 0, 1, 0};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Le32(seq->data, 4 * i), frames[i]);
}

TEST(AnimatedCursorRoundTrip, ReadsBackWhatWasWritten) {
    AniFixture f(3);
    f.set.properties.name = "Busy";
    f.set.properties.artist = "Ann";
    f.set.Info(0).rate = 5;
    f.set.Info(1).rate = 10;
    f.set.Info(2).rate = 15;
    f.set.properties.sequence = "0,1,2,1,";
    f.set.animation.sequenceInUse = true;
    test::TempDir dir;
    auto path = (dir / "busy.ani").string();
    ASSERT_TRUE(WriteAnimatedCursor(path, f.set, f.context));
    IconSet back;
    ASSERT_TRUE(ReadIconFile(path, back, f.context));
    EXPECT_EQ(back.mode, FileMode::ANI);
    ASSERT_EQ(back.Count(), 3);
    EXPECT_EQ(back.properties.name, "Busy");
    EXPECT_EQ(back.properties.artist, "Ann");
    EXPECT_EQ(back.properties.sequence, "0,1,2,1,");
    EXPECT_TRUE(back.animation.sequenceInUse);
    EXPECT_EQ(back.animation.ratesText, "5|10|15|10");
    EXPECT_EQ(back.properties.hotspotX, 3);
    EXPECT_EQ(back.properties.hotspotY, 4);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(back.Info(i).rate, f.set.Info(i).rate);
        EXPECT_EQ(back.Image(i).Color(i, i), f.set.Image(i).Color(i, i));
    }
}

TEST(AnimatedCursorReader, DefaultRateAppliesWhenThereIsNoRateChunk) {
    AniFixture f(2, 9);
    test::TempDir dir;
    auto path = (dir / "even.ani").string();
    ASSERT_TRUE(WriteAnimatedCursor(path, f.set, f.context));
    IconSet back;
    ASSERT_TRUE(ReadIconFile(path, back, f.context));
    EXPECT_EQ(back.Info(0).rate, 9);
    EXPECT_EQ(back.Info(1).rate, 9);
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

Bytes ChunkBytes(const char* tag, const Bytes& data, std::uint32_t declared = UINT32_MAX) {
    Bytes out(tag, tag + 4);
    test::AppendLE32(out,
                     declared == UINT32_MAX ? static_cast<std::uint32_t>(data.size()) : declared);
    out.insert(out.end(), data.begin(), data.end());
    if (data.size() % 2) out.push_back(0);
    return out;
}

Bytes Words(std::initializer_list<std::uint32_t> words) {
    Bytes out;
    for (auto w : words)
        test::AppendLE32(out, w);
    return out;
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
    EXPECT_FALSE(ReadAnimationChunks(Riff(ChunkBytes("rate", Words({1, 2}), 4000)), set));

    // Odd sizes are padded; a sequence pointing past the frames loses those steps; a rate
    // array shorter than the steps gives rates to the steps it has.
    Bytes anih = Words({36, 2, 5, 0, 0, 0, 0, 4, 1});
    Bytes all = ChunkBytes("junk", Bytes(3, 7));
    Bytes more = ChunkBytes("anih", anih);
    all.insert(all.end(), more.begin(), more.end());
    more = ChunkBytes("seq ", Words({1, 7, 0, 1000000, 1}));
    all.insert(all.end(), more.begin(), more.end());
    more = ChunkBytes("rate", Words({20}));
    all.insert(all.end(), more.begin(), more.end());
    ASSERT_TRUE(ReadAnimationChunks(Riff(all), set));
    EXPECT_EQ(set.properties.sequence, "1,0,1,");
    EXPECT_TRUE(set.animation.sequenceInUse);
    EXPECT_EQ(set.Info(1).rate, 20);
    EXPECT_EQ(set.Info(0).rate, 4);
    EXPECT_EQ(set.animation.ratesText, "20");

    // A huge declared step count with no data behind it changes nothing.
    Bytes huge = ChunkBytes("anih", Words({36, 2, 0xFFFFFFF0u, 0, 0, 0, 0, 3, 1}));
    ASSERT_TRUE(ReadAnimationChunks(Riff(huge), set));
    EXPECT_EQ(set.Info(0).rate, 3);
    EXPECT_FALSE(set.animation.sequenceInUse);  // cleared before reading
}

TEST(AnimatedCursorReader, CorruptChunksFailTheWholeReadWithTheCorruptMessage) {
    AniFixture f(2);
    Bytes file = BuildAnimatedCursor(f.set, f.context).value();
    // Make the anih chunk claim more than the file holds.
    test::PutLE32(file, 16, 0x7FFFFFF0u);
    test::TempDir dir;
    test::WriteFileBytes(dir / "bad.ani", file);
    IconSet back;
    EXPECT_FALSE(ReadIconFile((dir / "bad.ani").string(), back, f.context));
    EXPECT_TRUE(back.Empty());
    ASSERT_EQ(f.messages.presenter.shown.size(), 1u);
    EXPECT_EQ(f.messages.presenter.shown[0].key, "CorruptFile");
}

}  // namespace
}  // namespace iw
