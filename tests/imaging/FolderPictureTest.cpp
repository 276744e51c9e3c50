// The folder icon's pictures: the folder, the overlay's offset, angle, density and mask
// colour, and the wizard's fields.
#include <gtest/gtest.h>

#include "RgbaTestPictures.h"
#include "imaging/FolderPicture.h"

namespace iw {
namespace {

constexpr Rgba kRed{255, 0, 0, 255};
constexpr Rgba kBlue{0, 0, 255, 255};

RgbaBuffer Flat(int side, Rgba color) {
    return test::MakeBuffer(side, side, [=](int, int) { return color; });
}

// The bounds of the pixels that are exactly `color`.
PixelRect BoundsOf(const RgbaBuffer& pixels, Rgba color) {
    int left = pixels.Width(), top = pixels.Height(), right = -1, bottom = -1;
    for (int y = 0; y < pixels.Height(); ++y) {
        for (int x = 0; x < pixels.Width(); ++x) {
            if (pixels.At(x, y) != color) continue;
            left = std::min(left, x);
            top = std::min(top, y);
            right = std::max(right, x);
            bottom = std::max(bottom, y);
        }
    }
    return right < 0 ? PixelRect{} : PixelRect{left, top, right - left + 1, bottom - top + 1};
}

TEST(FolderPicture, TheFolderFillsItsMiddleAndLeavesTheCornersClear) {
    for (const int side : {16, 32, 48}) {
        const RgbaBuffer folder = DrawFolderPicture(side);
        ASSERT_EQ(std::pair(folder.Width(), folder.Height()), std::pair(side, side));
        EXPECT_EQ(folder.At(side / 2, side * 3 / 5).a, 255) << side;
        EXPECT_EQ(folder.At(0, 0).a, 0) << side;
        EXPECT_EQ(folder.At(side - 1, 0).a, 0) << side;
        EXPECT_EQ(folder.At(side - 1, side - 1).a, 0) << side;
    }
}

TEST(FolderPicture, WhatTheOverlayLeavesOutIsTheBareFolder) {
    const RgbaBuffer folder = DrawFolderPicture(32);
    EXPECT_EQ(ComposeFolderIcon({}, {}, 32), folder);
    FolderOverlay none;
    none.density = 0;
    EXPECT_EQ(ComposeFolderIcon(Flat(20, kRed), none, 32), folder);
    FolderOverlay masked;
    masked.maskColor = Rgba{255, 0, 0, 0};  // alpha does not count
    EXPECT_EQ(ComposeFolderIcon(Flat(20, kRed), masked, 32), folder);
}

TEST(FolderPicture, AnUnturnedPictureLandsPixelForPixelAndMovesByItsOffset) {
    // At 48 x 48 the picture is fitted into 30 x 30 around (24, 29).
    const RgbaBuffer centred = ComposeFolderIcon(Flat(30, kRed), {}, 48);
    EXPECT_EQ(BoundsOf(centred, kRed), (PixelRect{9, 14, 30, 30}));
    FolderOverlay moved;
    moved.offsetX = 10;
    moved.offsetY = -20;  // partly off the top and the right: what falls outside is dropped
    EXPECT_EQ(BoundsOf(ComposeFolderIcon(Flat(30, kRed), moved, 48), kRed),
              (PixelRect{19, 0, 29, 24}));
    // Outside the picture the folder is untouched.
    EXPECT_EQ(centred.At(2, 20), DrawFolderPicture(48).At(2, 20));
}

TEST(FolderPicture, TheAngleTurnsClockwiseAndTheDensityBlends) {
    // Red left half, blue right half; turned a quarter clockwise the red half is on top.
    const RgbaBuffer halves =
        test::MakeBuffer(30, 30, [](int x, int) { return x < 15 ? kRed : kBlue; });
    FolderOverlay turned;
    turned.angle = 90;
    const RgbaBuffer icon = ComposeFolderIcon(halves, turned, 48);
    EXPECT_EQ(BoundsOf(icon, kRed), (PixelRect{9, 14, 30, 15}));
    EXPECT_EQ(BoundsOf(icon, kBlue), (PixelRect{9, 29, 30, 15}));
    turned.angle = 180;
    EXPECT_EQ(BoundsOf(ComposeFolderIcon(halves, turned, 48), kRed), (PixelRect{24, 14, 15, 30}));

    FolderOverlay half;
    half.density = 128;
    const Rgba under = DrawFolderPicture(48).At(24, 30);
    const Rgba blended = ComposeFolderIcon(Flat(30, kBlue), half, 48).At(24, 30);
    EXPECT_EQ(blended.a, 255);
    EXPECT_NEAR(blended.r, under.r / 2, 1);
    EXPECT_NEAR(blended.b, (under.b + 255) / 2, 1);
}

TEST(FolderPicture, FieldsTakeWholeNumbersWithinTheirRange) {
    struct Case {
        const char* text;
        const OverlayField* field;
        std::optional<int> value;
    };
    const Case cases[] = {
        {"-48", &kOffsetField, -48}, {"48", &kOffsetField, 48},  {" 12 ", &kOffsetField, 12},
        {"49", &kOffsetField, {}},   {"-49", &kOffsetField, {}}, {"1.5", &kOffsetField, {}},
        {"", &kOffsetField, {}},     {"abc", &kAngleField, {}},  {"359", &kAngleField, 359},
        {"360", &kAngleField, {}},   {"0", &kDensityField, 0},   {"256", &kDensityField, 256},
        {"257", &kDensityField, {}}, {"-1", &kDensityField, {}}, {"99999999999", &kAngleField, {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(OverlayFieldValue(c.text, *c.field), c.value) << c.text;
}

}  // namespace
}  // namespace iw
