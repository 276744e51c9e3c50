#pragma once
// PNG-compressed icon entries as they are read: the sides come from the stream's IHDR at
// once, the pixels are decoded the first time somebody reads or writes them, and the
// stream is kept so that a save of an untouched entry writes the same bytes.
//
// An entry whose IHDR is sound but whose data turns out to be corrupt when it is finally
// decoded stays a blank image with the IHDR's sides. As long as nobody changes it, a save
// writes the stream as it was read: the user's bytes are never replaced by a blank picture.

#include <cstdint>
#include <optional>
#include <span>

#include "document/model/IconImage.h"

namespace iw {

struct PngSides {
    int width = 0;
    int height = 0;
};

// The sides in the stream's IHDR, when the stream starts as a PNG that the decoder takes for
// an icon entry: the signature, then chunks up to an IHDR whose fields are valid and within
// 256 x 256. Nothing after the IHDR is looked at.
std::optional<PngSides> ReadPngEntrySides(std::span<const std::uint8_t> stream);

// Makes `image` the PNG entry held in `stream`: PNG flag, 32 bits, field 0 the IHDR's width
// and field 1 its height, the pixels decoded on first use, the stream kept. False (and the
// image untouched) when the IHDR cannot be used.
bool AttachPngEntry(std::span<const std::uint8_t> stream, IconImage& image);

}  // namespace iw
