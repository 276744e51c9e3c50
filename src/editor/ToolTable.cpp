#include "editor/ToolTable.h"

#include <array>

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

}  // namespace iw
