// The adjustments window's logic: the four passes on hand-worked pixels, the channel
// options, the depth mapping, markers, and the backup behind OK and Cancel.

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "SyntheticImages.h"
#include "imaging/Adjustments.h"
#include "imaging/ColorAdjustments.h"
#include "imaging/Rounding.h"
#include "imaging/StandardColors.h"
#include "support/TestImages.h"

namespace iw {
namespace {

using enum AdjustChannel;
using Pass = void (*)(IconImage&, int, AdjustChannel);
constexpr AdjustChannel kEveryChannel[] = {All, Red, Green, Blue, Alpha};

// The colours of a one-row image after `pass`, and the first pixel's alpha (the others 255).
using Result = std::pair<std::vector<PackedColor>, int>;
Result Adjust(Pass pass, int value, AdjustChannel channel, const std::vector<PackedColor>& colors,
              int alpha = 255, int bitCount = 32) {
    const int width = static_cast<int>(colors.size());
    IconImage image = test::MakeImage(width, 1, bitCount, [&](int x, int) { return colors[x]; });
    image.Alpha(0, 0) = alpha;
    pass(image, value, channel);
    Result result{{}, image.Alpha(0, 0)};
    for (int x = 0; x < width; ++x)
        result.first.push_back(image.Color(x, 0));
    return result;
}

TEST(Adjustments, FollowTheHandWorkedCases) {
    const PackedColor c = PackColor(10, 200, 250);
    EXPECT_EQ(Adjust(DoBrightness, 100, All, {c}), Result({0xFFFFFF}, 255));
    EXPECT_EQ(Adjust(DoBrightness, 0, All, {c}), Result({0}, 255));
    EXPECT_EQ(Adjust(DoBrightness, 52, Green, {c}), Result({PackColor(10, 210, 250)}, 255));
    EXPECT_EQ(Adjust(DoBrightness, 40, Alpha, {c}, 100), Result({c}, 50));
    // Mapped to the depth after the change: (193, 65, 65) is red, a sum of 395 is white.
    EXPECT_EQ(Adjust(DoBrightness, 63, All, {PackColor(128, 0, 0)}, 255, 4),
              Result({PackColor(255, 0, 0)}, 255));
    EXPECT_EQ(Adjust(DoBrightness, 51, All, {PackColor(120, 120, 140)}, 255, 1),
              Result({0xFFFFFF}, 255));
    // Gamma 0 is held at 0.01 (exponent 100); gamma 100 is a square root.
    EXPECT_EQ(Adjust(DoGamma, 0, All, {PackColor(239, 245, 254), PackColor(255, 0, 100)}).first,
              (std::vector{PackColor(0, 5, 172), PackColor(255, 0, 0)}));
    EXPECT_EQ(Adjust(DoGamma, 100, Blue, {PackColor(64, 64, 64)}).first,
              std::vector{PackColor(64, 64, 128)});
    // Mean 128, factor 2: (372, 372, -108) spreads to (255, 255, 120), not a plain clamp.
    EXPECT_EQ(Adjust(DoContrast, 100, All, {PackColor(250, 250, 10), PackColor(86, 86, 86)}).first,
              (std::vector{PackColor(255, 255, 120), PackColor(44, 44, 44)}));
    // Mean 100, factor 1.02f = 1.0199999809: 125 -> 125.4999995 and 75 -> 74.5000005.
    const std::vector<PackedColor> greys = {PackColor(125, 125, 125), PackColor(75, 75, 75)};
    EXPECT_EQ(Adjust(DoContrast, 51, All, greys).first, greys);
    // The marker counts as (248, 255, 255), grey 252: mean 117, so 100 -> 83 (not 150).
    EXPECT_EQ(Adjust(DoContrast, 100, All, {TransparentColor, 0, PackColor(100, 100, 100)}).first,
              (std::vector{TransparentColor, 0, PackColor(83, 83, 83)}));
    // Alone, the pixel is the mean 120; at 75 the factor is 1.5.
    const PackedColor p = PackColor(100, 120, 140);
    EXPECT_EQ(Adjust(DoContrast, 75, All, {p}, 200), Result({PackColor(90, 120, 150)}, 200));
    EXPECT_EQ(Adjust(DoContrast, 75, Red, {p}, 200), Result({PackColor(90, 120, 140)}, 200));
    EXPECT_EQ(Adjust(DoContrast, 75, Green, {p}, 200), Result({p}, 200));
    EXPECT_EQ(Adjust(DoContrast, 75, Blue, {p}, 200), Result({PackColor(140, 120, 150)}, 200));
    EXPECT_EQ(Adjust(DoContrast, 75, Alpha, {p}, 200), Result({p}, 240));
    // Saturation keeps single channels as contrast does, the blue crossover included (all
    // channels together follow the formula test below).
    const PackedColor s = PackColor(100, 150, 200);
    EXPECT_EQ(Adjust(DoSat, 100, Blue, {s}).first, std::vector{PackColor(200, 150, 250)});
    EXPECT_EQ(Adjust(DoSat, 100, Red, {s}).first, std::vector{PackColor(50, 150, 200)});
}

TEST(Adjustments, SaturationMatchesTheFormulaForEverySliderValue) {
    // round(c + (c - y) x f), f = (value / 100 x 200 - 100) / 100 in single precision,
    // y = (r + g + b) / 3, clamped to 0..255.
    test::Lcg random{3};
    std::vector<PackedColor> colors(256);
    for (int round = 0; round < 8; ++round) {
        for (PackedColor& c : colors)
            c = static_cast<PackedColor>(random.Next() & 0xFFFFFF);
        for (int value = 0; value <= 100; ++value) {
            const std::vector<PackedColor> got = Adjust(DoSat, value, All, colors).first;
            const auto f = static_cast<double>(static_cast<float>((value * 2.0 - 100.0) / 100.0));
            for (std::size_t k = 0; k < colors.size(); ++k) {
                const PackedColor c = colors[k];
                const int grey = (RedOf(c) + GreenOf(c) + BlueOf(c)) / 3;
                auto expect = [&](int ch) {
                    return std::clamp(RoundHalfEven(ch + (ch - grey) * f), 0, 255);
                };
                ASSERT_EQ(got[k],
                          PackColor(expect(RedOf(c)), expect(GreenOf(c)), expect(BlueOf(c))))
                    << "value " << value << ", colour " << std::hex << c;
            }
        }
    }
}

TEST(Adjustments, NeverTouchMarkersAndKeepLowDepthImagesInTheirPalettes) {
    test::Lcg random{9};
    std::vector<PackedColor> colors = {TransparentColor, InverseColor};
    while (colors.size() < 256)
        colors.push_back(static_cast<PackedColor>(random.Next() & 0xFFFFFF));
    for (const Pass pass : {DoBrightness, DoContrast, DoGamma, DoSat}) {
        for (const AdjustChannel channel : kEveryChannel) {
            for (const int bitCount : {32, 4, 1}) {
                const auto [out, alpha] = Adjust(pass, 80, channel, colors, 17, bitCount);
                EXPECT_EQ(std::tuple(out[0], out[1], alpha),
                          std::tuple(TransparentColor, InverseColor, 17));
                for (std::size_t k = 2; k < out.size() && bitCount != 32; ++k) {
                    ASSERT_TRUE(bitCount == 4 ? IsStandard16Color(out[k])
                                              : (out[k] == 0 || out[k] == 0xFFFFFF))
                        << std::hex << out[k];
                }
            }
        }
    }
}

IconImage Photo() {
    IconImage image = test::MakeImage(47, 33, 32);
    test::FillPhotoLike(image, 21);
    image.Alpha(6, 6) = 90;
    image.KeepOriginalPng({1, 2, 3});
    return image;
}

struct SeenEvents final : IAdjustmentsObserver {
    void ImageChanged() override { ++redraws; }
    void Closed(bool kept) override { closed.push_back(kept); }
    int redraws = 0;
    std::vector<bool> closed;
};

TEST(ColorAdjustmentsWindow, RecomputesFromTheBackupAndCancelRestoresBothPlanes) {
    IconImage image = Photo();
    const IconImage original = image.Clone();
    SeenEvents seen;
    ColorAdjustments window(image, &seen);
    for (const AdjustChannel channel : kEveryChannel)
        window.SetChannel(channel);
    window.SetBrightness(50);  // fifty leaves the image alone
    EXPECT_TRUE(test::SamePixels(image, original) && image.OriginalPng() == original.OriginalPng());
    EXPECT_EQ(seen.redraws, 6);

    window.SetBrightness(60);
    window.SetBrightness(60);
    window.SetGamma(40);
    window.SetSaturation(30);
    window.SetContrast(65);
    window.SetChannel(Green);
    IconImage expected = original.Clone();  // in the fixed order, once each
    DoContrast(expected, 65, Green);
    DoSat(expected, 30, Green);
    DoGamma(expected, 40, Green);
    DoBrightness(expected, 60, Green);
    EXPECT_TRUE(test::SamePixels(image, expected));
    EXPECT_TRUE(image.OriginalPng().empty());  // the stream read with the pixels no longer applies

    window.Cancel();
    window.Ok();  // closed: nothing happens
    window.SetBrightness(90);
    EXPECT_TRUE(test::SamePixels(image, original) && image.OriginalPng() == original.OriginalPng());
    EXPECT_EQ(seen.closed, std::vector<bool>{false});
}

}  // namespace
}  // namespace iw
