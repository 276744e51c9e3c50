#pragma once
// The folder icon wizard's pictures: a folder of the program's own drawing, and a chosen
// picture laid over its front at an offset, turned by an angle, with a density (how much
// of the folder shows through) and an optional mask colour that is left out.

#include <optional>
#include <string_view>

#include "imaging/RgbaBuffer.h"
#include "services/core/TextCatalog.h"

namespace iw {

struct FolderOverlay {
    // The picture's shift from the middle of the folder's front, in 48ths of the side
    // (-48..48): at 48 x 48 one step is one pixel, at 16 x 16 a third of one.
    int offsetX = 0;
    int offsetY = 0;
    int angle = 0;      // degrees 0..359, clockwise
    int density = 256;  // 0 (the picture does not show) .. 256 (fully over the folder)
    // Pixels of exactly this colour (alpha ignored) in the picture are left out.
    std::optional<Rgba> maskColor;
};

// A field of the wizard: its range and the message that a text outside it shows.
struct OverlayField {
    int min;
    int max;
    TextId message;
};
inline constexpr OverlayField kOffsetField{-48, 48, texts::Integer48};
inline constexpr OverlayField kAngleField{0, 359, texts::Integer359};
inline constexpr OverlayField kDensityField{0, 256, texts::Integer256From0};

// The number a field's text holds (blanks around it allowed), or nullopt when it is not a
// whole number within the field's range: the caller then shows the field's message.
std::optional<int> OverlayFieldValue(std::string_view text, const OverlayField& field);

// An empty folder, side x side (at least 1), transparent around it.
RgbaBuffer DrawFolderPicture(int side);

// The folder at side x side with `picture` fitted into the middle of its front (at most
// five eighths of the side) and laid over it as `overlay` says. An empty picture gives the
// folder alone.
RgbaBuffer ComposeFolderIcon(const RgbaBuffer& picture, const FolderOverlay& overlay, int side);

}  // namespace iw
