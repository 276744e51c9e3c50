#pragma once
// The tool bar's state kept between runs: the current tool, its options, the two colours
// and the alpha, under "Settings\" keys of their own. Read back through ToolControls'
// commands, so a stored value the controls do not offer leaves the default.

#include "editor/ToolControls.h"
#include "services/core/XmlStore.h"

namespace iw {

namespace settings {
inline constexpr std::string_view Tool = "Settings\\Tool";
inline constexpr std::string_view BrushShape = "Settings\\BrushShape";
inline constexpr std::string_view LineWidth = "Settings\\LineWidth";
inline constexpr std::string_view SpraySize = "Settings\\SpraySize";
inline constexpr std::string_view ShapeFill = "Settings\\ShapeFill";
inline constexpr std::string_view Gradient = "Settings\\Gradient";
inline constexpr std::string_view SelectionMode = "Settings\\SelectionMode";
inline constexpr std::string_view ForeColor = "Settings\\ForeColor";
inline constexpr std::string_view BackColor = "Settings\\BackColor";
inline constexpr std::string_view Alpha = "Settings\\Alpha";
}  // namespace settings

void SaveToolState(XmlStore& store, const ToolState& state);
// Applies what the store holds; keys that are missing or unusable change nothing.
void RestoreToolState(const XmlStore& store, ToolControls& tools);

}  // namespace iw
