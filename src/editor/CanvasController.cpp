#include "editor/CanvasController.h"

#include "editor/PixelStatus.h"

namespace iw {

CanvasController::CanvasController(ICanvasHost& host, ToolControls& tools, HotspotControl& hotspot,
                                   IRandomSource& random, EditorEvents& events, ToolSet toolSet)
    : host_(host),
      tools_(tools),
      hotspot_(hotspot),
      random_(random),
      events_(events),
      toolSet_(std::move(toolSet)) {}

ITool* CanvasController::CurrentTool() const {
    return toolSet_[static_cast<std::size_t>(tools_.State().CurrentTool)].get();
}

ToolContext CanvasController::Context(IconImage& image) {
    return {image, tools_.State(), *this, random_, tools_, floating_};
}

void CanvasController::AddUndo() {
    host_.AddUndo();
    if (stroke_) stroke_->changed = true;
}

void CanvasController::Apply(IconImage& image, const ToolResult& result) {
    if (result.imageChanged) {
        image.DropOriginalPng();
        if (stroke_) stroke_->changed = true;
        events_.Notify(&IEditorObserver::ImageChanged);
    }
    if (result.selectionChanged) events_.Notify(&IEditorObserver::SelectionChanged);
}

void CanvasController::PointerPress(Point cell, MouseButton button, KeyModifiers modifiers) {
    IconImage* image = host_.EditedImage();
    ITool* tool = CurrentTool();
    if (!image || stroke_ || hotspot_.Press(cell, *image) || !tool) return;
    stroke_ = Stroke{tool, button, cell, false};
    ToolContext context = Context(*image);
    Apply(*image, tool->Press(context, {cell, button, modifiers}));
}

void CanvasController::PointerMove(Point cell, KeyModifiers modifiers) {
    IconImage* image = host_.EditedImage();
    if (!image || !stroke_ || cell == stroke_->last) return;
    stroke_->last = cell;
    ToolContext context = Context(*image);
    Apply(*image, stroke_->tool->Move(context, {cell, stroke_->button, modifiers}));
}

void CanvasController::PointerRelease(Point cell, KeyModifiers modifiers) {
    IconImage* image = host_.EditedImage();
    if (!image || !stroke_) {
        stroke_.reset();
        return;
    }
    PointerMove(cell, modifiers);
    ToolContext context = Context(*image);
    Apply(*image, stroke_->tool->Release(context, {cell, stroke_->button, modifiers}));
    const bool changed = stroke_->changed;
    stroke_.reset();
    if (changed) host_.StrokeFinished();
}

bool CanvasController::KeyPress(const KeyEvent& event) {
    IconImage* image = host_.EditedImage();
    ITool* tool = CurrentTool();
    if (hotspot_.Setting() && event.key == CanvasKey::Escape) {
        hotspot_.Cancel();
        return true;
    }
    if (!image || !tool) return false;
    ToolContext context = Context(*image);
    const std::optional<ToolResult> result = tool->Key(context, event);
    if (result) Apply(*image, *result);
    return result.has_value();
}

CursorHint CanvasController::CursorAt(Point cell) const {
    const ITool* tool = CurrentTool();
    return tool ? tool->CursorAt(floating_.get(), cell) : CursorHint::Tool;
}

std::string CanvasController::StatusTextAt(Point cell) const {
    const IconImage* image = host_.EditedImage();
    return image ? PixelStatusText(*image, cell.x, cell.y) : std::string();
}

std::optional<CellRect> CanvasController::RubberBand() const {
    return stroke_ ? stroke_->tool->RubberBand() : std::nullopt;
}

bool CanvasController::DropFloatingSelection() {
    IconImage* image = host_.EditedImage();
    if (!floating_ || !image) return false;
    floating_->Drop(*image, tools_.State().Selection);
    floating_.reset();
    Apply(*image, {true, true});
    host_.StrokeFinished();
    return true;
}

void CanvasController::Float(std::unique_ptr<IFloatingSelection> floating) {
    DropFloatingSelection();
    floating_ = std::move(floating);
    events_.Notify(&IEditorObserver::SelectionChanged);
}

bool CanvasController::DiscardFloatingSelection() {
    if (!floating_) return false;
    floating_.reset();
    events_.Notify(&IEditorObserver::SelectionChanged);
    return true;
}

void CanvasController::ToolSwitched(ToolId, ToolId) {
    DropFloatingSelection();
    hotspot_.Cancel();
}

void CanvasController::CancelStroke() {
    if (stroke_) stroke_->tool->Cancel();
    stroke_.reset();
}

void CanvasController::Reset() {
    CancelStroke();
    if (floating_) DiscardFloatingSelection();
    hotspot_.Cancel();
}

}  // namespace iw
