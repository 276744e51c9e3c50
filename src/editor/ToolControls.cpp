#include "editor/ToolControls.h"

#include <algorithm>
#include <array>

#include "editor/NumberText.h"
#include "imaging/Rounding.h"
#include "services/core/ParseInteger.h"

namespace iw {
namespace {

constexpr std::array<std::string_view, 6> kBrushShapes = {"SSquare", "MSquare", "LSquare",
                                                          "SCircle", "MCircle", "LCircle"};

// The whole tag as a decimal number, or -1.
int TagNumber(std::string_view tag) {
    return ParseInteger<int>(tag).value_or(-1);
}

}  // namespace

std::optional<int> ParseChannelEntry(std::string_view text) {
    const std::optional<double> value = ParseNumber(text);
    if (!value || *value < 0.0 || *value >= 256.0) return std::nullopt;
    const int rounded = RoundHalfEven(*value);
    return rounded > 255 ? 255 : rounded;
}

void ToolControls::SelectTool(ToolId tool) {
    const ToolId from = state_.CurrentTool;
    state_.CurrentTool = tool;
    if (switchListener_ && from != tool) switchListener_->ToolSwitched(from, tool);
    ToolChanged();
}

bool ToolControls::SelectTool(std::string_view key) {
    const std::optional<ToolId> tool = ToolFromKey(key);
    if (!tool) return false;
    SelectTool(*tool);
    return true;
}

bool ToolControls::SetBrushShape(std::string_view tag) {
    if (std::find(kBrushShapes.begin(), kBrushShapes.end(), tag) == kBrushShapes.end())
        return false;
    state_.BrushShape = std::string(tag);
    ToolChanged();
    return true;
}

bool ToolControls::SetLineWidth(std::string_view tag) {
    const int width = TagNumber(tag);
    if (width < 1 || width > 4) return false;
    state_.LineWidth = width;
    ToolChanged();
    return true;
}

bool ToolControls::SetSpraySize(std::string_view tag) {
    const int size = TagNumber(tag);
    if (size != 4 && size != 6 && size != 8) return false;
    state_.SpraySize = size;
    ToolChanged();
    return true;
}

void ToolControls::SetShapeFilled(bool filled) {
    state_.ShapeFilled = filled;
    ToolChanged();
}

void ToolControls::SetGradientDirection(GradientDirection direction) {
    state_.Gradient = direction;
    ToolChanged();
}

void ToolControls::SetSelectionMode(SelectionMode mode) {
    state_.Selection = mode;
    ToolChanged();
}

void ToolControls::SetForeColor(PackedColor color) {
    state_.ForeColor = color;
    ColorsChanged();
}

void ToolControls::SetBackColor(PackedColor color) {
    state_.BackColor = color;
    ColorsChanged();
}

void ToolControls::SetAlpha(int alpha) {
    state_.CurrentAlpha = std::clamp(alpha, 0, 255);
    ColorsChanged();
}

void ToolControls::SwitchColors() {
    std::swap(state_.ForeColor, state_.BackColor);
    ColorsChanged();
}

int ToolControls::ChannelValue(Channel channel) const {
    const PackedColor fore = IsMarker(state_.ForeColor) ? 0 : state_.ForeColor;
    switch (channel) {
        case Channel::Red:
            return RedOf(fore);
        case Channel::Green:
            return GreenOf(fore);
        case Channel::Blue:
            return BlueOf(fore);
        case Channel::Alpha:
            return state_.CurrentAlpha;
    }
    return 0;
}

std::optional<std::string> ToolControls::ApplyChannelEntry(Channel channel, std::string_view text) {
    const std::optional<int> value = ParseChannelEntry(text);
    if (channel == Channel::Alpha) {
        SetAlpha(value.value_or(255));
        if (!value) return std::string("255");
        return std::nullopt;
    }
    if (!value) return std::nullopt;
    int red = ChannelValue(Channel::Red);
    int green = ChannelValue(Channel::Green);
    int blue = ChannelValue(Channel::Blue);
    if (channel == Channel::Red) red = *value;
    if (channel == Channel::Green) green = *value;
    if (channel == Channel::Blue) blue = *value;
    SetForeColor(PackColor(red, green, blue));
    return std::nullopt;
}

void ToolControls::TakePickedColor(MouseButton button, PackedColor color,
                                   std::optional<int> alpha) {
    if (button == MouseButton::Left) {
        state_.ForeColor = color;
        if (alpha) state_.CurrentAlpha = *alpha;
    } else {
        state_.BackColor = color;
    }
    ColorsChanged();
}

}  // namespace iw
