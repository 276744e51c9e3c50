// The favicon: kept and resampled images, the wizard's save with its question and
// messages, and the PNG icons beside it.

#include <gtest/gtest.h>

#include "PictureTestHelpers.h"
#include "document/io/Favicon.h"
#include "support/TestImages.h"

namespace iw {
namespace {

using test::ReadPng;
using Keys = std::vector<std::string>;

TEST(Favicon, SizesTheIconHasAreKeptTheOthersResampled) {
    IconSet source = test::SolidSet(64, 32, PackColor(0, 0, 255));  // the largest: flat blue
    source.InsertIcon(1, test::MakeImage(32, 32, 32));
    source.Image(1).Color(5, 6) = PackColor(7, 8, 9);
    source.Image(1).Alpha(5, 6) = 200;
    source.InsertIcon(2, test::MakeImage(16, 16, 4));
    source.Image(2).Color(1, 1) = PackColor(255, 255, 0);
    source.Image(2).Color(2, 2) = TransparentColor;

    IconSet favicon;
    BuildFaviconSet(source, favicon);
    ASSERT_EQ(favicon.Count(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(std::pair(favicon.Info(i).Width(), int{favicon.Info(i).bitCount}),
                  std::pair(kFaviconSides[static_cast<std::size_t>(i)], 32));
    }
    const IconImage& small = favicon.Image(0);  // the 4-bit 16 px, the same look at 32 bits
    EXPECT_EQ(
        std::tuple(small.Color(1, 1), small.Alpha(1, 1), small.Color(2, 2), small.Alpha(2, 2)),
        std::tuple(PackColor(255, 255, 0), 255, TransparentColor, 0));
    EXPECT_TRUE(std::ranges::equal(favicon.Image(1).PlaneCells(0), source.Image(1).PlaneCells(0)));
    EXPECT_EQ(favicon.Image(1).Alpha(5, 6), 200);
    EXPECT_EQ(favicon.Image(2).Color(24, 24), PackColor(0, 0, 255));  // 48 from the 64

    BuildFaviconSet(test::Flat(10, 20, {1, 2, 3, 255}), favicon);
    ASSERT_EQ(favicon.Count(), 3);
    EXPECT_EQ(favicon.Image(2).Color(24, 24), PackColor(1, 2, 3));
    EXPECT_EQ(favicon.Image(2).Color(0, 24), TransparentColor);  // 24 x 48, centred
}

TEST(Favicon, SaveAsksBeforeReplacingAndTellsTheOutcome) {
    test::CoreFixture f;
    IconSet set;
    set.AddIcon(31, 31, 32);
    const auto target = f.dir / "favicon.ico";
    EXPECT_EQ(SaveFavicon(f.dir.Path(), set, false, f.context), FaviconSaveResult::Saved);
    const auto first = test::ReadFileBytes(target);
    set.AddIcon(15, 15, 8);
    f.presenter.answer = MessageAnswer::No;
    EXPECT_EQ(SaveFavicon(f.dir.Path(), set, false, f.context), FaviconSaveResult::Cancelled);
    EXPECT_TRUE(f.presenter.shown.back().text.starts_with(target.string() + "\n"));
    EXPECT_EQ(f.presenter.shown.back().buttons, MessageButtons::YesNo);
    EXPECT_EQ(test::ReadFileBytes(target), first);

    f.presenter.answer = MessageAnswer::Yes;
    EXPECT_EQ(SaveFavicon(f.dir.Path(), set, true, f.context), FaviconSaveResult::Saved);
    EXPECT_NE(test::ReadFileBytes(target), first);
    for (const TouchIcon& icon : kTouchIcons)
        EXPECT_EQ(ReadPng(f.dir / std::string(icon.file)).Width(), icon.side);

    EXPECT_EQ(SaveFavicon(f.dir / "no" / "such", set, false, f.context), FaviconSaveResult::Failed);
    EXPECT_EQ(f.presenter.Keys(), (Keys{"FaviconSaved", "FaviconExists", "FaviconExists",
                                        "FaviconSaved", "FaviconNotSaved"}));
}

}  // namespace
}  // namespace iw
