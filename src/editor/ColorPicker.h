#pragma once
// The colour picker's state (frmColors): the colour being chosen with its alpha, the same
// colour as hue, saturation and value for the field and the hue strip, and the colour it
// started from. The window paints these and hands every entry here; OK gives Color() and
// Alpha() to the fore or back colour.

#include <optional>
#include <string>
#include <string_view>

#include "editor/ToolControls.h"
#include "imaging/ColorModel.h"

namespace iw {

class ColorPicker {
  public:
    ColorPicker(PackedColor start, int alpha);

    PackedColor Original() const { return original_; }
    int OriginalAlpha() const { return originalAlpha_; }
    PackedColor Color() const { return color_; }
    int Alpha() const { return alpha_; }
    // The hue survives colours that have none (greys, black): moving into the grey column
    // of the field and out again keeps the strip where it was.
    const Hsv& HsvValue() const { return hsv_; }
    int ChannelValue(Channel channel) const;

    // From the hue strip (degrees) and from the field (saturation, value in [0, 1]).
    void SetHue(double hue);
    void SetSaturationValue(double saturation, double value);
    // Typed into a channel box: a whole number 0 .. 255 is taken (true); anything else is
    // refused and the box shows the value again.
    bool SetChannelText(Channel channel, std::string_view text);
    // Typed into the long and hex boxes; refused text changes nothing.
    bool SetLongText(std::string_view text);
    bool SetHexText(std::string_view text);
    void SetColor(PackedColor color);
    // Back to the colour the picker started from (a click on the old swatch).
    void Revert();

    std::string LongString() const { return LongText(color_); }
    std::string HexString() const { return HexText(color_); }

  private:
    PackedColor original_;
    int originalAlpha_;
    PackedColor color_;
    int alpha_;
    Hsv hsv_;
};

}  // namespace iw
