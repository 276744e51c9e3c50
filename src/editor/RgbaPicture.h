#pragma once
// A picture as the system clipboard and the text renderer hand it over: straight (not
// premultiplied) red, green, blue and alpha bytes, row 0 the top row.

#include <cstdint>
#include <vector>

#include "document/model/IconImage.h"

namespace iw {

struct RgbaPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;  // width * height * 4 bytes

    // Sides of at least 1 and exactly the bytes they call for. A picture from outside is
    // checked before anything reads it.
    bool WellFormed() const;
    const std::uint8_t* Pixel(int x, int y) const {
        return rgba.data() + (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                              static_cast<std::size_t>(x)) *
                                 4;
    }
};

// A well-formed picture brought to what an image can hold, at most 256 x 256: for now its
// top-left 256 x 256 pixels.
RgbaPicture FitToIconSide(const RgbaPicture& picture);

// A picture of at most 256 x 256 as an image of `bitCount` bits, pixel by pixel through
// PixelForDepth.
IconImage ImageFromPicture(const RgbaPicture& picture, int bitCount);

// An image (its width by height cells) as it shows (see ImageToRgba).
RgbaPicture PictureOfImage(const IconImage& image);

}  // namespace iw
