// The icon reader on files built here: the header and directory rules, every depth with its
// markers, the crossed sides, hostile entries, the salvage scan, cursors, the sixteen colours
// and the progress texts.

#include <gtest/gtest.h>

#include "document/io/IconFileReader.h"
#include "document/io/IconReaderSteps.h"
#include "imaging/StandardColors.h"
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
using Keys = std::vector<std::string>;

// Writes `bytes` as `name` in the fixture's folder and reads it as the program opens files.
bool Read(test::CoreFixture& f, IconSet& set, const Bytes& bytes, const std::string& name) {
    test::WriteFileBytes(f.dir / name, bytes);
    return ReadIconFile((f.dir / name).string(), set, f.context);
}

IconSet ReadData(const Bytes& bytes, const std::string& name = "x.ico") {
    IconSet set;
    NullProgress progress;
    EXPECT_TRUE(ReadIconData(bytes, name, set, progress).Ok());
    return set;
}

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

PackedColor ColorOf(const BitmapSpec& spec, int x, int y) {
    const Rgba c = spec.pixel(x, y);
    return PackColor(c.r, c.g, c.b);
}

TEST(IconReader, RefusesABadHeaderAndAFirstEntryWithReservedSetAsCorrupt) {
    const Bytes good = BuildIconFile({BitmapEntry(Gradient(16, 16, 32))});
    // reserved 1, type 2 (a cursor's, in an .ico), type 0, no entries, entry reserved byte
    for (auto [at, value] : {std::pair{0, 1}, {2, 2}, {2, 0}, {4, 0}, {9, 7}}) {
        test::CoreFixture f;
        Bytes bad = good;
        bad[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(value);
        if (at != 9) bad[static_cast<std::size_t>(at) + 1] = 0;
        IconSet set;
        EXPECT_FALSE(Read(f, set, bad, "x.ico")) << "field at " << at;
        EXPECT_TRUE(set.Empty());
        EXPECT_EQ(f.presenter.Keys(), Keys{"CorruptFile"});
        EXPECT_EQ(f.presenter.shown[0].type, MessageType::Exclamation);
        EXPECT_TRUE(f.presenter.shown[0].text.ends_with("\n" + (f.dir / "x.ico").string()));
    }
}

TEST(IconReader, AnEntryWithReservedSetEndsTheDirectoryAndAt175ItEnds) {
    std::vector<EntrySpec> entries = {BitmapEntry(Gradient(16, 16, 32)),
                                      BitmapEntry(Gradient(32, 32, 32)),
                                      BitmapEntry(Gradient(48, 48, 32))};
    entries[1].reserved = 1;
    EXPECT_EQ(ReadData(BuildIconFile(entries)).Count(), 1);

    entries.assign(200, BitmapEntry(Gradient(1, 1, 32)));
    EXPECT_EQ(ReadData(BuildIconFile(entries)).Count(), 175);
}

class DepthDecoding : public ::testing::TestWithParam<int> {};

// A set mask bit over black is transparent; over white it inverts the screen, except in
// images with alpha; over any other colour it keeps the colour.
TEST_P(DepthDecoding, ColoursAlphaAndMarkersLandInThePlanes) {
    const int bpp = GetParam();
    const int colours = bpp <= 8 ? 1 << bpp : 0;
    BitmapSpec spec = Gradient(33, 21, bpp);  // rows that need padding at every depth
    for (int i = 0; i < colours; ++i) {
        spec.palette.push_back(Rgba{static_cast<std::uint8_t>(i * 37),
                                    static_cast<std::uint8_t>(i * 11),
                                    static_cast<std::uint8_t>(255 - i), 0});
    }
    if (bpp <= 8) spec.palette[0] = Rgba{0, 0, 0, 0}, spec.palette[1] = Rgba{255, 255, 255, 0};
    spec.pixel = [&](int x, int y) -> Rgba {
        if (x == 0) return Rgba{0, 0, 0, 0};  // black (masked below)
        if (x == 1) return bpp <= 8 ? Rgba{1, 0, 0, 0} : Rgba{255, 255, 255, 9};  // white
        if (bpp <= 8) return Rgba{static_cast<std::uint8_t>((x * 3 + y) % colours), 0, 0, 0};
        return Rgba{static_cast<std::uint8_t>(x * 7), static_cast<std::uint8_t>(y * 12),
                    static_cast<std::uint8_t>(x ^ y), static_cast<std::uint8_t>(x * 5 + y)};
    };
    spec.masked = [](int x, int y) { return x <= 1 || (x == 5 && y == 3); };

    const IconSet set = ReadData(BuildIconFile({BitmapEntry(spec)}), "d.ico");
    ASSERT_EQ(set.Count(), 1);
    const IconImage& image = set.Image(0);
    EXPECT_EQ(std::tuple(image.info.Width(), image.info.Height(), image.info.png),
              std::tuple(33, 21, 0));
    for (int y = 0; y < 21; ++y) {
        for (int x = 0; x < 33; ++x) {
            const Rgba c = spec.pixel(x, y);
            const Rgba p = bpp <= 8 ? spec.palette[c.r] : c;
            PackedColor want = PackColor(p.r, p.g, p.b);
            if (spec.masked(x, y) && want == 0) want = TransparentColor;
            if (spec.masked(x, y) && want == 0xFFFFFF) {
                want = bpp == 32 ? TransparentColor : InverseColor;
            }
            ASSERT_EQ(image.Color(x, y), want) << x << "," << y;
            ASSERT_EQ(image.Alpha(x, y), bpp == 32 ? c.a : 0) << x << "," << y;
        }
    }
    EXPECT_EQ(image.Color(33, 0) | image.Color(0, 21), 0);  // nothing outside its corner
}

INSTANTIATE_TEST_SUITE_P(EveryDepth, DepthDecoding, ::testing::Values(1, 4, 8, 24, 32));

TEST(IconReader, ABitmapKeepsItsWidthInFieldZeroAndAPngEntryOfZeroIs256) {
    const BitmapSpec tall = Gradient(16, 32, 24);
    IconSet set = ReadData(BuildIconFile({BitmapEntry(tall)}));
    EXPECT_EQ(std::pair(set.Info(0).widthMinus1, set.Info(0).heightMinus1),
              (std::pair<short, short>(15, 31)));
    EXPECT_EQ(set.Image(0).Color(15, 31), ColorOf(tall, 15, 31));

    EntrySpec png;
    png.data = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n', 0, 0, 0, 0};
    png.width = png.height = 256;
    set = ReadData(BuildIconFile({png}));
    EXPECT_EQ(std::tuple(set.Info(0).png, set.Info(0).widthMinus1, set.Info(0).heightMinus1),
              (std::tuple<short, short, short>(1, 255, 255)));
}

TEST(IconReader, ACutOffEntryKeepsTheRowsThatArePresent) {
    const BitmapSpec spec = Gradient(8, 8, 32);
    Bytes file = BuildIconFile({BitmapEntry(spec)});
    // Rows are stored bottom-up: keep rows 7, 6 and 5 whole and two pixels of row 4.
    file.resize(6 + 16 + 40 + 3 * 32 + 8);
    const IconSet set = ReadData(file, "cut.ico");
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool present = y >= 5 || (y == 4 && x < 2);
            EXPECT_EQ(set.Image(0).Color(x, y), present ? ColorOf(spec, x, y) : 0) << x << "," << y;
            EXPECT_EQ(set.Image(0).Alpha(x, y), present ? spec.pixel(x, y).a : 0);
        }
    }
}

