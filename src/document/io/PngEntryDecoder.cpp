#include "document/io/PngEntryDecoder.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "services/core/CheckedBytes.h"
#include "codec/png/PngCodec.h"
#include "codec/png/PngFormat.h"
#include "codec/png/PngPixels.h"

namespace iw {
namespace {

// Takes the decoded rows into the planes. Each row is decoded into one of two small
// buffers (the decoder reads the previous row back while it rebuilds the next) and then
// split into the colour and alpha planes while it is still in the cache.
class PlaneRows final : public png::RowSink {
  public:
    PlaneRows(std::span<std::int32_t> colors, std::span<std::int32_t> alphas)
        : colors_(colors), alphas_(alphas) {}

    bool Begin(std::uint32_t width, std::uint32_t height) override {
        // The icon entry limits keep both sides within the planes.
        if (width == 0 || height == 0 || width > IconImage::kSide || height > IconImage::kSide) {
            return false;
        }
        width_ = width;
        for (auto& buffer : rows_)
            buffer.resize(std::size_t{width} * 4);
        return true;
    }

    std::uint8_t* Row(std::uint32_t y) override { return rows_[y & 1].data(); }

    void RowDone(std::uint32_t y) override {
        const std::uint8_t* bgra = rows_[y & 1].data();
        const std::size_t start = std::size_t{y} * IconImage::kSide;
        std::int32_t* colors = colors_.data() + start;
        std::int32_t* alphas = alphas_.data() + start;
        for (std::uint32_t x = 0; x < width_; ++x, bgra += 4) {
            // PackColor of bytes needs no clamping: 0x00BBGGRR.
            colors[x] = static_cast<std::int32_t>(bgra[2] | (bgra[1] << 8) | (bgra[0] << 16));
            alphas[x] = bgra[3];
        }
    }

  private:
    std::span<std::int32_t> colors_;
    std::span<std::int32_t> alphas_;
    std::uint32_t width_ = 0;
    std::vector<std::uint8_t> rows_[2];
};

class PngEntryPixels final : public IconImage::PendingPixels {
  public:
    explicit PngEntryPixels(IconImage::SharedBytes stream) : stream_(std::move(stream)) {}

    bool Decode(std::span<std::int32_t> colors, std::span<std::int32_t> alphas) const override {
        PlaneRows rows(colors, alphas);
        return DecodePngStream(*stream_, rows, IconEntryLimits());
    }

  private:
    IconImage::SharedBytes stream_;
};

std::optional<PngSides> SidesOfHeader(std::span<const std::uint8_t> data) {
    const std::optional<png::Header> h = png::ReadHeader(data);
    if (!h || !FitsLimits(h->width, h->height, IconEntryLimits()) || !png::LayoutOf(*h))
        return std::nullopt;
    return PngSides{static_cast<int>(h->width), static_cast<int>(h->height)};
}

}  // namespace

std::optional<PngSides> ReadPngEntrySides(std::span<const std::uint8_t> stream) {
    if (stream.size() < png::kSignature.size() ||
        !std::equal(png::kSignature.begin(), png::kSignature.end(), stream.begin())) {
        return std::nullopt;
    }
    // The chunks are walked as the decoder walks them: ancillary chunks may come first,
    // image data or a palette before the IHDR ends the stream's chances.
    std::uint64_t position = png::kSignature.size();
    while (stream.size() - position >= png::kChunkOverhead) {
        const std::uint32_t length = LoadBE32(stream.data() + position);
        const std::uint32_t type = LoadBE32(stream.data() + position + 4);
        if (length > png::kMaxChunkLength) return std::nullopt;
        const std::uint64_t next = position + length + png::kChunkOverhead;
        if (next > stream.size()) return std::nullopt;
        if (length == 0) {
            if (type == png::kIEND) return std::nullopt;
        } else if (type == png::kIHDR) {
            return SidesOfHeader(stream.subspan(static_cast<std::size_t>(position + 8), length));
        } else if (type == png::kPLTE || type == png::kTRNS || type == png::kIDAT ||
                   type == png::kIEND) {
            return std::nullopt;
        }
        position = next;
    }
    return std::nullopt;
}

bool AttachPngEntry(std::span<const std::uint8_t> stream, IconImage& image) {
    const std::optional<PngSides> sides = ReadPngEntrySides(stream);
    if (!sides) return false;
    auto bytes = std::make_shared<const std::vector<std::uint8_t>>(stream.begin(), stream.end());
    image.info.widthMinus1 = static_cast<std::int16_t>(sides->width - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(sides->height - 1);
    image.info.bitCount = 32;
    image.info.png = 1;
    image.SetPendingPixels(std::make_shared<PngEntryPixels>(bytes));
    image.KeepOriginalPng(std::move(bytes));
    return true;
}

}  // namespace iw
