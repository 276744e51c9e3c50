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
    resize.SetKeepProportions(false);
    EXPECT_EQ(resize.CurrentText(), "Current Size: 32 x 48");
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

TEST(ResizePresenter, KeptProportionsMakeOneEntryFollowTheOther) {
    using Entry = ResizePresenter::Entry;
    test::MessageFixture messages;
    struct Case {
        int width, height;
        ResizePresenter::Mode mode;
        Entry entry;
        const char* text;
        int horizontal, vertical;
        const char* newText;
    };
    const Case cases[] = {
        {256, 48, ResizePresenter::Mode::Pixels, Entry::Horizontal, "100", 100, 19,
         "New Size: 100 x 19"},  // 18.75 rounds up
        {256, 48, ResizePresenter::Mode::Pixels, Entry::Vertical, "24", 128, 24,
         "New Size: 128 x 24"},
        {256, 48, ResizePresenter::Mode::Percent, Entry::Vertical, "25", 25, 25,
         "New Size: 64 x 12"},
        {16, 256, ResizePresenter::Mode::Pixels, Entry::Horizontal, "100", 100, 500,
         "New Size: 100 x 256"},  // 1600 held to 500
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        ResizePresenter resize(c.width, c.height, messages.service);
        ASSERT_TRUE(resize.KeepProportions());
        resize.SetMode(c.mode);
        // While typing nothing is taken; a bad text shows the held values.
        const auto expected = std::tuple(c.horizontal, c.vertical, std::string(c.newText));
        const ResizePresenter::Typed typed = resize.WhileTyping(c.entry, c.text);
        EXPECT_EQ(std::tuple(typed.horizontal, typed.vertical, typed.newText), expected);
        EXPECT_EQ(resize.WhileTyping(c.entry, "501").newText, resize.NewText());
        EXPECT_NE(resize.NewText(), c.newText);

        ASSERT_TRUE(resize.Set(c.entry, c.text));
        EXPECT_EQ(std::tuple(resize.Horizontal(), resize.Vertical(), resize.NewText()), expected);
    }
    EXPECT_TRUE(messages.presenter.shown.empty());

    // Entries set apart come together when proportions are turned on, and stay equal
    // percentages across a change of unit.
    ResizePresenter resize(256, 48, messages.service);
    resize.SetKeepProportions(false);
    ASSERT_TRUE(resize.SetHorizontal("40"));
    ASSERT_TRUE(resize.SetVertical("90"));
    EXPECT_EQ(resize.WhileTyping(Entry::Horizontal, "50").vertical, 90);
    resize.SetKeepProportions(true);
    EXPECT_EQ(resize.Vertical(), 40);
    resize.SetMode(ResizePresenter::Mode::Pixels);
    EXPECT_EQ(resize.NewText(), "New Size: 102 x 19");  // 102.4 x 19.2
    resize.SetMode(ResizePresenter::Mode::Percent);
    EXPECT_EQ(resize.Horizontal(), resize.Vertical());
}

}  // namespace
}  // namespace iw
