#include "editor/tools/StandardTools.h"

#include "editor/PixelPlot.h"

namespace iw {

PackedColor PaintColor(const ToolContext& context, MouseButton button) {
    const PackedColor chosen =
        button == MouseButton::Right ? context.options.BackColor : context.options.ForeColor;
    return ColorForDepth(chosen, context.image.info.bitCount);
}

ToolSet StandardTools() {
    ToolSet tools;
    const auto put = [&](ToolId id, std::unique_ptr<ITool> tool) {
        tools[static_cast<std::size_t>(id)] = std::move(tool);
    };
    put(ToolId::Select, MakeSelectTool());
    put(ToolId::Fill, MakeFillTool());
    put(ToolId::Airbrush, MakeAirbrushTool());
    put(ToolId::PickColor, MakePickColorTool());
    put(ToolId::Pencil, MakePencilTool());
    put(ToolId::Line, MakeLineTool());
    put(ToolId::Gradient, MakeGradientTool());
    put(ToolId::Ellipse, MakeEllipseTool());
    put(ToolId::Rectangle, MakeRectangleTool());
    return tools;
}

}  // namespace iw
