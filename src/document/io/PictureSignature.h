#pragma once
// Recognises ordinary picture files by their signatures, to tell a renamed picture from a
// corrupt icon when a read fails.

#include <cstdint>
#include <span>

namespace iw {

enum class PictureKind { None, Png, Jpeg, Gif, Bmp, Tiff, WebP };

PictureKind DetectPictureKind(std::span<const std::uint8_t> bytes);

inline bool IsOrdinaryPicture(std::span<const std::uint8_t> bytes) {
    return DetectPictureKind(bytes) != PictureKind::None;
}

}  // namespace iw
