// Airbrush: a spray of SpraySize round the pointer at the press and at every move.
#include "editor/tools/StandardTools.h"

namespace iw {
namespace {

class AirbrushTool final : public ITool {
  public:
    ToolResult Press(ToolContext& context, const PointerEvent& event) override {
        context.undo.AddUndo();
        return Move(context, event);
    }
    ToolResult Move(ToolContext& context, const PointerEvent& event) override {
        Spray(context.image, event.cell.x, event.cell.y, context.options.SpraySize,
              PaintColor(context, event.button), context.options.CurrentAlpha, context.random);
        return {true};
    }
};

}  // namespace

std::unique_ptr<ITool> MakeAirbrushTool() {
    return std::make_unique<AirbrushTool>();
}

}  // namespace iw
