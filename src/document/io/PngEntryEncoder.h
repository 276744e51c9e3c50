#pragma once
// The PNG stream stored for a PNG-compressed icon entry.

#include <cstdint>
#include <vector>

#include "document/model/IconImage.h"

namespace iw {

// The stream the image was read from while its pixels are unchanged; otherwise the image
// encoded anew from its planes.
std::vector<std::uint8_t> EncodePngEntry(const IconImage& image);

}  // namespace iw
