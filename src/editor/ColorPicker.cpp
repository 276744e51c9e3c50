#include "editor/ColorPicker.h"

#include <algorithm>

namespace iw {
namespace {

PackedColor ColorOrBlack(PackedColor color) {
    return IsMarker(color) ? 0 : PackColor(RedOf(color), GreenOf(color), BlueOf(color));
}

}  // namespace

ColorPicker::ColorPicker(PackedColor start, int alpha)
    : original_(ColorOrBlack(start)),
      originalAlpha_(std::clamp(alpha, 0, 255)),
      color_(original_),
      alpha_(originalAlpha_),
      hsv_(RgbToHsv(original_)) {}

int ColorPicker::ChannelValue(Channel channel) const {
    switch (channel) {
        case Channel::Red:
            return RedOf(color_);
        case Channel::Green:
            return GreenOf(color_);
        case Channel::Blue:
            return BlueOf(color_);
        case Channel::Alpha:
            return alpha_;
    }
    return 0;
}

void ColorPicker::SetHue(double hue) {
    hsv_.hue = std::clamp(hue, 0.0, 359.999);
    color_ = HsvToRgb(hsv_);
}

void ColorPicker::SetSaturationValue(double saturation, double value) {
    hsv_.saturation = std::clamp(saturation, 0.0, 1.0);
    hsv_.value = std::clamp(value, 0.0, 1.0);
    color_ = HsvToRgb(hsv_);
}

void ColorPicker::SetColor(PackedColor color) {
    color_ = ColorOrBlack(color);
    const Hsv fresh = RgbToHsv(color_);
    // A grey keeps the hue the strip shows; black keeps the saturation as well.
    if (fresh.saturation > 0) hsv_.hue = fresh.hue;
    if (fresh.value > 0) hsv_.saturation = fresh.saturation;
    hsv_.value = fresh.value;
}

bool ColorPicker::SetChannelText(Channel channel, std::string_view text) {
    const std::optional<int> value = ParseChannelEntry(text);
    if (!value) return false;
    if (channel == Channel::Alpha) {
        alpha_ = *value;
        return true;
    }
    int red = RedOf(color_);
    int green = GreenOf(color_);
    int blue = BlueOf(color_);
    (channel == Channel::Red ? red : channel == Channel::Green ? green : blue) = *value;
    SetColor(PackColor(red, green, blue));
    return true;
}

bool ColorPicker::SetLongText(std::string_view text) {
    const std::optional<PackedColor> color = ParseLongText(text);
    if (color) SetColor(*color);
    return color.has_value();
}

bool ColorPicker::SetHexText(std::string_view text) {
    const std::optional<PackedColor> color = ParseHexText(text);
    if (color) SetColor(*color);
    return color.has_value();
}

void ColorPicker::Revert() {
    alpha_ = originalAlpha_;
    SetColor(original_);
}

}  // namespace iw
