#include "document/io/BitmapEncoder.h"

#include <array>

#include "document/io/IcoLayout.h"
#include "document/io/IndexedPixels.h"

namespace iw {
namespace {

void PutLE16(std::uint8_t* p, std::uint32_t v) {
    p[0] = static_cast<std::uint8_t>(v);
    p[1] = static_cast<std::uint8_t>(v >> 8);
}

void PutLE32(std::uint8_t* p, std::uint32_t v) {
    for (int i = 0; i < 4; ++i)
        p[i] = static_cast<std::uint8_t>(v >> (8 * i));
}

// Rows are written bottom-up: stored row `s` holds the planes' row height - 1 - s.
template <typename WriteRow>
void ForEachStoredRow(const BitmapGeometry& g, std::uint8_t* start, std::size_t stride,
                      WriteRow write) {
    for (int stored = 0; stored < g.height; ++stored) {
        write(g.height - 1 - stored, start + stride * static_cast<std::size_t>(stored));
    }
}

void WriteMaskRows(const IconImage& image, const BitmapGeometry& g, std::uint8_t* start) {
    ForEachStoredRow(g, start, g.maskStride, [&](int y, std::uint8_t* row) {
        auto colors = image.Row(y, IconImage::ColorPlane);
        for (int x = 0; x < g.width; ++x) {
            if (IsMarker(colors[static_cast<std::size_t>(x)])) {
                row[x / 8] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
            }
        }
    });
}

void WriteTrueColorRows(const IconImage& image, const BitmapGeometry& g, std::uint8_t* start) {
    const int bytesPerPixel = g.bitCount / 8;
    // An image of another depth written with 32 bits (a PNG-compressed one in a cursor)
    // shows as it would in its PNG stream: opaque, but where a marker stands.
    const bool alphaPlane = image.info.bitCount == 32;
    ForEachStoredRow(g, start, g.colorStride, [&](int y, std::uint8_t* row) {
        auto colors = image.Row(y, IconImage::ColorPlane);
        auto alphas = image.Row(y, IconImage::AlphaPlane);
        for (int x = 0; x < g.width; ++x) {
            const PackedColor c = colors[static_cast<std::size_t>(x)];
            std::uint8_t* p = row + static_cast<std::size_t>(x) * bytesPerPixel;
            if (c == InverseColor) {
                p[0] = p[1] = p[2] = 0xFF;
            } else if (c != TransparentColor) {
                p[0] = static_cast<std::uint8_t>(BlueOf(c));
                p[1] = static_cast<std::uint8_t>(GreenOf(c));
                p[2] = static_cast<std::uint8_t>(RedOf(c));
            }
            if (bytesPerPixel == 4) {
                p[3] = alphaPlane ? static_cast<std::uint8_t>(alphas[static_cast<std::size_t>(x)])
                                  : (IsMarker(c) ? 0 : 255);
            }
        }
    });
}

void WriteIndexedRows(const IndexedPixels& indexed, const BitmapGeometry& g, std::uint8_t* start) {
    const int perByte = 8 / g.bitCount;
    ForEachStoredRow(g, start, g.colorStride, [&](int y, std::uint8_t* row) {
        for (int x = 0; x < g.width; ++x) {
            const int shift = 8 - g.bitCount * (x % perByte + 1);
            row[x / perByte] |= static_cast<std::uint8_t>(indexed.At(x, y) << shift);
        }
    });
}

void WritePalette(const IndexedPixels& indexed, std::uint8_t* out) {
    for (std::size_t i = 0; i < indexed.palette.size(); ++i) {
        const PackedColor c = indexed.palette[i];
        out[i * 4] = static_cast<std::uint8_t>(BlueOf(c));
        out[i * 4 + 1] = static_cast<std::uint8_t>(GreenOf(c));
        out[i * 4 + 2] = static_cast<std::uint8_t>(RedOf(c));
        out[i * 4 + 3] = 0;
    }
}

}  // namespace

BitmapGeometry GeometryFor(const IconInfo& info, int bitCount) {
    BitmapGeometry g;
    g.width = info.heightMinus1 + 1;
    g.height = info.widthMinus1 + 1;
    g.bitCount = bitCount;
    g.paletteBytes =
        bitCount == 1 || bitCount == 4 || bitCount == 8 ? (std::size_t{1} << bitCount) * 4 : 0;
    g.colorStride = ico::RowStride(g.width, g.bitCount);
    g.maskStride = ico::RowStride(g.width, 1);
    return g;
}

std::vector<std::uint8_t> EncodeBitmapHeader(const BitmapGeometry& g) {
    std::vector<std::uint8_t> header(ico::kBitmapHeaderSize, 0);
    PutLE32(&header[0], 40);
    PutLE32(&header[ico::kBmpWidth], static_cast<std::uint32_t>(g.width));
    PutLE32(&header[ico::kBmpHeight], static_cast<std::uint32_t>(g.height * 2));
    PutLE16(&header[ico::kBmpPlanes], 1);
    PutLE16(&header[ico::kBmpBitCount], static_cast<std::uint32_t>(g.bitCount));
    PutLE32(&header[ico::kBmpImageSize], static_cast<std::uint32_t>(g.ColorAndMaskBytes()));
    return header;
}

std::vector<std::uint8_t> EncodeBitmapData(const IconImage& image, const BitmapGeometry& g,
                                           int imageIndex, IProgressSink& progress) {
    std::vector<std::uint8_t> data(g.paletteBytes + g.ColorAndMaskBytes(), 0);
    std::uint8_t* colorStart = data.data() + g.paletteBytes;
    std::uint8_t* maskStart = colorStart + g.colorStride * static_cast<std::size_t>(g.height);
    if (g.bitCount <= 8) {
        IndexedPixels indexed = IndexPixels(image, g.width, g.height, imageIndex, progress);
        WritePalette(indexed, data.data());
        WriteIndexedRows(indexed, g, colorStart);
    } else {
        WriteTrueColorRows(image, g, colorStart);
    }
    WriteMaskRows(image, g, maskStart);
    return data;
}

}  // namespace iw
