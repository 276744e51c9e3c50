// The favicon: kept and resampled images, the wizard's save with its question and
// messages, and the PNG icons beside it.

#include <gtest/gtest.h>

#include "PictureTestHelpers.h"
#include "document/io/Favicon.h"

namespace iw {
namespace {

using test::Flat;
using test::ReadPng;
using Fixture = test::PictureFixture;

TEST(Favicon, SizesTheIconHasAreKeptTheOthersResampled) {
    IconSet source;
    source.AddIcon(63, 63, 32);  // the largest: flat blue
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            source.Image(0).Color(x, y) = PackColor(0, 0, 255);
            source.Image(0).Alpha(x, y) = 255;
        }
    }
    source.AddIcon(31, 31, 32);
    source.Image(1).Color(5, 6) = PackColor(7, 8, 9);
    source.Image(1).Alpha(5, 6) = 200;
    source.AddIcon(15, 15, 4);
    source.Image(2).Color(1, 1) = PackColor(255, 255, 0);
    source.Image(2).Color(2, 2) = TransparentColor;

    IconSet favicon;
    BuildFaviconSet(source, favicon);
    ASSERT_EQ(favicon.Count(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(favicon.Info(i).Width(), kFaviconSides[static_cast<std::size_t>(i)]);
        EXPECT_EQ(favicon.Info(i).bitCount, 32);
    }
    EXPECT_EQ(favicon.Image(0).Color(1, 1), PackColor(255, 255, 0));  // the 4-bit 16 px, same look
    EXPECT_EQ(favicon.Image(0).Alpha(1, 1), 255);
    EXPECT_EQ(favicon.Image(0).Color(2, 2), TransparentColor);
    EXPECT_EQ(favicon.Image(0).Alpha(2, 2), 0);
    EXPECT_TRUE(std::ranges::equal(favicon.Image(1).PlaneCells(0), source.Image(1).PlaneCells(0)));
    EXPECT_EQ(favicon.Image(1).Alpha(5, 6), 200);
    EXPECT_EQ(favicon.Image(2).Color(24, 24), PackColor(0, 0, 255));  // 48 from the 64

    BuildFaviconSet(Flat(10, 20, {1, 2, 3, 255}), favicon);
    ASSERT_EQ(favicon.Count(), 3);
    EXPECT_EQ(favicon.Image(2).Color(24, 24), PackColor(1, 2, 3));
    EXPECT_EQ(favicon.Image(2).Color(0, 24), TransparentColor);  // 24 x 48, centred
}

TEST(Favicon, SaveAsksBeforeReplacingAndTellsTheOutcome) {
    Fixture f;
    IconSet set;
    set.AddIcon(31, 31, 32);
    const auto target = f.dir / "favicon.ico";
    EXPECT_EQ(SaveFavicon(f.dir.Path(), set, false, f.context), FaviconSaveResult::Saved);
    ASSERT_EQ(f.messages.presenter.shown.size(), 1u);
    EXPECT_EQ(f.messages.presenter.shown[0].text,
              "Your icon has been saved as 'favicon.ico' on your Desktop.");
    EXPECT_EQ(f.messages.presenter.shown[0].type, MessageType::Information);

    const auto first = test::ReadFileBytes(target);
    set.AddIcon(15, 15, 8);
    f.messages.presenter.answer = MessageAnswer::No;
    EXPECT_EQ(SaveFavicon(f.dir.Path(), set, false, f.context), FaviconSaveResult::Cancelled);
    const MessageBoxRequest& question = f.messages.presenter.shown.back();
    EXPECT_EQ(question.text,
              target.string() + "\nThis file already exists.  Would you like to overwrite it?");
    EXPECT_EQ(question.type, MessageType::Exclamation);
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);
    EXPECT_EQ(test::ReadFileBytes(target), first);

    f.messages.presenter.answer = MessageAnswer::Yes;
    EXPECT_EQ(SaveFavicon(f.dir.Path(), set, true, f.context), FaviconSaveResult::Saved);
    EXPECT_NE(test::ReadFileBytes(target), first);
    for (const TouchIcon& icon : kTouchIcons)
        EXPECT_EQ(ReadPng(f.dir / std::string(icon.file)).Width(), icon.side);

    EXPECT_EQ(SaveFavicon(f.dir / "no" / "such", set, false, f.context), FaviconSaveResult::Failed);
    EXPECT_EQ(f.messages.presenter.shown.back().text, "Your icon was not saved.");
    EXPECT_EQ(f.messages.presenter.shown.back().type, MessageType::Critical);
}

}  // namespace
}  // namespace iw
