#include "codec/png/cPNGWriter.h"

#include <algorithm>
#include <array>
#include <new>

#include "codec/png/PngChunkWriter.h"
#include "codec/png/PngColorAnalysis.h"
#include "codec/png/PngFormat.h"
#include "codec/png/c32bppDIB.h"
#include "codec/zlib/Compression.h"
#include "services/core/AtomicFile.h"

namespace iw {
namespace {

void PutBE32(std::uint8_t* p, std::uint32_t value) {
    p[0] = static_cast<std::uint8_t>(value >> 24);
    p[1] = static_cast<std::uint8_t>(value >> 16);
    p[2] = static_cast<std::uint8_t>(value >> 8);
    p[3] = static_cast<std::uint8_t>(value);
}

std::vector<std::uint8_t> HeaderChunks(const c32bppDIB& image, const png::Encoding& encoding) {
    std::vector<std::uint8_t> out;
    std::uint8_t ihdr[png::kHeaderLength] = {};
    PutBE32(ihdr, static_cast<std::uint32_t>(image.Width()));
    PutBE32(ihdr + 4, static_cast<std::uint32_t>(image.Height()));
    ihdr[8] = encoding.bitDepth;
    ihdr[9] = encoding.colorType;  // compression, filter and interlace methods stay 0
    png::AppendChunk(out, png::kIHDR, ihdr);
    if (encoding.colorType == png::kPalette) {
        std::vector<std::uint8_t> plte;
        std::vector<std::uint8_t> trns;
        for (std::size_t i = 0; i < encoding.palette.size(); ++i) {
            const auto& c = encoding.palette[i];
            plte.insert(plte.end(), {c[0], c[1], c[2]});
            if (i < encoding.paletteAlphaCount) trns.push_back(c[3]);
        }
        png::AppendChunk(out, png::kPLTE, plte);
        if (!trns.empty()) png::AppendChunk(out, png::kTRNS, trns);
    } else if (encoding.transparent) {
        const auto& key = *encoding.transparent;
        const std::size_t samples = encoding.colorType == png::kGrey ? 1 : 3;
        std::vector<std::uint8_t> trns;
        for (std::size_t i = 0; i < samples; ++i) {
            trns.push_back(static_cast<std::uint8_t>(key[i] >> 8));
            trns.push_back(static_cast<std::uint8_t>(key[i]));
        }
        png::AppendChunk(out, png::kTRNS, trns);
    }
    return out;
}

}  // namespace

std::span<const png::FilterStrategy> cPNGWriter::StrategiesFor(std::uint8_t colorType,
                                                               std::uint8_t bitDepth) {
    using S = png::FilterStrategy;
    // Palette indices and packed samples are not amounts, so predicting them rarely pays;
    // for them the per-row heuristic is the only other candidate.
    static constexpr std::array<S, 2> kIndexed{S::None, S::MinimumSum};
    static constexpr std::array<S, 3> kContinuous{S::None, S::MinimumSum, S::Paeth};
    if (colorType == png::kPalette || bitDepth < 8) return kIndexed;
    return kContinuous;
}

bool cPNGWriter::EncodeImage(const c32bppDIB& image, ImageChunks& chunks) {
    chunks = {};
    if (image.Empty()) {
        error_ = PngError::EncodeFailed;
        return false;
    }
    const std::vector<png::Encoding> candidates =
        layout_ == PngPixelLayout::Rgba8
            ? std::vector<png::Encoding>{png::Encoding{}}
            : png::CandidateEncodings(png::AnalyzeColors(image), image.Width(), image.Height());
    bool found = false;
    for (const png::Encoding& encoding : candidates) {
        const std::vector<std::uint8_t> rows = png::PackRows(image, encoding);
        const std::size_t rowBytes = png::RowBytes(encoding, image.Width());
        const std::size_t stride = png::FilterStride(encoding.colorType, encoding.bitDepth);
        std::vector<std::uint8_t> headers = HeaderChunks(image, encoding);
        for (png::FilterStrategy strategy : StrategiesFor(encoding.colorType, encoding.bitDepth)) {
            const std::vector<std::uint8_t> filtered = png::FilterImage(
                rows, static_cast<std::size_t>(image.Height()), rowBytes, stride, strategy);
            // Rows filtered per row by the heuristic, from samples that are amounts (not
            // palette indices), are mostly small differences, where zlib's filtered strategy
            // often does better (photographs); it is tried besides, never instead.
            const bool alsoFiltered = strategy == png::FilterStrategy::MinimumSum &&
                                      encoding.colorType != png::kPalette &&
                                      encoding.bitDepth >= 8 && CanCompressFiltered();
            for (int pass = 0; pass < (alsoFiltered ? 2 : 1); ++pass) {
                std::vector<std::uint8_t> stream =
                    pass == 0 ? ZlibCompress(filtered) : ZlibCompressFiltered(filtered);
                if (stream.empty()) {
                    error_ = PngError::EncodeFailed;
                    return false;
                }
                if (!found || headers.size() + stream.size() <
                                  chunks.headerChunks.size() + chunks.zlibStream.size()) {
                    chunks.headerChunks = headers;
                    chunks.zlibStream = std::move(stream);
                    found = true;
                }
            }
        }
    }
    return found;
}

bool cPNGWriter::SaveToStream(const c32bppDIB& image, std::vector<std::uint8_t>& stream,
                              const PngProperties& properties) {
    error_ = PngError::None;
    stream.clear();
    try {
        ImageChunks chunks;
        if (!EncodeImage(image, chunks)) return false;
        stream.reserve(png::kSignature.size() + chunks.headerChunks.size() +
                       chunks.zlibStream.size() + 64);
        stream.insert(stream.end(), png::kSignature.begin(), png::kSignature.end());
        stream.insert(stream.end(), chunks.headerChunks.begin(), chunks.headerChunks.end());
        const std::span<const std::uint8_t> data(chunks.zlibStream);
        for (std::size_t at = 0; at < data.size(); at += kIdatChunkSize) {
            png::AppendChunk(stream, png::kIDAT,
                             data.subspan(at, std::min(kIdatChunkSize, data.size() - at)));
        }
        if (!png::AppendPropertyChunks(stream, properties)) {
            error_ = PngError::EncodeFailed;
            stream.clear();
            return false;
        }
        png::AppendChunk(stream, png::kIEND, {});
        return true;
    } catch (const std::bad_alloc&) {
        error_ = PngError::OutOfMemory;
        stream.clear();
        return false;
    }
}

bool cPNGWriter::SaveToFile(const c32bppDIB& image, const std::filesystem::path& file,
                            bool replaceExisting, const PngProperties& properties) {
    error_ = PngError::None;
    std::error_code ec;
    if (!replaceExisting && std::filesystem::exists(file, ec)) {
        error_ = PngError::Declined;
        return false;
    }
    std::vector<std::uint8_t> stream;
    if (!SaveToStream(image, stream, properties)) return false;
    if (!WriteFileAtomically(file, std::as_bytes(std::span<const std::uint8_t>(stream)))) {
        error_ = PngError::WriteFailed;
        return false;
    }
    return true;
}

}  // namespace iw
