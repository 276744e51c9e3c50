// Every input that ever broke something is kept under tests/data/crashers/ and is fed here
// to the icon readers and to inflate, whatever decoder it was found in (the PNG decoder
// takes them all in its mutation test). Whatever reads must write again and read back; the
// findings about reading and writing icons are also held to what each of them showed.

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "codec/zlib/Compression.h"
#include "document/io/IconFileReader.h"
#include "document/io/ImageRgba.h"
#include "support/TestSupport.h"
#include "support/WriteReadBack.h"

namespace iw {
namespace {

using Path = std::filesystem::path;

// The set read from `file` under its own name.
IconSet ReadAsNamed(const Path& file) {
    IconSet set;
    NullProgress progress;
    EXPECT_TRUE(
        ReadIconData(test::ReadFileBytes(file), file.filename().string(), set, progress).Ok());
    return set;
}

// An image whose depth no writer knows stays a blank 32-bit image.
void BlankAndThirtyTwoBit(const Path& file) {
    const IconSet set = ReadAsNamed(file);
    EXPECT_EQ(set.Info(0).bitCount, 32);
    const auto rgba = ImageToRgba(set.Image(0));
    EXPECT_EQ(std::count(rgba.begin(), rgba.end(), 0), static_cast<long>(rgba.size()));
}

// One bad text in the INFO list lost the whole animated cursor.
void FramesRatesAndSequenceKept(const Path& file) {
    const IconSet set = ReadAsNamed(file);
    EXPECT_EQ(set.Count(), 2);
    EXPECT_EQ(set.properties.name, "Spin!");
    EXPECT_EQ(set.properties.sequence, "0,1,0,");
    EXPECT_EQ(set.Info(1).rate, 9);
}

// A 256-pixel PNG entry went into cursors as PNG, which the cursor reader never finds.
void SamePixelsInCursors(const Path& file) {
    const IconSet set = ReadAsNamed(file);
    QuietContext quiet;
    CoreContext& context = quiet.Context();
    for (const auto& [bytes, name] :
         {std::pair{BuildCursorFile(set, 0, 0, 0, context), "c.cur"},
          std::pair{BuildAnimatedCursor(set, context), "c.ani"}}) {
        IconSet back;
        ASSERT_TRUE(bytes && ReadIconData(*bytes, name, back, context.progress).Ok());
        EXPECT_TRUE(test::SamePixels(set.Image(0), back.Image(0))) << name;
    }
}

// Damaged pictures are told apart as the reader does, for every command.
void RefusedWith(const Path& file, const std::string& key) {
    test::CoreFixture f;
    IconSet set;
    EXPECT_FALSE(ReadIconFile(file.string(), set, f.context));
    EXPECT_EQ(f.presenter.Keys(), std::vector{key});
}

// What each finding showed, beyond reading cleanly and writing back.
const std::map<std::string, std::function<void(const Path&)>>& Findings() {
    static const std::map<std::string, std::function<void(const Path&)>> findings = {
        // Saving crashed on the directory's bit count when the header's could not be used.
        {"ico-directory-bitcount-0-header-16bpp.ico", BlankAndThirtyTwoBit},
        {"ico-directory-bitcount-2-header-16bpp.ico", BlankAndThirtyTwoBit},
        {"ico-directory-bitcount-7-header-16bpp.ico", BlankAndThirtyTwoBit},
        {"ico-directory-bitcount-0-header-sides-too-large.ico", BlankAndThirtyTwoBit},
        // A PNG entry is a 32-bit image whatever the directory says: its alpha stays.
        {"png-entry-directory-bitcount-8.ico",
         [](const Path& file) {
             const auto rgba = ImageToRgba(ReadAsNamed(file).Image(0));
             EXPECT_EQ(rgba[4 * 17 + 3], 17);
         }},
        // Its IHDR's sides, which the write check holds the directory written to as well.
        {"png-entry-non-square-48x33.ico",
         [](const Path& file) { EXPECT_EQ(ReadAsNamed(file).Info(0).Width(), 48); }},
        {"png-entry-256-for-cursors.ico", SamePixelsInCursors},
        {"ani-info-odd-name-without-pad-byte.ani", FramesRatesAndSequenceKept},
        {"ani-info-text-longer-than-its-list.ani", FramesRatesAndSequenceKept},
        {"png-cut-short-renamed.ico",
         [](const Path& file) { RefusedWith(file, "RenamedPicture"); }},
        {"png-bad-signature.png", [](const Path& file) { RefusedWith(file, "CorruptFile"); }},
    };
    return findings;
}

TEST(CrasherReplay, EveryFindingGoesCleanlyThroughEveryDecoderAndWritesBack) {
    const auto folder = test::TestDataPath("crashers");
    int files = 0;
    int known = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        SCOPED_TRACE(name);
        const std::vector<std::uint8_t> bytes = test::ReadFileBytes(entry.path());
        ++files;
        for (const char* as : {"f.ico", "f.cur", "f.ani", "f.bin"}) {
            SCOPED_TRACE(as);
            IconSet set;
            NullProgress progress;
            IconReadResult result = ReadIconData(bytes, as, set, progress);
            EXPECT_EQ(result.Ok(), !set.Empty());
            if (result.Ok()) {
                EXPECT_EQ(test::CheckWriteAndReadBack(set), "");
            }
        }
        std::vector<std::uint8_t> out;
        for (bool own : {false, true}) {
            std::optional<ScopedZlibDisabled> disabled;
            if (own) disabled.emplace();
            if (ZlibDecompress(bytes, 1 << 20, out) == InflateStatus::Ok) {
                EXPECT_LE(out.size(), 1u << 20);
            }
        }
        if (auto finding = Findings().find(name); finding != Findings().end()) {
            ++known;
            finding->second(entry.path());
        }
    }
    EXPECT_GE(files, 1);
    EXPECT_EQ(known, static_cast<int>(Findings().size()));  // every finding is on disk
}

}  // namespace
}  // namespace iw
