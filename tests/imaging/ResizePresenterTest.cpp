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
    EXPECT_EQ(resize.NewWidth(), 16);
    EXPECT_EQ(resize.NewHeight(), 240);
    ASSERT_TRUE(resize.SetVertical("+999") == false);
    ASSERT_TRUE(resize.SetHorizontal("1"));
    EXPECT_EQ(resize.NewWidth(), 1);  // 0.32 px is still one pixel

    // Switching to pixels keeps the size; pixels above 256 are held to 256.
    resize.SetMode(ResizePresenter::Mode::Pixels);
    EXPECT_EQ(resize.Horizontal(), 1);
    EXPECT_EQ(resize.Vertical(), 240);
    ASSERT_TRUE(resize.SetHorizontal("300"));
    EXPECT_EQ(resize.NewWidth(), 256);
    resize.SetMode(ResizePresenter::Mode::Percent);
    EXPECT_EQ(resize.Horizontal(), 500);  // 256 of 32 is 800 %, held to 500
    EXPECT_EQ(resize.Vertical(), 500);
    EXPECT_EQ(resize.NewText(), "New Size: 160 x 240");
}

TEST(ResizePresenter, EntriesOutsideOneTo500AreRefusedWithTheMessage) {
    test::MessageFixture messages;
    ResizePresenter resize(64, 64, messages.service);
    for (const char* text : {"0", "501", "-5", "", "12x", " 12", "1.5", "99999999999"}) {
        EXPECT_FALSE(resize.SetHorizontal(text)) << text;
        EXPECT_FALSE(resize.SetVertical(text)) << text;
    }
    EXPECT_EQ(resize.Horizontal(), 100);
    EXPECT_EQ(resize.Vertical(), 100);
    ASSERT_EQ(messages.presenter.shown.size(), 16u);
    EXPECT_EQ(messages.presenter.shown[0].key, "Integer500");
    EXPECT_EQ(messages.presenter.shown[0].text, "Please enter an integer between 1 and 500");
    EXPECT_TRUE(resize.SetVertical("500"));
    EXPECT_EQ(messages.presenter.shown.size(), 16u);

    // While typing, a valid text shows in the new size and a bad one falls back to the held
    // entry, quietly and without taking either.
    EXPECT_EQ(resize.NewTextWhileTyping("50", "60"), "New Size: 32 x 38");
    EXPECT_EQ(resize.NewTextWhileTyping("501", "x"), "New Size: 64 x 256");
    EXPECT_EQ(resize.Horizontal(), 100);
    EXPECT_EQ(messages.presenter.shown.size(), 16u);
}

}  // namespace
}  // namespace iw