// An offset past the end, or a header whose sides cannot be: the image stays blank with
// the directory's sides and the read goes on with the next.
TEST(IconReader, AnEntryThatCannotBeDecodedStaysBlankAndTheReadGoesOn) {
    const BitmapSpec second = Gradient(24, 24, 32);
    for (auto [at, value] : {std::pair{6 + 12, 0xFFFFFFF0u}, {6 + 32 + 4, 100000u}}) {
        Bytes file = BuildIconFile({BitmapEntry(Gradient(16, 16, 32)), BitmapEntry(second)});
        test::PutLE32(file, static_cast<std::size_t>(at), value);
        const IconSet set = ReadData(file);
        ASSERT_EQ(set.Count(), 2);
        EXPECT_EQ(set.Info(0).Width(), 16);
        EXPECT_EQ(set.Image(0).Color(3, 3), 0);
        EXPECT_EQ(set.Image(1).Color(3, 3), ColorOf(second, 3, 3));
    }
}

TEST(SalvageReader, FindsHeadersAnywhereAndAppliesEveryTest) {
    const Bytes bitmap = test::BuildBitmap(Gradient(16, 16, 8));
    Bytes file;
    file.reserve(37 + bitmap.size() + 13);
    file.resize(37, 0xAB);
    file.insert(file.end(), bitmap.begin(), bitmap.end());
    file.resize(file.size() + 13, 0xCD);
    const std::size_t at = 37;
    EXPECT_TRUE(detail::IsBitmapHeaderAt(file, at));
    EXPECT_FALSE(detail::IsBitmapHeaderAt(file, at + 1));
    // Header size, width and height high bytes, planes, bit count, compression; width 257,
    // height of 257 rows, height 0. The image size is not looked at.
    const std::tuple<std::size_t, std::uint32_t, bool> changes[] = {
        {1, 1, false},  {16, 1, false},  {18, 1, false},  {24, 1, false}, {12, 2, false},
        {14, 2, false}, {4, 257, false}, {8, 514, false}, {8, 0, false},  {20, 99, true}};
    for (const auto& [offset, value, accepted] : changes) {
        Bytes changed = file;
        if (offset == 4 || offset == 8) {
            test::PutLE32(changed, at + offset, value);
        } else {
            changed[at + offset] = static_cast<std::uint8_t>(value);
        }
        EXPECT_EQ(detail::IsBitmapHeaderAt(changed, at), accepted) << offset << " = " << value;
    }
    // A header must be followed by more than its own 40 bytes.
    EXPECT_FALSE(detail::IsBitmapHeaderAt(std::span(file).first(at + 40), at));

    test::CoreFixture f;
    IconSet set;
    ASSERT_TRUE(Read(f, set, file, "embedded.dll"));
    ASSERT_EQ(set.Count(), 1);
    EXPECT_EQ(std::pair(set.Info(0).bitCount, set.mode),
              (std::pair<short, FileMode>(8, FileMode::ICO)));
    EXPECT_EQ(f.progress.statuses.front(), "Getting Icon Information");
}

