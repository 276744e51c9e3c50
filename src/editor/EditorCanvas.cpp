// The Editor's canvas: pointer and key events handed to the current tool.
//
// Choices made here:
// - A stroke belongs to the tool that took the press, until the release; a second press
//   meanwhile is ignored, and so is a move that stays on the same cell.
// - The release first moves the tool to the release's cell. A stroke that recorded an undo
//   snapshot has changed the image: the inspector looks at the set again.
// - Select and Text have no tool yet: their presses do nothing.
#include "editor/Editor.h"
#include "editor/PixelStatus.h"

namespace iw {

ToolContext Editor::MakeToolContext() {
    return {CurrentImage(), state_, *this, services_.random, *this, floating_};
}

void Editor::TakePickedColor(MouseButton button, PackedColor color, std::optional<int> alpha) {
    if (button == MouseButton::Left) {
        state_.ForeColor = color;
        if (alpha) state_.CurrentAlpha = *alpha;
    } else {
        state_.BackColor = color;
    }
    colorsPicked_ = true;
}

CanvasUpdate Editor::Apply(const ToolResult& result) {
    CanvasUpdate update;
    if (result.imageChanged) {
        CurrentImage().originalPng.clear();
        update.imageChanged = true;
    }
    update.colorsChanged = colorsPicked_;
    colorsPicked_ = false;
    return update;
}

CanvasUpdate Editor::PointerPress(Point cell, MouseButton button, KeyModifiers modifiers) {
    if (!HasImage() || stroke_) return {};
    ITool* tool = tools_[static_cast<std::size_t>(state_.CurrentTool)].get();
    if (!tool) return {};
    stroke_ = Stroke{tool, button, cell, false};
    ToolContext context = MakeToolContext();
    return Apply(tool->Press(context, {cell, button, modifiers}));
}

CanvasUpdate Editor::PointerMove(Point cell, KeyModifiers modifiers) {
    if (!stroke_ || !HasImage() || cell == stroke_->last) return {};
    stroke_->last = cell;
    ToolContext context = MakeToolContext();
    return Apply(stroke_->tool->Move(context, {cell, stroke_->button, modifiers}));
}

CanvasUpdate Editor::PointerRelease(Point cell, KeyModifiers modifiers) {
    if (!stroke_ || !HasImage()) {
        stroke_.reset();
        return {};
    }
    CanvasUpdate update = PointerMove(cell, modifiers);
    ToolContext context = MakeToolContext();
    const CanvasUpdate released =
        Apply(stroke_->tool->Release(context, {cell, stroke_->button, modifiers}));
    update.imageChanged |= released.imageChanged;
    update.colorsChanged |= released.colorsChanged;
    const bool recorded = stroke_->recorded;
    stroke_.reset();
    if (recorded) RunInspector();
    return update;
}

bool Editor::KeyPress(const KeyEvent& event) {
    ITool* tool = tools_[static_cast<std::size_t>(state_.CurrentTool)].get();
    if (!HasImage() || !tool) return false;
    ToolContext context = MakeToolContext();
    const std::optional<ToolResult> result = tool->Key(context, event);
    if (result) Apply(*result);
    return result.has_value();
}

void Editor::CancelStroke() {
    if (stroke_) stroke_->tool->Cancel();
    stroke_.reset();
}

bool Editor::DropFloatingSelection() {
    if (!floating_ || !HasImage()) return false;
    floating_->Drop(CurrentImage(), state_.Selection);
    floating_.reset();
    CurrentImage().originalPng.clear();
    return true;
}

std::string Editor::StatusTextAt(Point cell) const {
    if (!HasImage()) return {};
    return PixelStatusText(CurrentImage(), cell.x, cell.y);
}

}  // namespace iw
