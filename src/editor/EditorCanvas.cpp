// The Editor's canvas: pointer events dispatched on the current tool.
//
// Choices made here:
// - The left button paints with the foreground colour, the right with the background
//   colour; both with the current alpha. Pick Color takes the pixel into the foreground
//   with the left button and into the background with the right; the left button also takes
//   a 32-bit pixel's alpha into the current alpha.
// - Colours are mapped to the palette of 1-bit and 4-bit images before they are plotted, so
//   those images never hold a colour they cannot store.
// - The Pencil draws a line of brush stamps between successive pointer positions; the
//   airbrush sprays at each position.
// - Line, Rectangle and Ellipse show the shape while the button is held: each move puts
//   back the image as it was at the press and draws the shape anew; the release keeps it.
// - Gradient paints the whole image on press, from the foreground to the background colour
//   (the right button the other way round). Fill fills on press.
// - Select and Text belong to the selection code and are not handled here.
#include "editor/Brush.h"
#include "editor/Editor.h"
#include "editor/FloodFill.h"
#include "editor/Gradient.h"
#include "editor/PixelPlot.h"
#include "editor/PixelStatus.h"
#include "editor/Shapes.h"

namespace iw {
namespace {

bool IsPaintingTool(std::string_view tool) {
    return tool == tools::Pencil || tool == tools::Airbrush || tool == tools::Fill ||
           tool == tools::Line || tool == tools::Rectangle || tool == tools::Ellipse ||
           tool == tools::Gradient;
}

bool IsShapeTool(std::string_view tool) {
    return tool == tools::Line || tool == tools::Rectangle || tool == tools::Ellipse;
}

}  // namespace

PackedColor Editor::PaintColor() const {
    const PackedColor chosen =
        drag_ && drag_->button == MouseButton::Right ? state_.BackColor : state_.ForeColor;
    return ColorForDepth(chosen, CurrentImage().info.bitCount);
}

CanvasUpdate Editor::PickAt(Point cell, MouseButton button) {
    CanvasUpdate update;
    const IconImage& image = CurrentImage();
    if (!InsideImage(image, cell.x, cell.y)) return update;
    const PackedColor picked = image.Color(cell.x, cell.y);
    if (button == MouseButton::Left) {
        state_.ForeColor = picked;
        if (image.info.bitCount == 32) state_.CurrentAlpha = image.Alpha(cell.x, cell.y);
    } else {
        state_.BackColor = picked;
    }
    update.colorsChanged = true;
    return update;
}

CanvasUpdate Editor::PointerPress(Point cell, MouseButton button) {
    if (!HasImage() || drag_) return {};
    const std::string& tool = state_.CurrentTool;
    if (tool == tools::PickColor) {
        drag_ = Drag{button, cell, cell, IconImage()};
        return PickAt(cell, button);
    }
    if (!IsPaintingTool(tool)) return {};

    AddUndo();
    IconImage& image = CurrentImage();
    drag_ = Drag{button, cell, cell, IsShapeTool(tool) ? image.Clone() : IconImage()};
    return PaintAt(cell, true);
}

CanvasUpdate Editor::PointerMove(Point cell) {
    if (!drag_ || !HasImage()) return {};
    if (state_.CurrentTool == tools::PickColor) return PickAt(cell, drag_->button);
    if (cell == drag_->last) return {};
    return PaintAt(cell, false);
}

CanvasUpdate Editor::PointerRelease(Point cell) {
    if (!drag_ || !HasImage()) {
        drag_.reset();
        return {};
    }
    CanvasUpdate update = PointerMove(cell);
    const bool painted = state_.CurrentTool != tools::PickColor;
    drag_.reset();
    if (painted) RunInspector();
    return update;
}

CanvasUpdate Editor::PaintAt(Point cell, bool first) {
    CanvasUpdate update;
    IconImage& image = CurrentImage();
    const std::string& tool = state_.CurrentTool;
    const PackedColor color = PaintColor();
    const int alpha = state_.CurrentAlpha;
    const Point last = drag_->last;
    drag_->last = cell;

    if (tool == tools::Pencil) {
        if (first) {
            StampBrush(image, state_.BrushShape, cell.x, cell.y, color, alpha);
        } else {
            BrushStroke(image, state_.BrushShape, last, cell, color, alpha);
        }
    } else if (tool == tools::Airbrush) {
        Spray(image, cell.x, cell.y, state_.SpraySize, color, alpha, services_.random);
    } else if (tool == tools::Fill) {
        if (!first) return update;
        FloodFill(image, cell.x, cell.y, color, alpha);
    } else if (tool == tools::Gradient) {
        if (!first) return update;
        const bool right = drag_->button == MouseButton::Right;
        PaintGradient(image, state_.Gradient, right ? state_.BackColor : state_.ForeColor, alpha,
                      right ? state_.ForeColor : state_.BackColor);
    } else if (IsShapeTool(tool)) {
        CopyCorner(drag_->before, image, ImageWidth(image), ImageHeight(image));
        std::vector<Point> points;
        if (tool == tools::Line) points = ThickLinePoints(drag_->anchor, cell, state_.LineWidth);
        if (tool == tools::Rectangle)
            points = RectanglePoints(drag_->anchor, cell, state_.ShapeFilled);
        if (tool == tools::Ellipse) points = EllipsePoints(drag_->anchor, cell, state_.ShapeFilled);
        PlotPoints(image, points, color, alpha);
    }
    image.DropOriginalPng();
    update.imageChanged = true;
    return update;
}

std::string Editor::StatusTextAt(Point cell) const {
    if (!HasImage()) return {};
    return PixelStatusText(CurrentImage(), cell.x, cell.y);
}

}  // namespace iw
