// Fill: the flood fill from the pressed cell; moving the pointer afterwards does nothing.
#include "editor/FloodFill.h"
#include "editor/tools/StandardTools.h"

namespace iw {
namespace {

class FillTool final : public ITool {
  public:
    ToolResult Press(ToolContext& context, const PointerEvent& event) override {
        context.undo.AddUndo();
        FloodFill(context.image, event.cell.x, event.cell.y, PaintColor(context, event.button),
                  context.options.CurrentAlpha);
        return {true};
    }
    ToolResult Move(ToolContext&, const PointerEvent&) override { return {}; }
};

}  // namespace

std::unique_ptr<ITool> MakeFillTool() {
    return std::make_unique<FillTool>();
}

}  // namespace iw
