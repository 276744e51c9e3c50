#pragma once
// Reads a PNG, from a file the caller has opened or from memory, into a c32bppDIB.
//
// The data is first offered to cGDIPlus; when that produces nothing the chunks are parsed
// here. The image data is inflated through the compression facade (the loaded zlib, or the
// own inflate without it). Nothing is allocated for the image before its header has passed
// the caller's decode limits, and inflating never produces more than the header's image
// needs.

#include <cstdint>
#include <cstdio>
#include <span>
#include <vector>

#include "codec/png/DecodeLimits.h"
#include "codec/png/PngError.h"
#include "codec/png/PngFormat.h"
#include "codec/png/PngPixels.h"

namespace iw {

class c32bppDIB;
class cGDIPlus;

class cPNGParser {
  public:
    // A file of this size or less is not taken as a PNG, even when it starts like one.
    static constexpr std::uint64_t kMinimumFileSize = 56;

    // Reads the PNG in `file` (an open, readable, seekable file; read from its start). Only
    // one chunk at a time is held in memory. True when `target` holds the image; on
    // failure `target` is destroyed. `width` and `height` receive the image's size.
    bool LoadFile(std::FILE* file, c32bppDIB& target, std::int32_t& width, std::int32_t& height,
                  const DecodeLimits& limits = PictureLimits());
    // Reads the PNG at bytes[start, start + length). Chunks are read in place.
    bool LoadStream(std::span<const std::uint8_t> bytes, std::size_t start, std::size_t length,
                    c32bppDIB& target, std::int32_t& width, std::int32_t& height,
                    const DecodeLimits& limits = PictureLimits());

    // Reads the PNG at bytes[start, start + length) into `sink`, row by row, without an
    // image object in between. Every check on the stream comes before the sink's Begin, so
    // nothing reaches the sink from a stream that fails.
    bool LoadStream(std::span<const std::uint8_t> bytes, std::size_t start, std::size_t length,
                    png::RowSink& sink, std::int32_t& width, std::int32_t& height,
                    const DecodeLimits& limits = PictureLimits());

    // Why the last load failed (None after a success).
    PngError LastError() const { return error_; }
    // The header of the last image read (valid once IHDR was parsed).
    const png::Header& Header() const { return header_; }

    // True when `bytes` begins with the 8-byte PNG signature.
    static bool HasSignature(std::span<const std::uint8_t> bytes);

    class ChunkSource;

  private:
    // The platform's decoder (cGDIPlus) gets the first try at every image; where there is
    // none it declines and the chunks are parsed here.
    bool TryPlatformDecoder(ChunkSource& source, c32bppDIB& target, const DecodeLimits& limits);
    // Into an image object: the platform's decoder, else the own parse.
    bool Run(ChunkSource& source, c32bppDIB& target, std::int32_t& width, std::int32_t& height,
             const DecodeLimits& limits);
    bool Run(ChunkSource& source, png::RowSink& sink, const DecodeLimits& limits);
    PngError ParseChunks(ChunkSource& source, const DecodeLimits& limits);
    PngError ParseHeader(std::span<const std::uint8_t> data, const DecodeLimits& limits);
    PngError ParsePalette(std::span<const std::uint8_t> data);
    PngError ParseTransparency(std::span<const std::uint8_t> data);
    PngError AppendImageData(std::span<const std::uint8_t> typeAndData, std::uint32_t storedCrc,
                             std::uint64_t inputSize);
    PngError Decode(png::RowSink& sink);
    void Reset();

    png::Header header_;
    png::PixelSource pixels_;
    std::vector<std::uint8_t> compressed_;
    PngError error_ = PngError::None;
    int paletteCount_ = 0;
    bool haveHeader_ = false;
    bool havePalette_ = false;
    bool haveTransparency_ = false;
    bool zlibLoaded_ = false;
};

}  // namespace iw
