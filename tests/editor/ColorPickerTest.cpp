// The colour picker's state: typed entries, the field and strip, and the hue kept
// through greys.
#include "editor/ColorPicker.h"

#include <gtest/gtest.h>

namespace iw {
namespace {

TEST(ColorPicker, TypedEntriesAreCheckedAndTheHueSurvivesGreys) {
    ColorPicker picker(TransparentColor, 300);  // a marker starts as black, alpha clamped
    EXPECT_EQ(std::pair(picker.Color(), picker.Alpha()), std::pair(PackedColor{0}, 255));

    EXPECT_TRUE(picker.SetChannelText(Channel::Red, "200"));
    EXPECT_TRUE(picker.SetChannelText(Channel::Blue, "40"));
    EXPECT_FALSE(picker.SetChannelText(Channel::Green, "256"));
    EXPECT_TRUE(picker.SetChannelText(Channel::Alpha, "128"));
    EXPECT_EQ(std::pair(picker.Color(), picker.Alpha()), std::pair(PackColor(200, 0, 40), 128));
    EXPECT_EQ(picker.LongString(), "2621640");  // 200 + 40 * 65536

    picker.SetHue(120);
    EXPECT_EQ(picker.Color(), PackColor(0, 200, 0));
    picker.SetSaturationValue(0, 0.5);  // into the grey column...
    EXPECT_EQ(picker.Color(), PackColor(128, 128, 128));
    EXPECT_DOUBLE_EQ(picker.HsvValue().hue, 120);
    picker.SetSaturationValue(1, 1);  // ...and out again on the same hue
    EXPECT_EQ(picker.Color(), PackColor(0, 255, 0));

    EXPECT_FALSE(picker.SetHexText("#12"));
    EXPECT_TRUE(picker.SetHexText("#000000"));
    EXPECT_DOUBLE_EQ(picker.HsvValue().hue, 120);
    EXPECT_DOUBLE_EQ(picker.HsvValue().saturation, 1);  // black keeps the saturation too
    EXPECT_TRUE(picker.SetLongText("255"));
    EXPECT_EQ(picker.HexString(), "#FF0000");

    picker.Revert();
    EXPECT_EQ(std::pair(picker.Color(), picker.Alpha()), std::pair(PackedColor{0}, 255));
}

}  // namespace
}  // namespace iw
