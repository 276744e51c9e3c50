#pragma once
// Encodes a c32bppDIB as PNG, to a byte array or a file.
//
// The colour type and bit depth come from the pixels (grey, RGB, palette at the smallest
// depth that holds the colours, tRNS for a single exact colour key, an alpha channel only
// when alpha is used). The rows are filtered with a few whole-image strategies, each
// compressed at the highest level, and the smallest result is kept. Every output reads
// back to exactly the image's pixels.

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "codec/png/PngError.h"
#include "codec/png/PngFilterStrategy.h"
#include "codec/png/PngProperties.h"

namespace iw {

class c32bppDIB;

// How the writer lays out the pixels: the smallest lossless colour type and depth it finds,
// or always 8-bit RGBA (colour type 6), which is what Windows asks of the PNG images inside
// icons and what other icon readers expect there.
enum class PngPixelLayout { Smallest, Rgba8 };

class cPNGWriter {
  public:
    void SetPixelLayout(PngPixelLayout layout) { layout_ = layout; }

    // Bytes of image data per IDAT chunk.
    static constexpr std::size_t kIdatChunkSize = 65536;

    // The whole PNG into `stream` (replaced). False when the image is empty or the
    // compression fails.
    bool SaveToStream(const c32bppDIB& image, std::vector<std::uint8_t>& stream,
                      const PngProperties& properties = {});
    // Writes a PNG file. An existing file is replaced only when `replaceExisting` says so
    // (the caller asks the user: see services/core/OverwriteQuestion.h), and only once the
    // whole PNG is written.
    bool SaveToFile(const c32bppDIB& image, const std::filesystem::path& file, bool replaceExisting,
                    const PngProperties& properties = {});

    PngError LastError() const { return error_; }

    // The compressed image data of `image` (a zlib stream of the filtered rows) with the
    // chosen encoding's IHDR, PLTE and tRNS chunks; exposed for measuring the writer.
    struct ImageChunks {
        std::vector<std::uint8_t> headerChunks;  // IHDR, PLTE, tRNS
        std::vector<std::uint8_t> zlibStream;
    };
    bool EncodeImage(const c32bppDIB& image, ImageChunks& chunks);

    // The whole-image filter strategies tried for an encoding.
    static std::span<const png::FilterStrategy> StrategiesFor(std::uint8_t colorType,
                                                              std::uint8_t bitDepth);

  private:
    PngError error_ = PngError::None;
    PngPixelLayout layout_ = PngPixelLayout::Smallest;
};

}  // namespace iw
