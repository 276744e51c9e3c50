#pragma once
// BMP, GIF and JPEG through Qt's image readers, lent to the core's picture loading. Shared
// by the desktop program and the command line; QImageReader needs neither a display nor
// an application object.

#include "document/io/PictureDecoder.h"

namespace iw::app {

class QtPictureDecoder final : public IPictureDecoder {
  public:
    bool Reads(PictureFormat format) const override;
    // Only the reader of the format the signature named is tried (no guessing by Qt), the
    // picture's size is asked of the reader before it decodes, and Qt's own allocation
    // limit is set to the core's limits. A GIF gives its first frame.
    PictureDecodeStatus Decode(std::span<const std::uint8_t> bytes, PictureFormat format,
                               const DecodeLimits& limits, RgbaBuffer& picture) override;
};

}  // namespace iw::app
