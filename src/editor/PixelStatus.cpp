#include "editor/PixelStatus.h"

#include "editor/EditorTexts.h"
#include "editor/NumberText.h"
#include "editor/PixelPlot.h"
#include "imaging/ColorMapping.h"
#include "imaging/Rounding.h"
#include "imaging/StandardColors.h"
#include "services/core/Texts.h"

namespace iw {

std::string StandardColorName(PackedColor color) {
    const int index = Standard16Index(color);
    if (index < 0) return {};
    return GetText(texts::kStandardColorNames[static_cast<std::size_t>(index)]);
}

std::string PixelStatusText(const IconImage& image, int x, int y) {
    if (!InsideImage(image, x, y)) return {};
    const PackedColor color = image.Color(x, y);
    if (color == TransparentColor) return GetText(texts::TransparentPixel);
    if (color == InverseColor) return GetText(texts::InvertedPixel);
    std::string text = "R " + std::to_string(RedOf(color)) + ", G " +
                       std::to_string(GreenOf(color)) + ", B " + std::to_string(BlueOf(color));
    const int bits = image.info.bitCount;
    if (bits == 32) text += ", A " + std::to_string(image.Alpha(x, y));
    if (bits == 1 || bits == 4) text += " (" + StandardColorName(ColorForDepth(color, bits)) + ")";
    return text;
}

std::optional<int> ParseChannelEntry(std::string_view text) {
    const std::optional<double> value = ParseNumber(text);
    if (!value || *value < 0.0 || *value >= 256.0) return std::nullopt;
    const int rounded = RoundHalfEven(*value);
    return rounded > 255 ? 255 : rounded;
}

int ChannelValue(const EditorState& state, Channel channel) {
    const PackedColor fore = IsMarker(state.ForeColor) ? 0 : state.ForeColor;
    switch (channel) {
        case Channel::Red:
            return RedOf(fore);
        case Channel::Green:
            return GreenOf(fore);
        case Channel::Blue:
            return BlueOf(fore);
        case Channel::Alpha:
            return state.CurrentAlpha;
    }
    return 0;
}

std::optional<std::string> ApplyChannelEntry(EditorState& state, Channel channel,
                                             std::string_view text) {
    const std::optional<int> value = ParseChannelEntry(text);
    if (channel == Channel::Alpha) {
        if (!value) {
            state.CurrentAlpha = 255;
            return std::string("255");
        }
        state.CurrentAlpha = *value;
        return std::nullopt;
    }
    if (!value) return std::nullopt;
    int red = ChannelValue(state, Channel::Red);
    int green = ChannelValue(state, Channel::Green);
    int blue = ChannelValue(state, Channel::Blue);
    if (channel == Channel::Red) red = *value;
    if (channel == Channel::Green) green = *value;
    if (channel == Channel::Blue) blue = *value;
    state.ForeColor = PackColor(red, green, blue);
    return std::nullopt;
}

}  // namespace iw
