#pragma once
// The canvas's mouse pointers: each tool's icon as a cursor. Tools that act at a tip
// (Pencil, Fill, Airbrush, Pick Color) take their icon with the hotspot on the tip; tools
// that act at a point they draw from take a crosshair with the tool's icon beside it.

#include <QCursor>
#include <string_view>

#include "editor/ToolState.h"

namespace iw::ui {

// The icon name of a tool (src/ui/resources/icons).
std::string_view ToolIconName(ToolId tool);

// The cursor of a tool for a screen of `devicePixelRatio`.
QCursor ToolCursor(ToolId tool, qreal devicePixelRatio);

}  // namespace iw::ui
