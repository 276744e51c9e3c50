#include "document/io/BitmapDecoder.h"

#include <algorithm>
#include <array>

#include "document/io/IcoLayout.h"
#include "services/core/CheckedBytes.h"

namespace iw {

int HalvedBitmapHeight(std::int64_t storedHeight) {
    std::int64_t half = storedHeight / 2;
    // x.5 happens only for odd heights: round to the even neighbour.
    if (storedHeight % 2 != 0 && half % 2 != 0) half += storedHeight > 0 ? 1 : -1;
    if (half > 1 << 20) return 1 << 20;
    if (half < -(1 << 20)) return -(1 << 20);
    return static_cast<int>(half);
}

bool BitmapSidesFit(std::int64_t width, std::int64_t storedHeight) {
    int height = HalvedBitmapHeight(storedHeight);
    return width >= 1 && width <= 256 && height >= 1 && height <= 256;
}

namespace {

// One stored row: its bytes that lie inside the file (fewer than the stride when cut off).
struct StoredRow {
    const std::uint8_t* bytes = nullptr;
    std::size_t available = 0;
};

StoredRow RowAt(std::span<const std::uint8_t> file, std::uint64_t start, std::size_t stride) {
    if (start >= file.size()) return {};
    std::size_t available = std::min<std::uint64_t>(stride, file.size() - start);
    return {file.data() + start, available};
}

std::array<PackedColor, 256> ReadPalette(std::span<const std::uint8_t> file, std::uint64_t start,
                                         int entries) {
    std::array<PackedColor, 256> palette{};
    for (int i = 0; i < entries; ++i) {
        std::uint64_t at = start + static_cast<std::uint64_t>(i) * 4;
        if (!RangeFits(at, 3, file.size())) break;
        // Stored blue, green, red, 0.
        palette[static_cast<std::size_t>(i)] = PackColor(file[at + 2], file[at + 1], file[at]);
    }
    return palette;
}

void DecodeIndexedRow(const StoredRow& row, int width, int bitCount,
                      const std::array<PackedColor, 256>& palette, std::int32_t* colors) {
    const int perByte = 8 / bitCount;
    const int mask = (1 << bitCount) - 1;
    for (int x = 0; x < width; ++x) {
        std::size_t byteIndex = static_cast<std::size_t>(x / perByte);
        if (byteIndex >= row.available) break;
        int shift = 8 - bitCount * (x % perByte + 1);
        int index = (row.bytes[byteIndex] >> shift) & mask;
        colors[x] = palette[static_cast<std::size_t>(index)];
    }
}

// The pixels of a row that lie wholly inside the file.
int WholePixels(const StoredRow& row, int width, int bytesPerPixel) {
    const std::size_t whole = row.available / static_cast<std::size_t>(bytesPerPixel);
    return whole < static_cast<std::size_t>(width) ? static_cast<int>(whole) : width;
}

void DecodeTrueColorRow(const StoredRow& row, int width, int bytesPerPixel, std::int32_t* colors,
                        std::int32_t* alphas) {
    const int count = WholePixels(row, width, bytesPerPixel);
    const std::uint8_t* p = row.bytes;
    // Stored blue, green, red (and alpha): packed as 0x00BBGGRR, which needs no clamping.
    if (bytesPerPixel == 4) {
        for (int x = 0; x < count; ++x, p += 4) {
            colors[x] = p[2] | (p[1] << 8) | (p[0] << 16);
            alphas[x] = p[3];
        }
    } else {
        for (int x = 0; x < count; ++x, p += bytesPerPixel)
            colors[x] = p[2] | (p[1] << 8) | (p[0] << 16);
    }
}

void ApplyMaskRow(const StoredRow& row, int width, std::int32_t* colors) {
    const int bytes = static_cast<int>(std::min<std::size_t>(row.available, (width + 7) / 8));
    for (int i = 0; i < bytes; ++i) {
        const std::uint8_t bits = row.bytes[i];
        if (bits == 0) continue;  // eight pixels without a mask bit
        const int end = std::min(width, 8 * i + 8);
        for (int x = 8 * i; x < end; ++x) {
            if (!((bits >> (7 - x % 8)) & 1)) continue;
            if (colors[x] == 0) {
                colors[x] = TransparentColor;
            } else if (colors[x] == 0xFFFFFF) {
                colors[x] = InverseColor;
            }
        }
    }
}

}  // namespace

bool DecodeBitmapEntry(std::span<const std::uint8_t> file, std::size_t offset, IconImage& image) {
    if (!RangeFits(offset, ico::kBitmapHeaderSize, file.size())) return false;
    const std::uint8_t* header = file.data() + offset;
    auto width = static_cast<std::int32_t>(LoadLE32(header + ico::kBmpWidth));
    auto storedHeight = static_cast<std::int32_t>(LoadLE32(header + ico::kBmpHeight));
    if (!BitmapSidesFit(width, storedHeight)) return false;
    const int height = HalvedBitmapHeight(storedHeight);
    const int bitCount = header[ico::kBmpBitCount];

    image.info.widthMinus1 = static_cast<std::int16_t>(width - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(height - 1);
    image.info.png = 0;
    if (!ico::IsSupportedBitCount(bitCount)) return false;  // blank
    image.info.bitCount = static_cast<std::int16_t>(bitCount);

    const int paletteEntries = bitCount <= 8 ? 1 << bitCount : 0;
    const std::uint64_t paletteStart = std::uint64_t{offset} + ico::kBitmapHeaderSize;
    const std::uint64_t colorStart = paletteStart + static_cast<std::uint64_t>(paletteEntries) * 4;
    const std::size_t colorStride = ico::RowStride(width, bitCount);
    const std::uint64_t maskStart = colorStart + colorStride * static_cast<std::uint64_t>(height);
    const std::size_t maskStride = ico::RowStride(width, 1);
    const auto palette = ReadPalette(file, paletteStart, paletteEntries);

    // Rows are stored bottom-up; row 0 of the planes is the top row.
    for (int stored = 0; stored < height; ++stored) {
        const int y = height - 1 - stored;
        std::int32_t* colors = image.Row(y, IconImage::ColorPlane).data();
        std::int32_t* alphas = image.Row(y, IconImage::AlphaPlane).data();
        StoredRow row =
            RowAt(file, colorStart + colorStride * static_cast<std::uint64_t>(stored), colorStride);
        if (bitCount <= 8) {
            DecodeIndexedRow(row, width, bitCount, palette, colors);
        } else {
            DecodeTrueColorRow(row, width, bitCount / 8, colors, alphas);
        }
        StoredRow maskRow =
            RowAt(file, maskStart + maskStride * static_cast<std::uint64_t>(stored), maskStride);
        ApplyMaskRow(maskRow, width, colors);
        if (bitCount == 32) {
            // An image with alpha has no inverting pixels.
            std::replace(colors, colors + width, InverseColor, TransparentColor);
        }
    }
    return true;
}

}  // namespace iw
