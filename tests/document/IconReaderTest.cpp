#include <gtest/gtest.h>

#include "document/io/IconFileReader.h"
#include "document/io/IconReaderSteps.h"
#include "imaging/StandardColors.h"
#include "services/core/TextCatalog.h"
#include "support/IcoBuilder.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

using test::BitmapEntry;
using test::BitmapSpec;
using test::BuildIconFile;
using test::Bytes;
using test::EntrySpec;
using test::Rgba;

struct ReadFixture {
    test::MessageFixture messages;
    test::RecordingProgress progress;
    NullLog log;
    CoreContext context{messages.service, progress, log};
    IconSet set;
    test::TempDir dir;

    bool ReadBytes(const Bytes& bytes, const std::string& name) {
        auto path = dir / name;
        test::WriteFileBytes(path, bytes);
        return ReadIconFile(path.string(), set, context);
    }
};

BitmapSpec Gradient(int w, int h, int bpp) {
    BitmapSpec spec;
    spec.width = w;
    spec.height = h;
    spec.bitCount = bpp;
    spec.pixel = [](int x, int y) {
        return Rgba{static_cast<std::uint8_t>(x * 9), static_cast<std::uint8_t>(y * 7),
                    static_cast<std::uint8_t>(x + y), static_cast<std::uint8_t>(x * 16 + y)};
    };
    return spec;
}

TEST(IconReaderHeader, RefusesCountZeroReservedAndCursorTypeAsCorrupt) {
    Bytes good = BuildIconFile({BitmapEntry(Gradient(16, 16, 32))});
    std::vector<std::pair<std::size_t, std::uint16_t>> breakers = {{0, 1}, {2, 2}, {2, 0}, {4, 0}};
    for (auto [at, value] : breakers) {
        ReadFixture f;
        Bytes bad = good;
        test::PutLE16(bad, at, value);
        EXPECT_FALSE(f.ReadBytes(bad, "x.ico")) << "field at " << at;
        EXPECT_EQ(f.set.LastIcon(), -1);
        ASSERT_EQ(f.messages.presenter.shown.size(), 1u);
        EXPECT_EQ(f.messages.presenter.shown[0].key, "CorruptFile");
        EXPECT_EQ(f.messages.presenter.shown[0].type, MessageType::Exclamation);
        EXPECT_NE(f.messages.presenter.shown[0].text.find("\n" + (f.dir / "x.ico").string()),
                  std::string::npos);
    }
}

TEST(IconReaderDirectory, EntryWithNonZeroReservedEndsTheDirectory) {
    std::vector<EntrySpec> entries = {BitmapEntry(Gradient(16, 16, 32)),
                                      BitmapEntry(Gradient(32, 32, 32)),
                                      BitmapEntry(Gradient(48, 48, 32))};
    entries[1].reserved = 1;
    ReadFixture f;
    ASSERT_TRUE(f.ReadBytes(BuildIconFile(entries), "x.ico"));
    EXPECT_EQ(f.set.Count(), 1);
    EXPECT_EQ(f.set.Info(0).Width(), 16);

    entries[0].reserved = 7;
    ReadFixture g;
    EXPECT_FALSE(g.ReadBytes(BuildIconFile(entries), "x.ico"));
    EXPECT_EQ(g.messages.presenter.shown.at(0).key, "CorruptFile");
}

TEST(IconReaderDirectory, TakesAtMost175Images) {
    Bytes one = test::BuildBitmap(Gradient(1, 1, 32));
    std::vector<EntrySpec> entries(200);
    for (auto& e : entries) {
        e.data = one;
        e.width = e.height = 1;
    }
    ReadFixture f;
    ASSERT_TRUE(f.ReadBytes(BuildIconFile(entries), "many.ico"));
    EXPECT_EQ(f.set.Count(), 175);
    EXPECT_EQ(f.set.LastIcon(), 174);
}

class DepthDecoding : public ::testing::TestWithParam<int> {};

