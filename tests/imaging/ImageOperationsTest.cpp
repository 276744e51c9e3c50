// The image operations on small hand-made pictures: geometry, colour effects and filters,
// their status texts and progress, and inverting pixels left alone.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "RgbaTestPictures.h"
#include "imaging/ColorOperations.h"
#include "imaging/FilterOperations.h"
#include "imaging/GeometryOperations.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

RgbaBuffer WithInverse(RgbaBuffer buffer, int x, int y) {
    buffer.At(x, y) = {255, 255, 255, 0};
    buffer.SetInverse(x, y, true);
    return buffer;
}

TEST(Geometry, QuarterTurnsAndFlipsMoveEveryPixel) {
    const RgbaBuffer source = WithInverse(test::Distinct(3, 2), 2, 0);  // top right inverts
    const RgbaBuffer turned = Rotate90(source);
    ASSERT_EQ(std::pair(turned.Width(), turned.Height()), std::pair(2, 3));
    EXPECT_EQ(turned.At(1, 0), source.At(0, 0));  // top left goes to the top right
    EXPECT_EQ(turned.At(0, 0), source.At(0, 1));
    EXPECT_TRUE(turned.IsInverse(1, 2));  // top right goes to the bottom right
    EXPECT_EQ(Rotate270(turned), source);
    EXPECT_EQ(Rotate90(Rotate90(Rotate90(turned))), source);

    RgbaBuffer flipped = source;
    FlipHorizontal(flipped);
    EXPECT_EQ(flipped.At(0, 1), source.At(2, 1));
    EXPECT_TRUE(flipped.IsInverse(0, 0));
    FlipVertical(flipped);
    EXPECT_EQ(flipped, Rotate180(source));
}

TEST(Geometry, TrimKeepsWhatShows) {
    RgbaBuffer buffer(8, 6);
    buffer.At(2, 1) = {1, 2, 3, 1};
    buffer.At(5, 3) = {4, 5, 6, 255};
    EXPECT_EQ(ContentBounds(buffer), (PixelRect{2, 1, 4, 3}));
    buffer = WithInverse(buffer, 7, 5);  // an inverting pixel shows though its alpha is 0
    const RgbaBuffer trimmed = TrimToContent(buffer);
    EXPECT_EQ(trimmed.Width(), 6);
    EXPECT_EQ(trimmed.At(0, 0), (Rgba{1, 2, 3, 1}));
    EXPECT_TRUE(trimmed.IsInverse(5, 4));
    EXPECT_TRUE(TrimToContent(RgbaBuffer(4, 4)).Empty());
}

// Black, a translucent mid grey and red through each effect.
TEST(ColorEffects, EachPixelChangesByItsRule) {
    const RgbaBuffer source = test::MakeBuffer(3, 1, [](int x, int) {
        const Rgba colors[] = {{0, 0, 0, 255}, {128, 128, 128, 40}, {255, 0, 0, 255}};
        return colors[x];
    });
    NullProgress progress;
    auto after = [&](const std::function<void(RgbaBuffer&)>& effect) {
        RgbaBuffer pixels = source;
        effect(pixels);
        return std::vector<Rgba>(pixels.Pixels().begin(), pixels.Pixels().end());
    };
    using Pixels = std::vector<Rgba>;
    // Greyscale weighs red 0.299; Colorize turns mid grey into the tint; TwoTone splits at
    // the luma (red's is 76); a colour within the tolerance of the key turns transparent.
    EXPECT_EQ(after([&](RgbaBuffer& b) { Greyscale(b, progress); }),
              (Pixels{{0, 0, 0, 255}, {128, 128, 128, 40}, {76, 76, 76, 255}}));
    const Pixels tinted =
        after([&](RgbaBuffer& b) { Colorize(b, PackColor(0, 100, 200), progress); });
    EXPECT_EQ(Pixels(tinted.begin(), tinted.begin() + 2),
              (Pixels{{0, 0, 0, 255}, {0, 100, 200, 40}}));
    EXPECT_EQ(after([](RgbaBuffer& b) { Invert(b); })[2], (Rgba{0, 255, 255, 255}));
    EXPECT_EQ(after([](RgbaBuffer& b) { Invert(b), Invert(b); }), after([](RgbaBuffer&) {}));
    EXPECT_EQ(after([](RgbaBuffer& b) { TwoTone(b, 100, PackColor(1, 1, 1), PackColor(9, 9, 9)); }),
              (Pixels{{1, 1, 1, 255}, {9, 9, 9, 40}, {1, 1, 1, 255}}));
    EXPECT_EQ(after([](RgbaBuffer& b) { MakeColorTransparent(b, PackColor(250, 3, 0), 8); }),
              (Pixels{{0, 0, 0, 255}, {128, 128, 128, 40}, {255, 0, 0, 0}}));
}

