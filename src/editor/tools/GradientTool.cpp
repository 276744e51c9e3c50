// Gradient: the whole image on press, from the foreground to the background colour; the
// right button runs the other way round.
#include "editor/Gradient.h"
#include "editor/tools/StandardTools.h"

namespace iw {
namespace {

class GradientTool final : public ITool {
  public:
    ToolResult Press(ToolContext& context, const PointerEvent& event) override {
        context.undo.AddUndo();
        const ToolState& options = context.options;
        const bool right = event.button == MouseButton::Right;
        PaintGradient(context.image, options.Gradient,
                      right ? options.BackColor : options.ForeColor, options.CurrentAlpha,
                      right ? options.ForeColor : options.BackColor);
        return {true};
    }
    ToolResult Move(ToolContext&, const PointerEvent&) override { return {}; }
};

}  // namespace

std::unique_ptr<ITool> MakeGradientTool() {
    return std::make_unique<GradientTool>();
}

}  // namespace iw