TEST_P(DepthDecoding, ColoursAlphaAndMarkersLandInThePlanes) {
    const int bpp = GetParam();
    BitmapSpec spec;
    spec.width = 33;  // rows that need padding at every depth
    spec.height = 21;
    spec.bitCount = bpp;
    const int colours = bpp <= 8 ? 1 << bpp : 0;
    for (int i = 0; i < colours; ++i) {
        spec.palette.push_back(Rgba{static_cast<std::uint8_t>(i * 37),
                                    static_cast<std::uint8_t>(i * 11),
                                    static_cast<std::uint8_t>(255 - i), 0});
    }
    if (bpp <= 8) {
        spec.palette[0] = Rgba{0, 0, 0, 0};        // black, for transparent pixels
        spec.palette[1] = Rgba{255, 255, 255, 0};  // white, for inverting pixels
    }
    auto expectedColor = [&](int x, int y) -> PackedColor {
        Rgba c = spec.pixel(x, y);
        if (bpp <= 8) {
            Rgba p = spec.palette[c.r];
            return PackColor(p.r, p.g, p.b);
        }
        return PackColor(c.r, c.g, c.b);
    };
    spec.pixel = [&](int x, int y) -> Rgba {
        if (x == 0) return Rgba{0, 0, 0, 0};  // black (masked below)
        if (x == 1) return bpp <= 8 ? Rgba{1, 0, 0, 0} : Rgba{255, 255, 255, 9};  // white
        if (bpp <= 8) return Rgba{static_cast<std::uint8_t>((x * 3 + y) % colours), 0, 0, 0};
        return Rgba{static_cast<std::uint8_t>(x * 7), static_cast<std::uint8_t>(y * 12),
                    static_cast<std::uint8_t>(x ^ y), static_cast<std::uint8_t>(x * 5 + y)};
    };
    spec.masked = [](int x, int y) { return x <= 1 || (x == 5 && y == 3); };

    ReadFixture f;
    ASSERT_TRUE(f.ReadBytes(BuildIconFile({BitmapEntry(spec)}), "d.ico"));
    ASSERT_EQ(f.set.Count(), 1);
    const IconImage& image = f.set.Image(0);
    EXPECT_EQ(image.info.Width(), 33);
    EXPECT_EQ(image.info.Height(), 21);
    EXPECT_EQ(image.info.png, 0);
    for (int y = 0; y < 21; ++y) {
        for (int x = 0; x < 33; ++x) {
            SCOPED_TRACE(::testing::Message() << "x=" << x << " y=" << y);
            PackedColor want = expectedColor(x, y);
            // A set mask bit over black is transparent; over white it inverts the screen,
            // except in images with alpha; over any other colour it keeps the colour.
            if (spec.masked(x, y) && want == 0) want = TransparentColor;
            if (spec.masked(x, y) && want == 0xFFFFFF) {
                want = bpp == 32 ? TransparentColor : InverseColor;
            }
            ASSERT_EQ(image.Color(x, y), want);
            const int alpha = bpp == 32 ? spec.pixel(x, y).a : 0;
            ASSERT_EQ(image.Alpha(x, y), alpha);
        }
    }
    // Nothing outside the image's own corner is touched.
    EXPECT_EQ(image.Color(33, 0), 0);
    EXPECT_EQ(image.Color(0, 21), 0);
}

INSTANTIATE_TEST_SUITE_P(EveryDepth, DepthDecoding, ::testing::Values(1, 4, 8, 24, 32));

TEST(IconReaderSides, NonSquareBitmapKeepsItsWidthInFieldZero) {
    BitmapSpec spec = Gradient(16, 32, 24);
    EntrySpec entry = BitmapEntry(spec);
    ReadFixture f;
    ASSERT_TRUE(f.ReadBytes(BuildIconFile({entry}), "tall.ico"));
    const IconInfo& info = f.set.Info(0);
    EXPECT_EQ(info.widthMinus1, 15);
    EXPECT_EQ(info.heightMinus1, 31);
    Rgba c = spec.pixel(15, 31);
    EXPECT_EQ(f.set.Image(0).Color(15, 31), PackColor(c.r, c.g, c.b));
}

TEST(IconReaderSides, DirectoryZeroMeans256ForPngEntries) {
    EntrySpec png;
    png.data = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n', 0, 0, 0, 0};
    png.width = 256;
    png.height = 256;
    ReadFixture f;
    ASSERT_TRUE(f.ReadBytes(BuildIconFile({png}), "big.ico"));
    EXPECT_EQ(f.set.Info(0).png, 1);
    EXPECT_EQ(f.set.Info(0).widthMinus1, 255);
    EXPECT_EQ(f.set.Info(0).heightMinus1, 255);
}

TEST(IconReaderHostile, CutOffEntryKeepsTheRowsThatArePresent) {
    BitmapSpec spec = Gradient(8, 8, 32);
    Bytes file = BuildIconFile({BitmapEntry(spec)});
    // Rows are stored bottom-up: keep rows 7, 6 and 5 whole and two pixels of row 4.
    const std::size_t colourStart = 6 + 16 + 40;
    file.resize(colourStart + 3 * 32 + 8);
    IconSet set;
    NullProgress progress;
    ASSERT_TRUE(ReadIconData(file, "cut.ico", set, progress).Ok());
    const IconImage& image = set.Image(0);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool present = y >= 5 || (y == 4 && x < 2);
            Rgba c = spec.pixel(x, y);
            EXPECT_EQ(image.Color(x, y), present ? PackColor(c.r, c.g, c.b) : 0)
                << "x=" << x << " y=" << y;
            EXPECT_EQ(image.Alpha(x, y), present ? c.a : 0);
        }
    }
}

