#include "codec/png/PngFormat.h"

#include <limits>

#include "services/core/CheckedBytes.h"

namespace iw::png {

int Channels(std::uint8_t colorType) {
    switch (colorType) {
        case kGrey:
            return 1;
        case kRgb:
            return 3;
        case kPalette:
            return 1;
        case kGreyAlpha:
            return 2;
        case kRgba:
            return 4;
        default:
            return 0;
    }
}

bool IsValidDepth(std::uint8_t colorType, std::uint8_t bitDepth) {
    switch (colorType) {
        case kGrey:
            return bitDepth == 1 || bitDepth == 2 || bitDepth == 4 || bitDepth == 8 ||
                   bitDepth == 16;
        case kPalette:
            return bitDepth == 1 || bitDepth == 2 || bitDepth == 4 || bitDepth == 8;
        case kRgb:
        case kGreyAlpha:
        case kRgba:
            return bitDepth == 8 || bitDepth == 16;
        default:
            return false;
    }
}

bool IsValidHeader(const Header& header) {
    return header.width >= 1 && header.width <= kMaxChunkLength && header.height >= 1 &&
           header.height <= kMaxChunkLength && IsValidDepth(header.colorType, header.bitDepth) &&
           header.compression == 0 && header.filter == 0 && header.interlace <= 1;
}

std::optional<Header> ReadHeader(std::span<const std::uint8_t> data) {
    if (data.size() != kHeaderLength) return std::nullopt;
    Header h;
    h.width = LoadBE32(data.data());
    h.height = LoadBE32(data.data() + 4);
    h.bitDepth = data[8];
    h.colorType = data[9];
    h.compression = data[10];
    h.filter = data[11];
    h.interlace = data[12];
    if (!IsValidHeader(h)) return std::nullopt;
    return h;
}

std::size_t FilterStride(std::uint8_t colorType, std::uint8_t bitDepth) {
    const std::size_t bits = static_cast<std::size_t>(Channels(colorType)) * bitDepth;
    return bits < 8 ? 1 : bits / 8;
}

std::optional<std::uint64_t> PackedRowBytes(std::uint64_t pixels, std::uint8_t colorType,
                                            std::uint8_t bitDepth) {
    const std::uint64_t bitsPerPixel = static_cast<std::uint64_t>(Channels(colorType)) * bitDepth;
    // Pixels are below 2^32 and bits per pixel at most 64, so the product cannot overflow.
    if (pixels >= (std::uint64_t{1} << 32) || bitsPerPixel == 0) return std::nullopt;
    return (pixels * bitsPerPixel + 7) / 8;
}

std::optional<ImageLayout> LayoutOf(const Header& header) {
    ImageLayout layout;
    auto addPass = [&](PassLayout pass) -> bool {
        if (pass.columns == 0 || pass.rows == 0) return true;  // an empty pass holds no bytes
        const auto rowBytes = PackedRowBytes(pass.columns, header.colorType, header.bitDepth);
        if (!rowBytes) return false;
        const std::uint64_t passBytes = static_cast<std::uint64_t>(pass.rows) * (1 + *rowBytes);
        const std::uint64_t total = layout.rawSize + passBytes;
        if (total > std::numeric_limits<std::size_t>::max() ||
            total > std::numeric_limits<std::int64_t>::max()) {
            return false;
        }
        pass.rowBytes = static_cast<std::size_t>(*rowBytes);
        pass.offset = layout.rawSize;
        layout.rawSize = static_cast<std::size_t>(total);
        layout.passes[static_cast<std::size_t>(layout.passCount++)] = pass;
        return true;
    };
    if (header.interlace == 0) {
        if (!addPass({0, 0, 1, 1, header.width, header.height, 0, 0})) return std::nullopt;
        return layout;
    }
    for (const Adam7Pass& p : kAdam7) {
        // Pixels in a pass row: (width - start column) / step, rounded up; likewise rows.
        const std::uint32_t columns =
            header.width > p.x0 ? (header.width - p.x0 + p.dx - 1) / p.dx : 0;
        const std::uint32_t rows =
            header.height > p.y0 ? (header.height - p.y0 + p.dy - 1) / p.dy : 0;
        if (!addPass({p.x0, p.y0, p.dx, p.dy, columns, rows, 0, 0})) return std::nullopt;
    }
    return layout;
}

}  // namespace iw::png
