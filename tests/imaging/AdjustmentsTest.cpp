// The adjustments window's logic: the four passes on hand-worked pixels, the channel
// options, the depth mapping, markers, and the backup behind OK and Cancel.

#include <gtest/gtest.h>

#include <vector>

#include "SyntheticImages.h"
#include "imaging/Adjustments.h"
#include "imaging/ColorAdjustments.h"
#include "imaging/Rounding.h"
#include "imaging/StandardColors.h"

namespace iw {
namespace {

// A one-row image of the given colours, 32 bits, alpha 255 unless given.
IconImage RowImage(const std::vector<PackedColor>& colors, int bitCount = 32) {
    IconImage image;
    test::ShapeImage(image, static_cast<int>(colors.size()), 1, bitCount);
    for (int x = 0; x < static_cast<int>(colors.size()); ++x) {
        image.Color(x, 0) = colors[static_cast<std::size_t>(x)];
        image.Alpha(x, 0) = 255;
    }
    return image;
}

bool SamePlanes(const IconImage& a, const IconImage& b) {
    for (int y = 0; y < a.info.Height(); ++y) {
        for (int x = 0; x < a.info.Width(); ++x) {
            if (a.Color(x, y) != b.Color(x, y) || a.Alpha(x, y) != b.Alpha(x, y)) return false;
        }
    }
    return true;
}

constexpr AdjustChannel kEveryChannel[] = {AdjustChannel::All, AdjustChannel::Red,
                                           AdjustChannel::Green, AdjustChannel::Blue,
                                           AdjustChannel::Alpha};

TEST(DoBrightness, MovesFiveLevelsPerStepAndClamps) {
    IconImage image = RowImage({PackColor(10, 200, 250)});
    DoBrightness(image, 100, AdjustChannel::All);
    EXPECT_EQ(image.Color(0, 0), PackColor(255, 255, 255));

    image = RowImage({PackColor(10, 200, 250)});
    DoBrightness(image, 0, AdjustChannel::All);
    EXPECT_EQ(image.Color(0, 0), PackColor(0, 0, 0));

    image = RowImage({PackColor(10, 200, 250)});
    DoBrightness(image, 52, AdjustChannel::Green);
    EXPECT_EQ(image.Color(0, 0), PackColor(10, 210, 250));
    EXPECT_EQ(image.Alpha(0, 0), 255);

    image = RowImage({PackColor(10, 200, 250)});
    image.Alpha(0, 0) = 100;
    DoBrightness(image, 40, AdjustChannel::Alpha);
    EXPECT_EQ(image.Alpha(0, 0), 50);
    EXPECT_EQ(image.Color(0, 0), PackColor(10, 200, 250));
}

TEST(DoGamma, HoldsGammaZeroAtOneHundredth) {
    IconImage image = RowImage({PackColor(239, 245, 254), PackColor(255, 0, 100)});
    DoGamma(image, 0, AdjustChannel::All);
    EXPECT_EQ(image.Color(0, 0), PackColor(0, 5, 172));
    EXPECT_EQ(image.Color(1, 0), PackColor(255, 0, 0));
}

TEST(DoGamma, BrightensWithASquareRootAtOneHundred) {
    // G = 2: 255 x sqrt(64 / 255) = 127.75 -> 128; only blue is selected.
    IconImage image = RowImage({PackColor(64, 64, 64)});
    DoGamma(image, 100, AdjustChannel::Blue);
    EXPECT_EQ(image.Color(0, 0), PackColor(64, 64, 128));
}

TEST(DoContrast, SpreadsOverflowToTheOtherChannelsInsteadOfClamping) {
    // Grey levels 170 and 86: the mean is 128. At 100 the factor is 2, so (250, 250, 10)
    // becomes (372, 372, -108). Worked by hand, the spreading settles at (255, 255, 120),
    // where a plain clamp would give (255, 255, 0).
    IconImage image = RowImage({PackColor(250, 250, 10), PackColor(86, 86, 86)});
    DoContrast(image, 100, AdjustChannel::All);
    EXPECT_EQ(image.Color(0, 0), PackColor(255, 255, 120));
    EXPECT_EQ(image.Color(1, 0), PackColor(44, 44, 44));
}

TEST(DoContrast, KeepsTheChannelThatTheOptionChooses) {
    // One pixel, mean 120, factor 1.5: T(100) = 90, T(120) = 120, T(140) = 150, T(200) = 240.
    const PackedColor start = PackColor(100, 120, 140);
    auto run = [&](AdjustChannel channel) {
        IconImage image = RowImage({start});
        image.Alpha(0, 0) = 200;
        DoContrast(image, 75, channel);
        return std::pair{image.Color(0, 0), image.Alpha(0, 0)};
    };
    EXPECT_EQ(run(AdjustChannel::All), std::pair(PackColor(90, 120, 150), 200));
    EXPECT_EQ(run(AdjustChannel::Red), std::pair(PackColor(90, 120, 140), 200));
    EXPECT_EQ(run(AdjustChannel::Green), std::pair(PackColor(100, 120, 140), 200));
    // optBlue: the new blue, and red takes the previous blue.
    EXPECT_EQ(run(AdjustChannel::Blue), std::pair(PackColor(140, 120, 150), 200));
    EXPECT_EQ(run(AdjustChannel::Alpha), std::pair(start, 240));
}

TEST(DoContrast, HoldsTheFactorInSinglePrecision) {
    // Mean 100. At 51 the factor is 1.02, held as 1.0199999809, so 125 -> 125.4999995 ->
    // 125 and 75 -> 74.5000005 -> 75. In double precision both would be exact halves and
    // go to 126 and 74.
    IconImage image = RowImage({PackColor(125, 125, 125), PackColor(75, 75, 75)});
    DoContrast(image, 51, AdjustChannel::All);
    EXPECT_EQ(image.Color(0, 0), PackColor(125, 125, 125));
    EXPECT_EQ(image.Color(1, 0), PackColor(75, 75, 75));
}

TEST(DoContrast, CountsMarkersInTheMeanAsTheirBits) {
    // TransparentColor splits into (248, 255, 255), grey 252. Greys 252, 0 and 100 give a
    // mean of 117, so at factor 2 the grey 100 goes to 117 - 34 = 83. Had the marker been
    // skipped, the mean would be 50 and the grey would go to 150.
    IconImage image = RowImage({TransparentColor, PackColor(0, 0, 0), PackColor(100, 100, 100)});
    DoContrast(image, 100, AdjustChannel::All);
    EXPECT_EQ(image.Color(2, 0), PackColor(83, 83, 83));
    EXPECT_EQ(image.Color(0, 0), TransparentColor);
}

TEST(DoSat, GoesToGreyAtZeroAndDoublesAtOneHundred) {
    IconImage image = RowImage({PackColor(100, 150, 200)});
    DoSat(image, 0, AdjustChannel::All);
    EXPECT_EQ(image.Color(0, 0), PackColor(150, 150, 150));

    image = RowImage({PackColor(100, 150, 200)});
    DoSat(image, 100, AdjustChannel::All);
    EXPECT_EQ(image.Color(0, 0), PackColor(50, 150, 250));

    // A single channel keeps its new value as contrast does, optBlue's crossover included.
    image = RowImage({PackColor(100, 150, 200)});
    DoSat(image, 100, AdjustChannel::Blue);
    EXPECT_EQ(image.Color(0, 0), PackColor(200, 150, 250));
    image = RowImage({PackColor(100, 150, 200)});
    DoSat(image, 100, AdjustChannel::Red);
    EXPECT_EQ(image.Color(0, 0), PackColor(50, 150, 200));
}

TEST(DoSat, MatchesTheFormulaForEverySliderValue) {
    // round(c + (c - y) x f), f = (value / 100 x 200 - 100) / 100 held in single precision,
    // y = (r + g + b) / 3, clamped to 0..255; computed here pixel by pixel.
    IconImage source;
    test::ShapeImage(source, 64, 64, 32);
    test::Lcg random(3);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            source.Color(x, y) = static_cast<PackedColor>(random.Next() & 0xFFFFFF);
        }
    }
    for (int value = 0; value <= 100; ++value) {
        IconImage image = source.Clone();
        DoSat(image, value, AdjustChannel::All);
        const float f = static_cast<float>((value / 100.0 * 200.0 - 100.0) / 100.0);
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                const PackedColor c = source.Color(x, y);
                const int grey = (RedOf(c) + GreenOf(c) + BlueOf(c)) / 3;
                auto expect = [&](int channel) {
                    const int v =
                        RoundHalfEven(channel + (channel - grey) * static_cast<double>(f));
                    return v < 0 ? 0 : (v > 255 ? 255 : v);
                };
                ASSERT_EQ(image.Color(x, y),
                          PackColor(expect(RedOf(c)), expect(GreenOf(c)), expect(BlueOf(c))))
                    << "value " << value << " at " << x << "," << y;
            }
        }
    }
}

