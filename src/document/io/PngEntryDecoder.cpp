#include "document/io/PngEntryDecoder.h"

namespace iw {

// PNG decoding arrives with the codec; until then a PNG entry stays blank with the sides
// its directory entry gave.
bool DecodePngEntry(std::span<const std::uint8_t> /*stream*/, IconImage& /*image*/) {
    return false;
}

}  // namespace iw
