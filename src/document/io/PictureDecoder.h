#pragma once
// Pictures that can be imported or converted into icons, and the interface through which
// the program's shell lends the core decoders it does not have itself. The core reads PNG
// (its own codec), icons and Photoshop files; BMP, GIF and JPEG come from a decoder that
// the caller passes in (the desktop program and the command line use the platform's image
// readers, see src/app/shared).

#include <cstdint>
#include <span>

#include "codec/png/DecodeLimits.h"
#include "imaging/RgbaBuffer.h"

namespace iw {

enum class PictureFormat { Unknown, Png, Jpeg, Gif, Bmp, Ico, Psd, Tiff, WebP };

// The format by the file's first bytes, whatever its name.
PictureFormat DetectPictureFormat(std::span<const std::uint8_t> bytes);

enum class PictureDecodeStatus { Ok, Unsupported, Corrupt, TooLarge };

class IPictureDecoder {
  public:
    virtual ~IPictureDecoder() = default;
    // True when this decoder reads pictures of `format`.
    virtual bool Reads(PictureFormat format) const = 0;
    // Decodes `bytes` (of `format`) into straight RGBA. A picture beyond `limits` is refused
    // with TooLarge before anything is allocated for it.
    virtual PictureDecodeStatus Decode(std::span<const std::uint8_t> bytes, PictureFormat format,
                                       const DecodeLimits& limits, RgbaBuffer& picture) = 0;
};

}  // namespace iw
