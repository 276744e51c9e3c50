#pragma once
// An icon image as Qt draws it: its colours as premultiplied ARGB (transparent and
// inverting pixels left clear), and a mask of the inverting pixels. The canvas, the preview
// and the icon list draw from it; it is made again whenever the image changes.

#include <QImage>
#include <QRect>

#include "document/model/IconImage.h"

class QPainter;

namespace iw::ui {

struct PixelPicture {
    QImage colors;    // the image's sides, Format_ARGB32_Premultiplied
    QImage inverted;  // same sides, opaque white where the image inverts; null when it never does
    QRect invertedCells;  // the smallest rectangle of cells holding every inverting pixel
    QSize Size() const { return colors.size(); }
};

// The top-left width x height cells of `image` (its own sides when not given). A 32-bit
// image takes its alpha from plane 1; other depths are opaque wherever they are not marked.
PixelPicture MakePixelPicture(const IconImage& image);
PixelPicture MakePixelPicture(const IconImage& image, int width, int height);

// One pixel as it shows: `alpha` counts for 32-bit images only; markers give 0.
QRgb DisplayColor(PackedColor color, int alpha, int bitCount);

// Draws the picture into `target` as the screen would show the icon over what is already
// painted there: its colours blended in, the inverting pixels turning what lies beneath to
// its opposite. Scaled smoothly when `target` is smaller than the picture, else by
// repeating pixels.
void DrawPictureOver(QPainter& painter, const QRect& target, const PixelPicture& picture);

}  // namespace iw::ui
