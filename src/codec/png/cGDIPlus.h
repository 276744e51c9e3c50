#pragma once
// The wrapper over the platform's GDI+ image codecs. GDI+ exists only on Windows; on every
// other platform isGDIplusOk is False, every decode and encode fails, and the callers go
// on with the program's own PNG reader and writer.

#include <cstdint>
#include <cstdio>
#include <span>
#include <vector>

#include "codec/png/DecodeLimits.h"

namespace iw {

class c32bppDIB;

class cGDIPlus {
  public:
    // True when "gdiplus.dll" loads and GdiplusStartup succeeds.
    static bool isGDIplusOk();

    bool LoadPictureFile(std::FILE* file, c32bppDIB& target, const DecodeLimits& limits);
    bool LoadPictureStream(std::span<const std::uint8_t> bytes, c32bppDIB& target,
                           const DecodeLimits& limits);
    // Encodes through the codec whose MIME type is "image/png".
    bool SaveToPNG(const c32bppDIB& image, std::vector<std::uint8_t>& stream);
    // Encodes through "image/jpeg" with the quality parameter
    // {1D5BE4B5-FA4A-452D-9CDD-5DB35105E7EB}.
    bool SaveToJPEG(const c32bppDIB& image, int quality, std::vector<std::uint8_t>& stream);
};

}  // namespace iw
