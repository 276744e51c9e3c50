// The resampler: premultiplied filtering (no dark fringe at transparent edges), flat
// colours kept exactly, the fitted sizes, and inverting pixels.

#include <gtest/gtest.h>

#include "RgbaTestPictures.h"
#include "imaging/Resampler.h"

namespace iw {
namespace {

struct Scale {
    int from, to;
};
constexpr Scale kScales[] = {{64, 16}, {64, 13}, {200, 7}, {48, 32}, {16, 40}, {10, 256}};

TEST(Resampler, WhiteSquareOnTransparentGetsNoDarkFringe) {
    const Rgba white{255, 255, 255, 255};
    for (const Scale s : kScales) {
        const RgbaBuffer source =
            test::SquareOnTransparent(s.from, s.from / 4, s.from * 3 / 4, white);
        const RgbaBuffer out = Resample(source, s.to, s.to);
        ASSERT_EQ(out.Width(), s.to);
        int seen = 0, partial = 0;
        for (const Rgba p : out.Pixels()) {
            if (p.a == 0) continue;
            ++seen;
            partial += p.a < 255;
            ASSERT_EQ(p, (Rgba{255, 255, 255, p.a})) << s.from << " -> " << s.to;
        }
        EXPECT_GT(seen, 0);
        EXPECT_GT(partial, 0) << "a real filter blends the edge: " << s.from << " -> " << s.to;
    }
}

TEST(Resampler, FlatColoursStayExactlyThatColour) {
    for (const Rgba color : {Rgba{12, 200, 99, 255}, Rgba{255, 0, 128, 77}, Rgba{1, 2, 3, 1}}) {
        for (const Scale s : kScales) {
            const RgbaBuffer source =
                test::MakeBuffer(s.from, s.from / 2 + 1, [&](int, int) { return color; });
            const RgbaBuffer out = Resample(source, s.to, s.to / 2 + 1);
            for (const Rgba p : out.Pixels())
                ASSERT_EQ(p, color) << s.from << " -> " << s.to;
        }
    }
}

TEST(Resampler, SameSizeIsTheSamePicture) {
    const RgbaBuffer source = test::Distinct(9, 5);
    EXPECT_EQ(Resample(source, 9, 5), source);
}

TEST(Resampler, FitSizeKeepsTheAspect) {
    struct Case {
        int w, h, maxW, maxH;
        bool enlarge;
        PixelSize expected;
    };
    const Case cases[] = {
        {1024, 512, 256, 256, true, {256, 128}}, {300, 900, 48, 48, true, {16, 48}},
        {10, 10, 256, 256, true, {256, 256}},    {10, 20, 256, 256, false, {10, 20}},
        {1000, 1, 16, 16, true, {16, 1}},        {3, 2, 2, 2, true, {2, 1}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(FitSize(c.w, c.h, c.maxW, c.maxH, c.enlarge), c.expected) << c.w << "x" << c.h;
}

TEST(Resampler, InvertingPixelsFollowTheNearestSourcePixel) {
    RgbaBuffer source = test::MakeBuffer(4, 4, [](int, int) { return Rgba{10, 20, 30, 255}; });
    source.At(3, 0) = {255, 255, 255, 0};
    source.SetInverse(3, 0, true);
    const RgbaBuffer out = Resample(source, 8, 8);
    EXPECT_EQ(std::tuple(out.IsInverse(7, 0), out.IsInverse(6, 1), out.IsInverse(5, 0),
                         out.IsInverse(0, 7)),
              std::tuple(true, true, false, false));
}

}  // namespace
}  // namespace iw