TEST(IconReader, FilesWithoutImagesAreCorruptOrARenamedPicture) {
    Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
    png.resize(300, 0);
    const std::pair<Bytes, std::string> files[] = {
        {Bytes(5000, 0x28), "x.cur"}, {{}, "empty.ico"}, {png, "renamed.ico"}};
    test::CoreFixture f;
    IconSet set;
    EXPECT_FALSE(ReadIconFile((f.dir / "absent.ico").string(), set, f.context));
    for (const auto& [bytes, name] : files)
        EXPECT_FALSE(Read(f, set, bytes, name)) << name;
    EXPECT_EQ(f.presenter.Keys(),
              (Keys{"CorruptFile", "CorruptFile", "CorruptFile", "RenamedPicture"}));
    EXPECT_TRUE(f.presenter.shown.back().text.ends_with("\n" + (f.dir / "renamed.ico").string()));
}

TEST(IconReader, ACursorTakesItsHotspotFromTheFirstEntry) {
    std::vector<EntrySpec> entries = {BitmapEntry(Gradient(32, 32, 32)),
                                      BitmapEntry(Gradient(16, 16, 32))};
    entries[0].planes = 5, entries[0].bitCount = 27;
    entries[1].planes = 9, entries[1].bitCount = 9;
    const IconSet set = ReadData(BuildIconFile(entries, 2), "arrow.CUR");
    EXPECT_EQ(std::tuple(set.mode, set.Count(), set.properties.hotspotX, set.properties.hotspotY),
              (std::tuple<FileMode, int, short, short>(FileMode::CUR, 2, 5, 27)));
    EXPECT_EQ(set.Info(0).bitCount, 32);  // from the bitmap header, not the hotspot field
}

TEST(IconReader, FourBitImagesOutsideTheSixteenBecome8BitWithOneMessage) {
    auto fourBit = [](Rgba second) {
        BitmapSpec spec = Gradient(8, 8, 4);
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
    const Rgba odd{1, 2, 3, 0};
    const Bytes file = BuildIconFile({fourBit(odd), fourBit({0, 128, 0, 0}), fourBit(odd)});
    for (bool suppressed : {false, true}) {
        test::CoreFixture f;
        f.store.SetBool("Messages\\Bad16Icons", suppressed);
        IconSet set;
        ASSERT_TRUE(Read(f, set, file, "p.ico"));
        EXPECT_EQ(std::tuple(set.Info(0).bitCount, set.Info(1).bitCount, set.Info(2).bitCount),
                  (std::tuple<short, short, short>(8, 4, 8)));
        EXPECT_EQ(f.presenter.Keys(), suppressed ? Keys{} : Keys{"Bad16Icons"});
        // Each image is reported, and the status cleared afterwards.
        EXPECT_EQ(f.progress.statuses, (Keys{"Loading icon 1 of 3.", "Loading icon 2 of 3.",
                                             "Loading icon 3 of 3.", ""}));
        EXPECT_GE(f.progress.yields, 3);
    }
}

}  // namespace
}  // namespace iw
