// The Photoshop reader on tiny files written here: raw and PackBits, 8 and 16 bits, the
// other colour models, the merged transparency, and hostile files.

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

#include "PsdTestFiles.h"
#include "document/io/PsdReader.h"

namespace iw {
namespace {

constexpr DecodeLimits kLimits{4096, 4096, 1u << 22};

std::uint8_t Sample(const test::PsdSpec& s, int c, int x, int y) {
    const int v = s.sample(c, x, y);
    return static_cast<std::uint8_t>(s.depth == 16 ? v >> 8 : v);
}

TEST(PsdReader, RgbRawAndPackedGiveTheStoredPixels) {
    for (int compression : {0, 1}) {
        for (int depth : {8, 16}) {
            test::PsdSpec spec;
            spec.width = 300;  // rows longer than one PackBits run
            spec.compression = compression;
            spec.depth = depth;
            spec.channels = 4;  // an extra channel that is not marked as transparency
            spec.sample = [depth](int c, int x, int y) {
                const int v = x < 150 ? 7 * c + 40 : (x * 13 + y * 5 + c) & 0xFF;
                return depth == 16 ? v * 257 : v;
            };
            RgbaBuffer picture;
            ASSERT_EQ(DecodePsd(test::BuildPsd(spec), kLimits, false, picture), PsdStatus::Ok);
            ASSERT_EQ(picture.Width(), 300);
            ASSERT_EQ(picture.Height(), 3);
            for (int y = 0; y < 3; ++y) {
                for (int x = 0; x < 300; x += 7) {
                    const Rgba expected{Sample(spec, 0, x, y), Sample(spec, 1, x, y),
                                        Sample(spec, 2, x, y), 255};
                    ASSERT_EQ(picture.At(x, y), expected) << compression << " " << depth;
                }
            }
        }
    }
}

// A colour at `alpha` over white, as Photoshop stores the merged image.
int RoundedBlend(int color, int alpha) {
    return (color * alpha + 255 * (255 - alpha) + 127) / 255;
}

TEST(PsdReader, MergedTransparencyIsTakenOffWhite) {
    // Photoshop stores the merged colours blended over white.
    const int alphas[] = {0, 1, 128, 255};
    test::PsdSpec spec;
    spec.channels = 4;
    spec.mergedAlpha = true;
    spec.compression = 1;
    spec.sample = [&](int c, int x, int) {
        const int alpha = alphas[x];
        if (c == 3) return alpha;
        const int color[3] = {200, 100, 0};
        return RoundedBlend(color[c], alpha);
    };
    RgbaBuffer picture;
    ASSERT_EQ(DecodePsd(test::BuildPsd(spec), kLimits, false, picture), PsdStatus::Ok);
    EXPECT_EQ(picture.At(0, 0), Rgba{});
    EXPECT_EQ(picture.At(3, 1), (Rgba{200, 100, 0, 255}));
    const Rgba half = picture.At(2, 2);
    EXPECT_EQ(half.a, 128);
    EXPECT_NEAR(half.r, 200, 1);
    EXPECT_NEAR(half.g, 100, 1);
    EXPECT_NEAR(half.b, 0, 1);
}

TEST(PsdReader, OtherColorModelsAreReadOnlyWhenAccepted) {
    struct Case {
        int mode, channels, depth;
        std::function<int(int, int, int)> sample;
        std::vector<std::uint8_t> colorModeData;
        Rgba expected;  // at (1, 0)
    };
    std::vector<std::uint8_t> palette(768);
    palette[5] = 10, palette[256 + 5] = 20, palette[512 + 5] = 30;
    const Case cases[] = {
        {1, 1, 8, [](int, int, int) { return 77; }, {}, {77, 77, 77, 255}},
        {8, 1, 8, [](int, int, int) { return 9; }, {1, 2, 3}, {9, 9, 9, 255}},
        {2, 1, 8, [](int, int, int) { return 5; }, palette, {10, 20, 30, 255}},
        {0, 1, 1, [](int, int x, int) { return x == 1; }, {}, {0, 0, 0, 255}},
        {4,
         4,
         8,
         [](int c, int, int) { return c == 3 ? 255 : (c == 0 ? 0 : 255); },
         {},
         {0, 255, 255, 255}},
        {9, 3, 8, [](int c, int, int) { return c == 0 ? 255 : 128; }, {}, {255, 255, 255, 255}},
        {9, 3, 8, [](int c, int, int) { return c == 0 ? 0 : 128; }, {}, {0, 0, 0, 255}},
        {7, 3, 8, [](int c, int, int) { return 10 + c; }, {}, {10, 11, 12, 255}},
    };
    for (const Case& c : cases) {
        test::PsdSpec spec;
        spec.mode = c.mode;
        spec.channels = c.channels;
        spec.depth = c.depth;
        spec.sample = c.sample;
        spec.colorModeData = c.colorModeData;
        const auto file = test::BuildPsd(spec);
        RgbaBuffer picture;
        EXPECT_EQ(DecodePsd(file, kLimits, false, picture), PsdStatus::NotRgb) << c.mode;
        ASSERT_EQ(DecodePsd(file, kLimits, true, picture), PsdStatus::Ok) << c.mode;
        EXPECT_EQ(picture.At(1, 0), c.expected) << c.mode;
    }
}

TEST(PsdReader, EveryTruncationIsBrokenNeverACrash) {
    test::PsdSpec spec;
    spec.compression = 1;
    spec.channels = 4;
    spec.mergedAlpha = true;
    const auto file = test::BuildPsd(spec);
    for (std::size_t size = 0; size < file.size(); ++size) {
        RgbaBuffer picture;
        EXPECT_EQ(DecodePsd(std::span(file.data(), size), kLimits, true, picture),
                  PsdStatus::Broken)
            << size;
        EXPECT_TRUE(picture.Empty());
    }
}

TEST(PsdReader, LyingHeadersAndLengthsAreRefused) {
    using Patch = std::function<void(std::vector<std::uint8_t>&)>;
    const std::size_t compressionAt = 26 + 4 + 4 + 4;  // no colour data, resources or layers
    auto put32 = [](std::vector<std::uint8_t>& f, std::size_t at, std::uint32_t v) {
        f[at] = static_cast<std::uint8_t>(v >> 24), f[at + 1] = static_cast<std::uint8_t>(v >> 16);
        f[at + 2] = static_cast<std::uint8_t>(v >> 8), f[at + 3] = static_cast<std::uint8_t>(v);
    };
    struct Case {
        const char* what;
        Patch patch;
        PsdStatus expected;
    };
    const Case cases[] = {
        {"signature", [](auto& f) { f[0] = 'X'; }, PsdStatus::Broken},
        {"version 2", [](auto& f) { f[5] = 2; }, PsdStatus::Broken},
        {"no channels", [](auto& f) { f[12] = f[13] = 0; }, PsdStatus::Broken},
        {"width 0", [&](auto& f) { put32(f, 18, 0); }, PsdStatus::Broken},
        {"width 40000", [&](auto& f) { put32(f, 18, 40000); }, PsdStatus::Broken},
        {"30000 x 30000", [&](auto& f) { put32(f, 14, 30000), put32(f, 18, 30000); },
         PsdStatus::TooLarge},
        {"depth 32", [](auto& f) { f[23] = 32; }, PsdStatus::Broken},
        {"colour model 5", [](auto& f) { f[25] = 5; }, PsdStatus::Broken},
        {"colour data length", [&](auto& f) { put32(f, 26, 0xFFFFFFF0); }, PsdStatus::Broken},
        {"resources length", [&](auto& f) { put32(f, 30, 0x7FFFFFFF); }, PsdStatus::Broken},
        {"zip data", [&](auto& f) { f[compressionAt + 1] = 2; }, PsdStatus::Broken},
        {"row count too long", [&](auto& f) { f[compressionAt + 2] = 0x40; }, PsdStatus::Broken},
        {"run past the row", [&](auto& f) { f[compressionAt + 2 + 2 * 9] = 0x81; },
         PsdStatus::Broken},
    };
    test::PsdSpec spec;
    spec.compression = 1;
    const auto good = test::BuildPsd(spec);
    for (const Case& c : cases) {
        auto file = good;
        c.patch(file);
        RgbaBuffer picture;
        EXPECT_EQ(DecodePsd(file, kLimits, true, picture), c.expected) << c.what;
    }
    // An RGB file with only two channels cannot hold its colours.
    spec.channels = 2;
    RgbaBuffer picture;
    EXPECT_EQ(DecodePsd(test::BuildPsd(spec), kLimits, true, picture), PsdStatus::Broken);
}

TEST(PsdReader, RandomBytesAfterAGoodHeaderNeverCrash) {
    test::PsdSpec spec;
    spec.compression = 1;
    spec.width = 40;
    const auto good = test::BuildPsd(spec);
    std::srand(7);
    for (int round = 0; round < 2000; ++round) {
        auto file = good;
        for (int k = 0; k < 4; ++k) {
            const auto at = 26 + static_cast<std::size_t>(std::rand()) % (file.size() - 26);
            file[at] = static_cast<std::uint8_t>(std::rand());
        }
        RgbaBuffer picture;
        const PsdStatus status = DecodePsd(file, kLimits, true, picture);
        EXPECT_EQ(picture.Width(), status == PsdStatus::Ok ? 40 : 0);
    }
}

}  // namespace
}  // namespace iw
