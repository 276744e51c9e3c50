#pragma once
// The status bar text for the pixel under the mouse, and the colour entry boxes beside the
// red, green, blue and alpha sliders.

#include <optional>
#include <string>
#include <string_view>

#include "document/model/IconImage.h"
#include "editor/EditorState.h"

namespace iw {

// "Transparent", "Inverted", or "R 12, G 34, B 56", followed by ", A 78" for a 32-bit
// image. For 1-bit and 4-bit images the colour's name among the sixteen standard colours
// follows in brackets: "R 255, G 0, B 0 (Red)"; a colour that is not one of them is named
// after the standard colour it is saved as. Empty for a point outside the image.
std::string PixelStatusText(const IconImage& image, int x, int y);

// The name of a standard colour ("Maroon"), or "" for any other colour.
std::string StandardColorName(PackedColor color);

enum class Channel { Red, Green, Blue, Alpha };

// A channel box accepts a numeric value with 0 <= value < 256 (a fraction is rounded,
// halves to even); anything else gives no value.
std::optional<int> ParseChannelEntry(std::string_view text);

// What typing into a channel box does. A valid red, green or blue value changes that
// channel of the foreground colour (a marker foreground starts from black); an invalid one
// is ignored. A valid alpha sets the current alpha; an invalid alpha entry is replaced by
// "255", which then sets the alpha to 255. Returns the text the box should show afterwards
// when it must change, else nothing.
std::optional<std::string> ApplyChannelEntry(EditorState& state, Channel channel,
                                             std::string_view text);

// The slider values for the foreground colour (markers show as black).
int ChannelValue(const EditorState& state, Channel channel);

}  // namespace iw