TEST(IconReaderHostile, EntryBeyondTheFileStaysBlankAndTheReadGoesOn) {
    std::vector<EntrySpec> entries = {BitmapEntry(Gradient(16, 16, 32)),
                                      BitmapEntry(Gradient(24, 24, 32))};
    Bytes file = BuildIconFile(entries);
    test::PutLE32(file, 6 + 12, 0xFFFFFFF0u);  // first entry's offset far past the end
    IconSet set;
    NullProgress progress;
    ASSERT_TRUE(ReadIconData(file, "x.ico", set, progress).Ok());
    ASSERT_EQ(set.Count(), 2);
    EXPECT_EQ(set.Image(0).Color(3, 3), 0);
    EXPECT_EQ(set.Info(1).Width(), 24);
    Rgba c = Gradient(24, 24, 32).pixel(3, 3);
    EXPECT_EQ(set.Image(1).Color(3, 3), PackColor(c.r, c.g, c.b));
}

TEST(IconReaderHostile, HeaderWithImpossibleSidesLeavesTheDirectoryValues) {
    Bytes file = BuildIconFile({BitmapEntry(Gradient(16, 16, 32))});
    test::PutLE32(file, 6 + 16 + 4, 100000);  // header width
    IconSet set;
    NullProgress progress;
    ASSERT_TRUE(ReadIconData(file, "x.ico", set, progress).Ok());
    EXPECT_EQ(set.Info(0).Width(), 16);
    EXPECT_EQ(set.Image(0).Color(1, 1), 0);
}

TEST(SalvageReader, FindsHeadersAnywhereAndAppliesEveryTest) {
    Bytes bitmap = test::BuildBitmap(Gradient(16, 16, 8));
    Bytes file;
    file.reserve(37 + bitmap.size() + 13);
    file.resize(37, 0xAB);
    file.insert(file.end(), bitmap.begin(), bitmap.end());
    file.resize(file.size() + 13, 0xCD);
    const std::size_t at = 37;
    EXPECT_TRUE(detail::IsBitmapHeaderAt(file, at));
    EXPECT_FALSE(detail::IsBitmapHeaderAt(file, at + 1));

    auto rejects = [&](std::size_t offset, std::uint8_t value) {
        Bytes bad = file;
        bad[at + offset] = value;
        return !detail::IsBitmapHeaderAt(bad, at);
    };
    EXPECT_TRUE(rejects(1, 1));
    EXPECT_TRUE(rejects(16, 1));
    EXPECT_TRUE(rejects(18, 1));
    EXPECT_TRUE(rejects(24, 1));
    EXPECT_TRUE(rejects(12, 2));    // planes
    EXPECT_TRUE(rejects(14, 2));    // bit count
    EXPECT_FALSE(rejects(20, 99));  // image size is not tested
    Bytes sides = file;
    test::PutLE32(sides, at + 4, 257);
    EXPECT_FALSE(detail::IsBitmapHeaderAt(sides, at));
    test::PutLE32(sides, at + 4, 256);
    test::PutLE32(sides, at + 8, 514);
    EXPECT_FALSE(detail::IsBitmapHeaderAt(sides, at));
    test::PutLE32(sides, at + 8, 0);
    EXPECT_FALSE(detail::IsBitmapHeaderAt(sides, at));
    // A header must be followed by more than its own 40 bytes.
    Bytes tight(file.begin(), file.begin() + static_cast<long>(at) + 40);
    EXPECT_FALSE(detail::IsBitmapHeaderAt(tight, at));

    ReadFixture f;
    ASSERT_TRUE(f.ReadBytes(file, "embedded.dll"));
    ASSERT_EQ(f.set.Count(), 1);
    EXPECT_EQ(f.set.Info(0).bitCount, 8);
    EXPECT_EQ(f.set.mode, FileMode::ICO);
    EXPECT_EQ(f.progress.statuses.front(), "Getting Icon Information");
}

