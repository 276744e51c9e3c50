#include "editor/ToolTable.h"

#include <array>
#include <charconv>

namespace iw {
namespace {

constexpr std::array<ToolInfo, kToolCount> kTools = {{
    {ToolId::Select, "Select", "Select", OptionPanel::Selection, "tbrTools-Select"},
    {ToolId::Fill, "Fill", "Flood Fill", OptionPanel::Nothing, "tbrTools-Fill"},
    {ToolId::Airbrush, "Airbrush", "Airbrush", OptionPanel::Spray, "tbrTools-Spray"},
    {ToolId::Text, "Text", "Text", OptionPanel::Nothing, "tbrTools-Text"},
    {ToolId::PickColor, "Pick Color", "Pick Color", OptionPanel::Nothing, ""},
    {ToolId::Pencil, "Pencil", "Pencil", OptionPanel::Pencil, "tbrTools-Pencil"},
    {ToolId::Line, "Line", "Line", OptionPanel::Line, "tbrTools-Line"},
    {ToolId::Gradient, "Gradient", "Gradient", OptionPanel::Gradient, ""},
    {ToolId::Ellipse, "Ellipse", "Ellipse", OptionPanel::Shape, ""},
    {ToolId::Rectangle, "Rectangle", "Rectangle", OptionPanel::Shape, ""},
}};

// InfoOf indexes the table by ToolId.
constexpr bool InToolIdOrder() {
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        if (static_cast<std::size_t>(kTools[i].id) != i) return false;
    }
    return true;
}
static_assert(InToolIdOrder());

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

const ToolInfo& InfoOf(ToolId tool) {
    return kTools[static_cast<std::size_t>(tool)];
}

std::optional<ToolId> ToolFromKey(std::string_view key) {
    for (const ToolInfo& tool : kTools) {
        if (tool.key == key) return tool.id;
    }
    return std::nullopt;
}

void SelectTool(EditorState& state, ToolId tool) {
    state.CurrentTool = tool;
}

bool SelectTool(EditorState& state, std::string_view key) {
    const std::optional<ToolId> tool = ToolFromKey(key);
    if (!tool) return false;
    SelectTool(state, *tool);
    return true;
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