TEST(Filters, EdgesAgainstTransparencyKeepTheirColour) {
    const Rgba white{255, 255, 255, 255};
    const RgbaBuffer square = test::SquareOnTransparent(12, 3, 9, white);
    NullProgress progress;
    RgbaBuffer blurred = square, sharpened = square, smoothed = square;
    Blur(blurred, 3, progress);
    Sharpen(sharpened, 200, progress);
    SmoothAlpha(smoothed, progress);
    for (const RgbaBuffer* out : {&blurred, &sharpened, &smoothed}) {
        for (const Rgba p : out->Pixels()) {
            if (p.a != 0) {
                ASSERT_EQ(p, (Rgba{255, 255, 255, p.a}));
            }
        }
    }
    EXPECT_EQ(sharpened, square);
    EXPECT_GT(blurred.At(1, 6).a, 0);
    EXPECT_LT(blurred.At(3, 6).a, 255);
    // One of sixteen weights at the corner; inside stays opaque.
    EXPECT_EQ(std::tuple(smoothed.At(2, 2).a, smoothed.At(5, 5).a), std::tuple(16, 255));
}

TEST(Filters, SharpenPushesNeighboursApart) {
    const RgbaBuffer step = test::MakeBuffer(4, 1, [](int x, int) {
        return x < 2 ? Rgba{100, 100, 100, 255} : Rgba{150, 150, 150, 255};
    });
    RgbaBuffer out = step;
    NullProgress progress;
    Sharpen(out, 100, progress);
    // 100 + (4 x 100 - 3 x 100 - 150) at the step; the edge column keeps its value.
    EXPECT_EQ(std::tuple(out.At(1, 0).r, out.At(2, 0).r, out.At(0, 0).r), std::tuple(50, 200, 100));
}

TEST(Filters, DropShadowFallsBelowAndRight) {
    const Rgba red{255, 0, 0, 255};
    RgbaBuffer pixels = test::SquareOnTransparent(10, 2, 5, red);
    test::RecordingProgress progress;
    DropShadow(pixels, {2, 2, 0, 50, PackColor(0, 0, 255)}, progress);
    // The picture stays on top, the shadow shows below right of it, nothing above left.
    EXPECT_EQ(std::tuple(pixels.At(3, 3), pixels.At(6, 6), pixels.At(1, 1), pixels.At(7, 7)),
              std::tuple(red, Rgba{0, 0, 255, 128}, Rgba{}, Rgba{}));
}

// Every colour effect and filter, with its status text ("" when it has none) and whether a
// flat opaque picture comes out as it went in.
struct Effect {
    const char* status;
    bool keepsFlat;
    std::function<void(RgbaBuffer&, IProgressSink&)> run;
};

TEST(Effects, ReportTheirStatusAndLeaveInvertingPixels) {
    using P = IProgressSink;
    const Effect effects[] = {
        {"Converting to Greyscale...", false, [](RgbaBuffer& b, P& p) { Greyscale(b, p); }},
        {"Colorizing Icon...", false, [](RgbaBuffer& b, P& p) { Colorize(b, 0x00FF00, p); }},
        {"Sharpening...", true, [](RgbaBuffer& b, P& p) { Sharpen(b, 300, p); }},
        {"Smoothing Alpha...", true, [](RgbaBuffer& b, P& p) { SmoothAlpha(b, p); }},
        {"Adding Dropshadow...", true, [](RgbaBuffer& b, P& p) { DropShadow(b, {}, p); }},
        {"", true, [](RgbaBuffer& b, P& p) { Blur(b, 4, p); }},
        {"", false, [](RgbaBuffer& b, P&) { Invert(b); }},
        {"", false, [](RgbaBuffer& b, P&) { TwoTone(b, 128, 0, 0xFFFFFF); }},
        {"", false, [](RgbaBuffer& b, P&) { MakeColorTransparent(b, 0xFFFFFF, 765); }},
    };
    const RgbaBuffer flat = test::MakeBuffer(7, 5, [](int, int) {
        return Rgba{30, 140, 250, 255};
    });
    for (const Effect& effect : effects) {
        if (effect.keepsFlat) {
            RgbaBuffer same = flat;
            NullProgress none;
            effect.run(same, none);
            EXPECT_EQ(same, flat) << effect.status;
        }
        RgbaBuffer pixels = WithInverse(test::Distinct(6, 4), 1, 1);
        test::RecordingProgress progress;
        effect.run(pixels, progress);
        EXPECT_TRUE(pixels.IsInverse(1, 1)) << effect.status;
        EXPECT_EQ(pixels.At(1, 1), (Rgba{255, 255, 255, 0})) << effect.status;
        if (*effect.status) {
            EXPECT_EQ(progress.statuses, (std::vector<std::string>{effect.status, ""}));
            ASSERT_FALSE(progress.progress.empty());
            EXPECT_EQ(progress.progress.back(), std::pair(6, 6)) << effect.status;
        }
    }
}

}  // namespace
}  // namespace iw