TEST(Adjustments, KeepSixteenColourAndMonochromeImagesInTheirPalettes) {
    for (const int bitCount : {4, 1}) {
        for (const AdjustChannel channel : kEveryChannel) {
            IconImage image;
            test::ShapeImage(image, 32, 32, bitCount);
            test::FillPhotoLike(image, 9);
            for (int x = 0; x < 32; ++x) {
                for (int y = 0; y < 32; ++y) {
                    const PackedColor c = image.Color(x, y);
                    image.Color(x, y) = bitCount == 4
                                            ? kStandard16Colors[static_cast<std::size_t>(c % 16)]
                                            : kMonoColors[static_cast<std::size_t>(c % 2)];
                }
            }
            ColorAdjustments window(image);
            window.SetChannel(channel);
            window.SetContrast(70);
            window.SetSaturation(80);
            window.SetGamma(35);
            window.SetBrightness(56);
            for (int x = 0; x < 32; ++x) {
                for (int y = 0; y < 32; ++y) {
                    const PackedColor c = image.Color(x, y);
                    if (bitCount == 4) {
                        ASSERT_TRUE(IsStandard16Color(c)) << std::hex << c;
                    } else {
                        ASSERT_TRUE(c == 0 || c == 0xFFFFFF) << std::hex << c;
                    }
                }
            }
        }
    }
    // Brightening a 4-bit red by 5 levels lands on the 16-colour mapping of the result.
    IconImage image = RowImage({PackColor(128, 0, 0), PackColor(0, 0, 0)}, 4);
    DoBrightness(image, 63, AdjustChannel::All);  // +65: (193, 65, 65) and (65, 65, 65)
    EXPECT_EQ(image.Color(0, 0), PackColor(255, 0, 0));
    EXPECT_EQ(image.Color(1, 0), PackColor(0, 0, 0));
    image = RowImage({PackColor(120, 120, 140)}, 1);
    DoBrightness(image, 51, AdjustChannel::All);  // sum 380 + 15 = 395: white
    EXPECT_EQ(image.Color(0, 0), 0xFFFFFF);
}

