#include "editor/ToolSettings.h"

#include "editor/NumberText.h"

namespace iw {
namespace {

constexpr int kMaxPackedColor = 0xFFFFFF;

std::optional<int> StoredInteger(const XmlStore& store, std::string_view key, int low, int high) {
    const std::optional<int> value = ParseInteger(store.GetValue(key, ""));
    if (!value || *value < low || *value > high) return std::nullopt;
    return value;
}

// A packed colour or one of the two markers.
std::optional<PackedColor> StoredColor(const XmlStore& store, std::string_view key) {
    const std::optional<int> value = ParseInteger(store.GetValue(key, ""));
    if (!value) return std::nullopt;
    if (IsMarker(*value) || (*value >= 0 && *value <= kMaxPackedColor)) return value;
    return std::nullopt;
}

}  // namespace

void SaveToolState(XmlStore& store, const ToolState& state) {
    store.SetValue(settings::Tool, InfoOf(state.CurrentTool).key);
    store.SetValue(settings::BrushShape, state.BrushShape);
    store.SetValue(settings::LineWidth, NumberText(state.LineWidth));
    store.SetValue(settings::SpraySize, NumberText(state.SpraySize));
    store.SetBool(settings::ShapeFill, state.ShapeFilled);
    store.SetValue(settings::Gradient, NumberText(static_cast<int>(state.Gradient)));
    store.SetValue(settings::SelectionMode, NumberText(static_cast<int>(state.Selection)));
    store.SetValue(settings::ForeColor, NumberText(state.ForeColor));
    store.SetValue(settings::BackColor, NumberText(state.BackColor));
    store.SetValue(settings::Alpha, NumberText(state.CurrentAlpha));
}

void RestoreToolState(const XmlStore& store, ToolControls& tools) {
    tools.SelectTool(store.GetValue(settings::Tool, ""));
    tools.SetBrushShape(store.GetValue(settings::BrushShape, ""));
    tools.SetLineWidth(store.GetValue(settings::LineWidth, ""));
    tools.SetSpraySize(store.GetValue(settings::SpraySize, ""));
    tools.SetShapeFilled(store.GetBool(settings::ShapeFill, tools.State().ShapeFilled));
    if (const auto direction = StoredInteger(store, settings::Gradient, 0, 3))
        tools.SetGradientDirection(static_cast<GradientDirection>(*direction));
    if (const auto mode = StoredInteger(store, settings::SelectionMode, 0, 1))
        tools.SetSelectionMode(static_cast<SelectionMode>(*mode));
    if (const auto color = StoredColor(store, settings::ForeColor)) tools.SetForeColor(*color);
    if (const auto color = StoredColor(store, settings::BackColor)) tools.SetBackColor(*color);
    if (const auto alpha = StoredInteger(store, settings::Alpha, 0, 255)) tools.SetAlpha(*alpha);
}

}  // namespace iw
