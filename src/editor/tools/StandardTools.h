#pragma once
// The tool objects of the tool bar. A new tool is one file with its Make function, declared
// here and put into its slot by StandardTools().

#include <array>
#include <memory>

#include "editor/tools/Tool.h"

namespace iw {

// One slot per ToolId; an empty slot is a tool that does nothing on the canvas.
using ToolSet = std::array<std::unique_ptr<ITool>, kToolCount>;

// Every tool of the tool bar. Text has no slot: its key opens the text dialog instead of
// waiting for the canvas, and placed text floats for the Select tool (EditCommands).
ToolSet StandardTools();

std::unique_ptr<ITool> MakeSelectTool();
std::unique_ptr<ITool> MakePencilTool();
std::unique_ptr<ITool> MakeAirbrushTool();
std::unique_ptr<ITool> MakeFillTool();
std::unique_ptr<ITool> MakeGradientTool();
std::unique_ptr<ITool> MakePickColorTool();
std::unique_ptr<ITool> MakeLineTool();
std::unique_ptr<ITool> MakeRectangleTool();
std::unique_ptr<ITool> MakeEllipseTool();

}  // namespace iw