TEST(Adjustments, NeverTouchMarkers) {
    for (const AdjustChannel channel : kEveryChannel) {
        IconImage image = RowImage({TransparentColor, PackColor(30, 60, 90), InverseColor});
        image.Alpha(0, 0) = 17;
        image.Alpha(2, 0) = 0;
        DoBrightness(image, 100, channel);
        DoContrast(image, 0, channel);
        DoGamma(image, 0, channel);
        DoSat(image, 100, channel);
        EXPECT_EQ(image.Color(0, 0), TransparentColor);
        EXPECT_EQ(image.Alpha(0, 0), 17);
        EXPECT_EQ(image.Color(2, 0), InverseColor);
        EXPECT_EQ(image.Alpha(2, 0), 0);
    }
}

class ColorAdjustmentsWindow : public ::testing::Test {
  protected:
    void SetUp() override {
        test::ShapeImage(image, 47, 33, 32);
        test::FillPhotoLike(image, 21);
        image.Color(5, 5) = TransparentColor;
        image.Alpha(6, 6) = 90;
        image.originalPng = {1, 2, 3};
        original = image.Clone();
    }
    IconImage image;
    IconImage original;
};

TEST_F(ColorAdjustmentsWindow, LeavesTheImageAloneWithEverySliderAtFifty) {
    ColorAdjustments window(image);
    int redraws = 0;
    window.onImageChanged = [&] { ++redraws; };
    for (const AdjustChannel channel : kEveryChannel)
        window.SetChannel(channel);
    window.SetBrightness(50);
    EXPECT_TRUE(SamePlanes(image, original));
    EXPECT_EQ(image.originalPng, original.originalPng);
    EXPECT_EQ(redraws, 6);
}

TEST_F(ColorAdjustmentsWindow, RecomputesFromTheBackupInTheFixedOrder) {
    ColorAdjustments window(image);
    window.SetBrightness(60);
    window.SetBrightness(60);
    window.SetGamma(40);
    window.SetSaturation(30);
    window.SetContrast(65);
    window.SetChannel(AdjustChannel::Green);

    IconImage expected = original.Clone();
    DoContrast(expected, 65, AdjustChannel::Green);
    DoSat(expected, 30, AdjustChannel::Green);
    DoGamma(expected, 40, AdjustChannel::Green);
    DoBrightness(expected, 60, AdjustChannel::Green);
    EXPECT_TRUE(SamePlanes(image, expected));
    EXPECT_FALSE(SamePlanes(image, original));
    // The pixels changed, so the PNG stream read with them no longer applies.
    EXPECT_TRUE(image.originalPng.empty());
}

TEST_F(ColorAdjustmentsWindow, CancelRestoresBothPlanesAndOkKeeps) {
    {
        ColorAdjustments window(image);
        window.SetChannel(AdjustChannel::Alpha);
        window.SetBrightness(20);
        window.SetChannel(AdjustChannel::All);
        ASSERT_FALSE(SamePlanes(image, original));
        window.Cancel();
        EXPECT_TRUE(SamePlanes(image, original));
        EXPECT_EQ(image.originalPng, original.originalPng);
        EXPECT_FALSE(window.IsOpen());
        window.SetBrightness(90);  // closed: nothing happens
        EXPECT_TRUE(SamePlanes(image, original));
    }
    {
        ColorAdjustments window(image);
        window.SetContrast(80);
        IconImage adjusted = image.Clone();
        window.Ok();
        window.Cancel();
        EXPECT_TRUE(SamePlanes(image, adjusted));
        EXPECT_FALSE(SamePlanes(image, original));
    }
}

}  // namespace
}  // namespace iw
