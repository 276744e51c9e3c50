#include "document/io/PngEntryDecoder.h"

#include <vector>

#include "codec/png/PngCodec.h"
#include "codec/png/PngPixels.h"

namespace iw {
namespace {

// Takes the decoded rows into the image's planes. Each row is decoded into one of two
// small buffers (the decoder reads the previous row back while it rebuilds the next) and
// then split into the colour and alpha planes while it is still in the cache.
class PlaneRows final : public png::RowSink {
  public:
    explicit PlaneRows(IconImage& image) : image_(image) {}

    bool Begin(std::uint32_t width, std::uint32_t height) override {
        // The icon entry limits keep both sides within the planes.
        if (width == 0 || height == 0 || width > IconImage::kSide || height > IconImage::kSide) {
            return false;
        }
        width_ = width;
        for (auto& buffer : rows_)
            buffer.resize(std::size_t{width} * 4);
        image_.info.widthMinus1 = static_cast<std::int16_t>(width - 1);
        image_.info.heightMinus1 = static_cast<std::int16_t>(height - 1);
        return true;
    }

    std::uint8_t* Row(std::uint32_t y) override { return rows_[y & 1].data(); }

    void RowDone(std::uint32_t y) override {
        const std::uint8_t* bgra = rows_[y & 1].data();
        std::int32_t* colors = image_.Row(static_cast<int>(y), IconImage::ColorPlane).data();
        std::int32_t* alphas = image_.Row(static_cast<int>(y), IconImage::AlphaPlane).data();
        for (std::uint32_t x = 0; x < width_; ++x, bgra += 4) {
            // PackColor of bytes needs no clamping: 0x00BBGGRR.
            colors[x] = static_cast<std::int32_t>(bgra[2] | (bgra[1] << 8) | (bgra[0] << 16));
            alphas[x] = bgra[3];
        }
    }

  private:
    IconImage& image_;
    std::uint32_t width_ = 0;
    std::vector<std::uint8_t> rows_[2];
};

}  // namespace

bool DecodePngEntry(std::span<const std::uint8_t> stream, IconImage& image) {
    PlaneRows rows(image);
    if (!DecodePngStream(stream, rows, IconEntryLimits())) return false;
    // Kept so that a save can write the same bytes while the pixels stay as they are.
    image.originalPng.assign(stream.begin(), stream.end());
    return true;
}

}  // namespace iw
