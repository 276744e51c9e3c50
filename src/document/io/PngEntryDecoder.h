#pragma once
// Decodes a PNG-compressed icon entry into an image's planes.

#include <cstdint>
#include <span>

#include "document/model/IconImage.h"

namespace iw {

// Returns true when the stream decoded and its pixels are in the planes (colour in plane
// 0, alpha in plane 1) with the image's sides taken from the stream's own header.
bool DecodePngEntry(std::span<const std::uint8_t> stream, IconImage& image);

}  // namespace iw
