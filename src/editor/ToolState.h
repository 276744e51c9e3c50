#pragma once
// The colours and the current tool with its options, as the tool bar, the option panels and
// the colour boxes show them. ToolControls owns it; the tools read it.

#include <string>

#include "document/model/Colors.h"

namespace iw {

// The tools of the tool bar, in its order (ToolTable.h holds their keys and panels).
enum class ToolId {
    Select,
    Fill,
    Airbrush,
    Text,
    PickColor,
    Pencil,
    Line,
    Gradient,
    Ellipse,
    Rectangle
};
inline constexpr int kToolCount = 10;

enum class GradientDirection { Vertical, Horizontal, Diagonal, Center };
enum class SelectionMode { Opaque, Transparent };

struct ToolState {
    PackedColor ForeColor = PackColor(0, 0, 0);
    PackedColor BackColor = PackColor(255, 255, 255);
    int CurrentAlpha = 255;  // what a plotted pixel of a 32-bit image gets in plane 1

    ToolId CurrentTool = ToolId::Pencil;
    std::string BrushShape = "SSquare";  // SSquare, MSquare, LSquare, SCircle, MCircle, LCircle
    int LineWidth = 1;                   // 1..4
    int SpraySize = 4;                   // radius: 4, 6 or 8
    bool ShapeFilled = false;            // Ellipse and Rectangle: filled or outline only
    GradientDirection Gradient = GradientDirection::Vertical;
    SelectionMode Selection = SelectionMode::Opaque;
};

}  // namespace iw
