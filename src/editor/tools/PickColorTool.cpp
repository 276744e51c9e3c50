// Pick Color: the pixel under the pointer into the foreground (left button, with the alpha
// of a 32-bit image) or the background (right button), at the press and while dragging.
#include "editor/PixelPlot.h"
#include "editor/tools/StandardTools.h"

namespace iw {
namespace {

class PickColorTool final : public ITool {
  public:
    ToolResult Press(ToolContext& context, const PointerEvent& event) override {
        return Move(context, event);
    }
    ToolResult Move(ToolContext& context, const PointerEvent& event) override {
        const IconImage& image = context.image;
        const Point at = event.cell;
        if (!InsideImage(image, at.x, at.y)) return {};
        std::optional<int> alpha;
        if (image.info.bitCount == 32) alpha = image.Alpha(at.x, at.y);
        context.picker.TakePickedColor(event.button, image.Color(at.x, at.y), alpha);
        return {};
    }
};

}  // namespace

std::unique_ptr<ITool> MakePickColorTool() {
    return std::make_unique<PickColorTool>();
}

}  // namespace iw
