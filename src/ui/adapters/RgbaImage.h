#pragma once
// The core's straight-RGBA pictures as QImages and back, for the clipboard and the text
// renderer.

#include <QImage>

#include "editor/RgbaPicture.h"

namespace iw::ui {

// An unpremultiplied RGBA image holding a copy of the picture's pixels (a null image for a
// picture that is not well formed).
QImage ImageOfPicture(const RgbaPicture& picture);

// Any image as straight RGBA (premultiplied formats are divided out); an empty picture for
// a null image.
RgbaPicture PictureOfQImage(const QImage& image);

}  // namespace iw::ui