TEST(SalvageReader, FileWithoutHeadersIsCorruptOrARenamedPicture) {
    ReadFixture f;
    EXPECT_FALSE(f.ReadBytes(Bytes(5000, 0x28), "x.cur"));
    EXPECT_EQ(f.messages.presenter.shown.at(0).key, "CorruptFile");

    ReadFixture g;
    Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
    png.resize(300, 0);
    EXPECT_FALSE(g.ReadBytes(png, "renamed.ico"));
    EXPECT_EQ(g.messages.presenter.shown.at(0).key, "RenamedPicture");
    EXPECT_EQ(
        g.messages.presenter.shown.at(0).text,
        std::string(texts::RenamedPicture.defaultText) + "\n" + (g.dir / "renamed.ico").string());
}

TEST(IconReaderFailures, MissingAndEmptyFilesAreCorrupt) {
    ReadFixture f;
    EXPECT_FALSE(ReadIconFile((f.dir / "absent.ico").string(), f.set, f.context));
    EXPECT_FALSE(f.ReadBytes({}, "empty.ico"));
    ASSERT_EQ(f.messages.presenter.shown.size(), 2u);
    EXPECT_EQ(f.messages.presenter.shown[0].key, "CorruptFile");
    EXPECT_EQ(f.messages.presenter.shown[1].key, "CorruptFile");
}

TEST(CursorReading, HotspotComesFromTheFirstEntryOnlyForCursors) {
    std::vector<EntrySpec> entries = {BitmapEntry(Gradient(32, 32, 32)),
                                      BitmapEntry(Gradient(16, 16, 32))};
    entries[0].planes = 5;
    entries[0].bitCount = 27;
    entries[1].planes = 9;
    entries[1].bitCount = 9;
    Bytes file = BuildIconFile(entries, 2);
    ReadFixture f;
    ASSERT_TRUE(f.ReadBytes(file, "arrow.CUR"));
    EXPECT_EQ(f.set.mode, FileMode::CUR);
    EXPECT_EQ(f.set.Count(), 2);
    EXPECT_EQ(f.set.properties.hotspotX, 5);
    EXPECT_EQ(f.set.properties.hotspotY, 27);
    EXPECT_EQ(f.set.Info(0).bitCount, 32);  // from the bitmap header, not the hotspot field
}

TEST(Standard16Check, NonStandardImagesBecome8BitWithOneMessage) {
    auto fourBit = [](Rgba second) {
        BitmapSpec spec;
        spec.width = spec.height = 8;
        spec.bitCount = 4;
        for (PackedColor c : kStandard16Colors) {
            spec.palette.push_back(Rgba{static_cast<std::uint8_t>(RedOf(c)),
                                        static_cast<std::uint8_t>(GreenOf(c)),
                                        static_cast<std::uint8_t>(BlueOf(c)), 0});
        }
        spec.palette[2] = second;
        spec.pixel = [](int x, int) { return Rgba{static_cast<std::uint8_t>(x), 0, 0, 0}; };
        spec.masked = [](int x, int) { return x == 0; };
        return BitmapEntry(spec);
    };
    Rgba odd{1, 2, 3, 0};
    Rgba standard{0, 128, 0, 0};
    ReadFixture f;
    ASSERT_TRUE(
        f.ReadBytes(BuildIconFile({fourBit(odd), fourBit(standard), fourBit(odd)}), "p.ico"));
    EXPECT_EQ(f.set.Info(0).bitCount, 8);
    EXPECT_EQ(f.set.Info(1).bitCount, 4);
    EXPECT_EQ(f.set.Info(2).bitCount, 8);
    ASSERT_EQ(f.messages.presenter.shown.size(), 1u);
    EXPECT_EQ(f.messages.presenter.shown[0].key, "Bad16Icons");
    EXPECT_EQ(f.messages.presenter.shown[0].type, MessageType::Information);

    // Suppressed once, it stays quiet.
    ReadFixture g;
    g.messages.store.SetBool("Messages\\Bad16Icons", true);
    ASSERT_TRUE(g.ReadBytes(BuildIconFile({fourBit(odd)}), "p.ico"));
    EXPECT_EQ(g.set.Info(0).bitCount, 8);
    EXPECT_TRUE(g.messages.presenter.shown.empty());
}

TEST(IconReaderProgress, ReportsEachImageAndClearsTheStatusAfterwards) {
    ReadFixture f;
    ASSERT_TRUE(f.ReadBytes(
        BuildIconFile({BitmapEntry(Gradient(16, 16, 32)), BitmapEntry(Gradient(32, 32, 24))}),
        "two.ico"));
    std::vector<std::string> want = {"Loading icon 1 of 2.", "Loading icon 2 of 2.", ""};
    EXPECT_EQ(f.progress.statuses, want);
    EXPECT_GE(f.progress.yields, 2);
}

}  // namespace
}  // namespace iw
