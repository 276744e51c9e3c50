// The Photoshop reader on tiny files written here: raw and PackBits, 8 and 16 bits, the
// other colour models, the merged transparency, and hostile files.

#include <gtest/gtest.h>

#include <functional>

#include "PsdTestFiles.h"
#include "document/io/PsdReader.h"

namespace iw {
namespace {

constexpr DecodeLimits kLimits{4096, 4096, 1u << 22};

TEST(PsdReader, RgbRawAndPackedGiveTheStoredPixels) {
    for (int compression : {0, 1}) {
        for (int depth : {8, 16}) {
            test::PsdSpec spec;
            spec.width = 300;  // rows longer than one PackBits run
            spec.compression = compression;
            spec.depth = depth;
            spec.channels = 4;  // an extra channel not marked as the transparency
            spec.sample = [depth](int c, int x, int y) {
                const int v = x < 150 ? 7 * c + 40 : (x * 13 + y * 5 + c) & 0xFF;
                return depth == 16 ? v * 257 : v;
            };
            RgbaBuffer picture;
            ASSERT_EQ(DecodePsd(test::BuildPsd(spec), kLimits, false, picture), PsdStatus::Ok);
            ASSERT_EQ(picture.Width(), 300);
            for (int x = 0; x < 300; x += 7) {
                const auto v = [&](int c) {
                    return static_cast<std::uint8_t>(spec.sample(c, x, 2) >> (depth - 8));
                };
                ASSERT_EQ(picture.At(x, 2), (Rgba{v(0), v(1), v(2), 255})) << compression << depth;
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
    using Sample = std::function<int(int, int, int)>;
    struct Case {
        int mode, channels, depth;
        std::vector<std::uint8_t> colorModeData;
        Rgba expected;  // at (1, 0)
        Sample sample;
    };
    const std::vector<std::uint8_t> none;
    std::vector<std::uint8_t> palette(768);
    palette[5] = 10, palette[256 + 5] = 20, palette[512 + 5] = 30;
    const Case cases[] = {
        {1, 1, 8, none, {77, 77, 77, 255}, [](int, int, int) { return 77; }},
        {8, 1, 8, {1, 2, 3}, {9, 9, 9, 255}, [](int, int, int) { return 9; }},
        {2, 1, 8, palette, {10, 20, 30, 255}, [](int, int, int) { return 5; }},
        {0, 1, 1, none, {0, 0, 0, 255}, [](int, int x, int) { return x == 1; }},
        {4, 4, 8, none, {0, 255, 255, 255}, [](int c, int, int) { return c == 0 ? 0 : 255; }},
        {9, 3, 8, none, {255, 255, 255, 255}, [](int c, int, int) { return c ? 128 : 255; }},
        {9, 3, 8, none, {0, 0, 0, 255}, [](int c, int, int) { return c ? 128 : 0; }},
        {7, 3, 8, none, {10, 11, 12, 255}, [](int c, int, int) { return 10 + c; }},
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
    // Bytes written over a good PackBits file of 4 x 3 RGB: header, three empty sections,
    // the compression at 38, the row lengths at 40 and the rows from 58.
    struct Case {
        const char* what;
        std::size_t at;
        std::vector<std::uint8_t> bytes;
        PsdStatus expected;
    };
    const Case cases[] = {
        {"signature", 0, {'X'}, PsdStatus::Broken},
        {"version 2", 4, {0, 2}, PsdStatus::Broken},
        {"no channels", 12, {0, 0}, PsdStatus::Broken},
        {"two channels for RGB", 12, {0, 2}, PsdStatus::Broken},
        {"width 0", 18, {0, 0, 0, 0}, PsdStatus::Broken},
        {"width 40000", 18, {0, 0, 0x9C, 0x40}, PsdStatus::Broken},
        {"30000 x 30000", 14, {0, 0, 0x75, 0x30, 0, 0, 0x75, 0x30}, PsdStatus::TooLarge},
        {"depth 32", 22, {0, 32}, PsdStatus::Broken},
        {"colour model 5", 24, {0, 5}, PsdStatus::Broken},
        {"colour data length", 26, {0xFF, 0xFF, 0xFF, 0xF0}, PsdStatus::Broken},
        {"resources length", 30, {0x7F, 0xFF, 0xFF, 0xFF}, PsdStatus::Broken},
        {"zip data", 38, {0, 2}, PsdStatus::Broken},
        {"row length past the file", 40, {0x40}, PsdStatus::Broken},
        {"run past the row", 58, {0x81}, PsdStatus::Broken},
    };
    test::PsdSpec spec;
    spec.compression = 1;
    const auto good = test::BuildPsd(spec);
    for (const Case& c : cases) {
        auto file = good;
        std::copy(c.bytes.begin(), c.bytes.end(), file.begin() + static_cast<std::ptrdiff_t>(c.at));
        RgbaBuffer picture;
        EXPECT_EQ(DecodePsd(file, kLimits, true, picture), c.expected) << c.what;
    }
}

}  // namespace
}  // namespace iw
