// Pencil: the brush stamped at the press, then along the line between successive pointer
// positions, so fast moves leave no gaps.
#include "editor/Brush.h"
#include "editor/tools/StandardTools.h"

namespace iw {
namespace {

class PencilTool final : public ITool {
  public:
    ToolResult Press(ToolContext& context, const PointerEvent& event) override {
        context.undo.AddUndo();
        last_ = event.cell;
        StampBrush(context.image, context.options.BrushShape, event.cell.x, event.cell.y,
                   PaintColor(context, event.button), context.options.CurrentAlpha);
        return {true};
    }
    ToolResult Move(ToolContext& context, const PointerEvent& event) override {
        BrushStroke(context.image, context.options.BrushShape, last_, event.cell,
                    PaintColor(context, event.button), context.options.CurrentAlpha);
        last_ = event.cell;
        return {true};
    }

  private:
    Point last_;
};

}  // namespace

std::unique_ptr<ITool> MakePencilTool() {
    return std::make_unique<PencilTool>();
}

}  // namespace iw
