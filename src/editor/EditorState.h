#pragma once
// The editor's state beside the icon set: which image is edited, how it is shown, the two
// colours and the alpha, and the current tool with its options. One object per main window;
// the window shows it and forwards the user's choices into it.

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "document/model/Colors.h"

namespace iw {

enum class GradientDirection { Vertical, Horizontal, Diagonal, Center };
enum class SelectionMode { Opaque, Transparent };

// The tools of the tool bar, in its order (see ToolTable.h for their keys and panels).
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

struct EditorState {
    static constexpr int kMinPixelSize = 1;
    static constexpr int kMaxPixelSize = 48;

    std::int16_t CurrentIcon = 0;  // index of the image being edited
    int PixelSize = 32;            // screen pixels per image pixel, 1..48 after every layout
    bool FitInWindow = true;
    bool ShowGrid = false;

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

    void SwitchColors() { std::swap(ForeColor, BackColor); }
};

}  // namespace iw
