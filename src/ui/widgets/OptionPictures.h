#pragma once
// The pictures of the option buttons, painted from the core's own routines so that each
// shows what the tool will paint: the brush shapes (the cells a stamp plots), the line
// widths (a line drawn at that width), the spray sizes (one spray's dots) and the gradient
// directions (a gradient painted that way).

#include <QPixmap>
#include <string_view>

#include "editor/ToolState.h"

namespace iw::ui {

// The side of every option picture, logical pixels.
inline constexpr int kOptionPictureSide = 34;

QPixmap BrushPicture(std::string_view shape, qreal devicePixelRatio);
QPixmap LinePicture(int width, qreal devicePixelRatio);
QPixmap SprayPicture(int radius, qreal devicePixelRatio);
QPixmap GradientPicture(GradientDirection direction, qreal devicePixelRatio);

}  // namespace iw::ui
