// The resize window's logic: percent and pixels, validation through the message routine,
// and the 1..256 limit of the new sides.

#include <gtest/gtest.h>

#include "imaging/ResizePresenter.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

TEST(ResizePresenter, PercentAndPixelsGiveTheNewSides) {
    test::MessageFixture messages;
    ResizePresenter resize(32, 48, messages.service);
    EXPECT_EQ(resize.CurrentText(), "Current Size: 32 x 48");
    EXPECT_EQ(resize.NewText(), "New Size: 32 x 48");
    ASSERT_TRUE(resize.SetHorizontal("50"));
    ASSERT_TRUE(resize.SetVertical("500"));
    EXPECT_EQ(std::pair(resize.NewWidth(), resize.NewHeight()), std::pair(16, 240));
    ASSERT_TRUE(resize.SetVertical("+999") == false);
    ASSERT_TRUE(resize.SetHorizontal("1"));
    EXPECT_EQ(resize.NewWidth(), 1);  // 0.32 px is still one pixel

    // Switching to pixels keeps the size; pixels above 256 are held to 256.
    resize.SetMode(ResizePresenter::Mode::Pixels);
    EXPECT_EQ(std::pair(resize.Horizontal(), resize.Vertical()), std::pair(1, 240));
    ASSERT_TRUE(resize.SetHorizontal("300"));
    EXPECT_EQ(resize.NewWidth(), 256);
    resize.SetMode(ResizePresenter::Mode::Percent);
    // 256 of 32 is 800 %, held to 500.
    EXPECT_EQ(std::pair(resize.Horizontal(), resize.Vertical()), std::pair(500, 500));
    EXPECT_EQ(resize.NewText(), "New Size: 160 x 240");
}

TEST(ResizePresenter, EntriesOutsideOneTo500AreRefusedWithTheMessage) {
    test::MessageFixture messages;
    ResizePresenter resize(64, 64, messages.service);
    for (const char* text : {"0", "501", "-5", "", "12x", " 12", "1.5", "99999999999"}) {
        EXPECT_FALSE(resize.SetHorizontal(text)) << text;
        EXPECT_FALSE(resize.SetVertical(text)) << text;
    }
    EXPECT_EQ(std::pair(resize.Horizontal(), resize.Vertical()), std::pair(100, 100));
    EXPECT_EQ(messages.presenter.Keys(), std::vector<std::string>(16, "Integer500"));
    EXPECT_TRUE(resize.SetVertical("500"));
    EXPECT_EQ(messages.presenter.shown.size(), 16u);
}

}  // namespace
}  // namespace iw
