// Line, Rectangle and Ellipse: the shape between the pressed cell and the pointer, shown
// while the button is held. Each move puts back the image as it was at the press and draws
// the shape anew; the release keeps the last one.
#include "editor/PixelPlot.h"
#include "editor/Shapes.h"
#include "editor/UndoHistory.h"
#include "editor/tools/StandardTools.h"

namespace iw {
namespace {

using ShapePoints = std::vector<Point> (*)(Point anchor, Point to, const ToolState& options);

class ShapeTool final : public ITool {
  public:
    explicit ShapeTool(ShapePoints points) : points_(points) {}

    ToolResult Press(ToolContext& context, const PointerEvent& event) override {
        context.undo.AddUndo();
        anchor_ = event.cell;
        before_.emplace(context.image.Clone());
        return Move(context, event);
    }
    ToolResult Move(ToolContext& context, const PointerEvent& event) override {
        IconImage& image = context.image;
        if (before_) CopyCorner(*before_, image, ImageWidth(image), ImageHeight(image));
        PlotPoints(image, points_(anchor_, event.cell, context.options),
                   PaintColor(context, event.button), context.options.CurrentAlpha);
        return {true};
    }
    ToolResult Release(ToolContext&, const PointerEvent&) override {
        Cancel();
        return {};
    }
    void Cancel() override { before_.reset(); }

  private:
    ShapePoints points_;
    Point anchor_;
    std::optional<IconImage> before_;  // the image at the press
};

}  // namespace

std::unique_ptr<ITool> MakeLineTool() {
    return std::make_unique<ShapeTool>([](Point a, Point b, const ToolState& options) {
        return ThickLinePoints(a, b, options.LineWidth);
    });
}

std::unique_ptr<ITool> MakeRectangleTool() {
    return std::make_unique<ShapeTool>([](Point a, Point b, const ToolState& options) {
        return RectanglePoints(a, b, options.ShapeFilled);
    });
}

std::unique_ptr<ITool> MakeEllipseTool() {
    return std::make_unique<ShapeTool>([](Point a, Point b, const ToolState& options) {
        return EllipsePoints(a, b, options.ShapeFilled);
    });
}

}  // namespace iw
