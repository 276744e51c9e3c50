#include "editor/ToolTable.h"

#include <array>
#include <charconv>

namespace iw {
namespace {

constexpr std::array<ToolInfo, 10> kTools = {{
    {tools::Select, "Select", OptionPanel::Selection, "tbrTools-Select"},
    {tools::Fill, "Flood Fill", OptionPanel::Nothing, "tbrTools-Fill"},
    {tools::Airbrush, "Airbrush", OptionPanel::Spray, "tbrTools-Spray"},
    {tools::Text, "Text", OptionPanel::Nothing, "tbrTools-Text"},
    {tools::PickColor, "Pick Color", OptionPanel::Nothing, ""},
    {tools::Pencil, "Pencil", OptionPanel::Pencil, "tbrTools-Pencil"},
    {tools::Line, "Line", OptionPanel::Line, "tbrTools-Line"},
    {tools::Gradient, "Gradient", OptionPanel::Gradient, ""},
    {tools::Ellipse, "Ellipse", OptionPanel::Shape, ""},
    {tools::Rectangle, "Rectangle", OptionPanel::Shape, ""},
}};

constexpr std::array<std::string_view, 6> kBrushShapes = {"SSquare", "MSquare", "LSquare",
                                                          "SCircle", "MCircle", "LCircle"};

// The whole tag as a decimal number, or -1.
int TagNumber(std::string_view tag) {
    int value = -1;
    auto [end, ec] = std::from_chars(tag.data(), tag.data() + tag.size(), value);
    if (ec != std::errc() || end != tag.data() + tag.size()) return -1;
    return value;
}

}  // namespace

std::span<const ToolInfo> AllTools() {
    return kTools;
}

const ToolInfo* FindTool(std::string_view key) {
    for (const ToolInfo& tool : kTools) {
        if (tool.key == key) return &tool;
    }
    return nullptr;
}

OptionPanel OptionPanelFor(std::string_view key) {
    const ToolInfo* tool = FindTool(key);
    return tool ? tool->panel : OptionPanel::Nothing;
}

OptionPanel SelectTool(EditorState& state, std::string_view key) {
    state.CurrentTool = std::string(key);
    return OptionPanelFor(key);
}

bool SetBrushShape(EditorState& state, std::string_view tag) {
    for (std::string_view shape : kBrushShapes) {
        if (shape == tag) {
            state.BrushShape = std::string(shape);
            return true;
        }
    }
    return false;
}

bool SetLineWidth(EditorState& state, std::string_view tag) {
    int width = TagNumber(tag);
    if (width < 1 || width > 4) return false;
    state.LineWidth = width;
    return true;
}

bool SetSpraySize(EditorState& state, std::string_view tag) {
    int size = TagNumber(tag);
    if (size != 4 && size != 6 && size != 8) return false;
    state.SpraySize = size;
    return true;
}

}  // namespace iw
