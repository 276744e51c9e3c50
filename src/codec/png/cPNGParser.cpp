#include "codec/png/cPNGParser.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <memory>
#include <new>

#include "codec/png/FileAccess.h"
#include "codec/png/PngFilters.h"
#include "codec/png/c32bppDIB.h"
#include "codec/png/cGDIPlus.h"
#include "codec/zlib/Checksums.h"
#include "codec/zlib/Compression.h"
#include "platform/FileStreams.h"
#include "services/core/CheckedBytes.h"

namespace iw {

// Where the chunks come from: memory (read in place) or a file (one chunk at a time).
// Positions count from the first byte of the signature.
class cPNGParser::ChunkSource {
  public:
    virtual ~ChunkSource() = default;
    virtual std::uint64_t Size() const = 0;
    // The 8 bytes of length and type at `position`.
    virtual bool ReadLengthAndType(std::uint64_t position, std::uint32_t& length,
                                   std::uint32_t& type) = 0;
    // Type and data (length + 4 bytes) of the chunk at `position`, and its stored CRC. The
    // view stays valid until the next call. The caller has checked that the chunk fits.
    virtual bool ReadChunk(std::uint64_t position, std::uint32_t length,
                           std::span<const std::uint8_t>& typeAndData, std::uint32_t& crc) = 0;
    // Hands the whole PNG to the platform's decoder; true when it produced the image.
    virtual bool OfferTo(cGDIPlus& decoder, c32bppDIB& target, const DecodeLimits& limits) = 0;
};

namespace {

std::uint16_t LoadBE16(const std::uint8_t* p) {
    return static_cast<std::uint16_t>((p[0] << 8) | p[1]);
}

class MemoryChunks final : public cPNGParser::ChunkSource {
  public:
    explicit MemoryChunks(std::span<const std::uint8_t> data) : data_(data) {}
    std::uint64_t Size() const override { return data_.size(); }
    bool ReadLengthAndType(std::uint64_t position, std::uint32_t& length,
                           std::uint32_t& type) override {
        if (!RangeFits(position, 8, data_.size())) return false;
        length = LoadBE32(data_.data() + position);
        type = LoadBE32(data_.data() + position + 4);
        return true;
    }
    bool ReadChunk(std::uint64_t position, std::uint32_t length,
                   std::span<const std::uint8_t>& typeAndData, std::uint32_t& crc) override {
        const std::uint64_t bytes = std::uint64_t{length} + 4;
        if (!RangeFits(position + 4, bytes + 4, data_.size())) return false;
        const auto start = static_cast<std::size_t>(position + 4);
        typeAndData = data_.subspan(start, static_cast<std::size_t>(bytes));
        crc = LoadBE32(data_.data() + start + bytes);
        return true;
    }
    bool OfferTo(cGDIPlus& decoder, c32bppDIB& target, const DecodeLimits& limits) override {
        return decoder.LoadPictureStream(data_, target, limits);
    }

  private:
    std::span<const std::uint8_t> data_;
};

class FileChunks final : public cPNGParser::ChunkSource {
  public:
    FileChunks(std::FILE* file, std::uint64_t size) : file_(file), size_(size) {}
    std::uint64_t Size() const override { return size_; }
    bool ReadLengthAndType(std::uint64_t position, std::uint32_t& length,
                           std::uint32_t& type) override {
        std::uint8_t bytes[8];
        if (!RangeFits(position, 8, size_) || !ReadAt(file_, position, bytes, 8)) return false;
        length = LoadBE32(bytes);
        type = LoadBE32(bytes + 4);
        return true;
    }
    bool ReadChunk(std::uint64_t position, std::uint32_t length,
                   std::span<const std::uint8_t>& typeAndData, std::uint32_t& crc) override {
        const std::uint64_t bytes = std::uint64_t{length} + 4;
        if (!RangeFits(position + 4, bytes + 4, size_)) return false;
        // The work buffer is resized to fit the chunk; it never passes the file's size.
        work_.resize(static_cast<std::size_t>(bytes + 4));
        if (!ReadAt(file_, position + 4, work_.data(), work_.size())) return false;
        typeAndData = std::span<const std::uint8_t>(work_).first(static_cast<std::size_t>(bytes));
        crc = LoadBE32(work_.data() + bytes);
        return true;
    }
    bool OfferTo(cGDIPlus& decoder, c32bppDIB& target, const DecodeLimits& limits) override {
        return decoder.LoadPictureFile(file_, target, limits);
    }

  private:
    std::FILE* file_;
    std::uint64_t size_;
    std::vector<std::uint8_t> work_;
};

// Writes the rows straight into the image's section.
class DibRows final : public png::RowSink {
  public:
    explicit DibRows(c32bppDIB& target) : target_(target) {}
    bool Begin(std::uint32_t width, std::uint32_t height) override {
        return target_.InitializeDIB(static_cast<std::int32_t>(width),
                                     static_cast<std::int32_t>(height));
    }
    std::uint8_t* Row(std::uint32_t y) override {
        return target_.TopDownRow(static_cast<std::int32_t>(y));
    }
    void RowDone(std::uint32_t) override {}

  private:
    c32bppDIB& target_;
};

// Hands an image that is already decoded (by GDI+) to a sink.
bool CopyRows(const c32bppDIB& image, png::RowSink& sink) {
    const auto width = static_cast<std::uint32_t>(image.Width());
    const auto height = static_cast<std::uint32_t>(image.Height());
    if (!sink.Begin(width, height)) return false;
    for (std::uint32_t y = 0; y < height; ++y) {
        std::memcpy(sink.Row(y), image.TopDownRow(static_cast<std::int32_t>(y)),
                    std::size_t{width} * 4);
        sink.RowDone(y);
    }
    return true;
}

// RGBA to BGRA: red and blue change places. The filters work on each byte of a pixel
// apart from the others, so the swap may come before the unfiltering.
void SwapRedBlue(const std::uint8_t* in, std::uint8_t* out, std::size_t pixels) {
    for (std::size_t i = 0; i < pixels; ++i, in += 4, out += 4) {
        std::uint32_t v;
        std::memcpy(&v, in, 4);
        v = (v & 0xFF00FF00u) | ((v >> 16) & 0xFFu) | ((v & 0xFFu) << 16);
        std::memcpy(out, &v, 4);
    }
}

}  // namespace

bool cPNGParser::HasSignature(std::span<const std::uint8_t> bytes) {
    // Two 32-bit words: 89 50 4E 47, then 0D 0A 1A 0A; both must match.
    return bytes.size() >= 8 && LoadBE32(bytes.data()) == 0x89504E47u &&
           LoadBE32(bytes.data() + 4) == 0x0D0A1A0Au;
}

void cPNGParser::Reset() {
    header_ = {};
    pixels_ = {};
    compressed_.clear();
    error_ = PngError::None;
    paletteCount_ = 0;
    haveHeader_ = havePalette_ = haveTransparency_ = false;
    zlibLoaded_ = IsZlibLoaded();
}

bool cPNGParser::LoadStream(std::span<const std::uint8_t> bytes, std::size_t start,
                            std::size_t length, c32bppDIB& target, std::int32_t& width,
                            std::int32_t& height, const DecodeLimits& limits) {
    Reset();
    width = height = 0;
    if (!RangeFits(start, length, bytes.size())) {
        error_ = PngError::TooShort;
        target.DestroyDIB();
        return false;
    }
    const auto data = bytes.subspan(start, length);
    if (!HasSignature(data)) {
        error_ = data.size() < 8 ? PngError::TooShort : PngError::BadSignature;
        target.DestroyDIB();
        return false;
    }
    MemoryChunks source(data);
    return Run(source, target, width, height, limits);
}

bool cPNGParser::LoadStream(std::span<const std::uint8_t> bytes, std::size_t start,
                            std::size_t length, png::RowSink& sink, std::int32_t& width,
                            std::int32_t& height, const DecodeLimits& limits) {
    Reset();
    width = height = 0;
    if (!RangeFits(start, length, bytes.size())) {
        error_ = PngError::TooShort;
        return false;
    }
    const auto data = bytes.subspan(start, length);
    if (!HasSignature(data)) {
        error_ = data.size() < 8 ? PngError::TooShort : PngError::BadSignature;
        return false;
    }
    MemoryChunks source(data);
    c32bppDIB decoded;
    if (TryPlatformDecoder(source, decoded, limits)) {
        if (!CopyRows(decoded, sink)) {
            error_ = PngError::OutOfMemory;
            return false;
        }
        width = decoded.Width();
        height = decoded.Height();
        return true;
    }
    if (!Run(source, sink, limits)) return false;
    width = static_cast<std::int32_t>(header_.width);
    height = static_cast<std::int32_t>(header_.height);
    return true;
}

bool cPNGParser::LoadFile(std::FILE* file, c32bppDIB& target, std::int32_t& width,
                          std::int32_t& height, const DecodeLimits& limits) {
    Reset();
    width = height = 0;
    target.DestroyDIB();
    const auto size = file ? platform::LengthOf(file) : std::nullopt;
    if (!size) {
        error_ = PngError::ReadFailed;
        return false;
    }
    if (*size <= kMinimumFileSize) {
        error_ = PngError::TooShort;
        return false;
    }
    std::uint8_t head[58];
    const std::size_t headSize =
        static_cast<std::size_t>(std::min<std::uint64_t>(*size, sizeof head));
    if (!ReadAt(file, 0, head, headSize)) {
        error_ = PngError::ReadFailed;
        return false;
    }
    if (!HasSignature({head, headSize})) {
        error_ = PngError::BadSignature;
        return false;
    }
    FileChunks source(file, *size);
    return Run(source, target, width, height, limits);
}

bool cPNGParser::TryPlatformDecoder(ChunkSource& source, c32bppDIB& target,
                                    const DecodeLimits& limits) {
    cGDIPlus decoder;
    return source.OfferTo(decoder, target, limits);
}

bool cPNGParser::Run(ChunkSource& source, c32bppDIB& target, std::int32_t& width,
                     std::int32_t& height, const DecodeLimits& limits) {
    if (TryPlatformDecoder(source, target, limits)) {
        width = target.Width();
        height = target.Height();
        return true;
    }
    DibRows rows(target);
    if (!Run(source, rows, limits)) {
        target.DestroyDIB();
        return false;
    }
    const bool hasAlphaChannel =
        header_.colorType == png::kGreyAlpha || header_.colorType == png::kRgba;
    target.Alpha(hasAlphaChannel || haveTransparency_);
    target.ImageType(ImageFormat::Png);
    width = target.Width();
    height = target.Height();
    return true;
}

bool cPNGParser::Run(ChunkSource& source, png::RowSink& sink, const DecodeLimits& limits) {
    try {
        error_ = ParseChunks(source, limits);
        if (error_ == PngError::None) error_ = Decode(sink);
    } catch (const std::bad_alloc&) {
        error_ = PngError::OutOfMemory;
    } catch (const std::exception&) {
        error_ = PngError::ReadFailed;
    }
    compressed_ = {};
    return error_ == PngError::None;
}

PngError cPNGParser::ParseChunks(ChunkSource& source, const DecodeLimits& limits) {
    const std::uint64_t size = source.Size();
    std::uint64_t position = png::kSignature.size();
    while (position != size) {
        std::uint32_t length = 0;
        std::uint32_t type = 0;
        // Fewer bytes than a chunk's length, type and CRC: a cut-off file.
        if (size - position < png::kChunkOverhead) return PngError::TruncatedChunk;
        if (!source.ReadLengthAndType(position, length, type)) return PngError::ReadFailed;
        if (length > png::kMaxChunkLength) return PngError::ChunkTooLong;
        // The next chunk begins at position + length + 12; past the end is an error.
        const std::uint64_t next = position + length + png::kChunkOverhead;
        if (next > size) return PngError::TruncatedChunk;
        if (length == 0) {
            if (type == png::kIEND) break;
            position = next;
            continue;
        }
        const bool wanted = type == png::kIHDR || type == png::kPLTE || type == png::kTRNS ||
                            type == png::kIDAT || type == png::kIEND;
        if (wanted) {
            std::span<const std::uint8_t> typeAndData;
            std::uint32_t crc = 0;
            if (!source.ReadChunk(position, length, typeAndData, crc)) return PngError::ReadFailed;
            const auto data = typeAndData.subspan(4);
            PngError error = PngError::None;
            switch (type) {
                case png::kIHDR:
                    error = ParseHeader(data, limits);
                    break;
                case png::kPLTE:
                    error = ParsePalette(data);
                    break;
                case png::kTRNS:
                    error = ParseTransparency(data);
                    break;
                case png::kIDAT:
                    error = AppendImageData(typeAndData, crc, size);
                    break;
                default:
                    break;
            }
            if (error != PngError::None) return error;
            if (type == png::kIEND) break;
        }
        position = next;
    }
    if (!haveHeader_) return PngError::MissingHeader;
    if (compressed_.empty()) return PngError::NoImageData;
    if (header_.colorType == png::kPalette && !havePalette_) return PngError::MissingPalette;
    return PngError::None;
}

PngError cPNGParser::ParseHeader(std::span<const std::uint8_t> data, const DecodeLimits& limits) {
    if (haveHeader_) return PngError::BadHeader;
    const std::optional<png::Header> read = png::ReadHeader(data);
    if (!read) return PngError::BadHeader;
    const png::Header& h = *read;
    // Refused before anything is allocated for it; the layout checks the raw size.
    if (!FitsLimits(h.width, h.height, limits) || !png::LayoutOf(h)) return PngError::TooLarge;
    header_ = h;
    pixels_.colorType = h.colorType;
    pixels_.bitDepth = h.bitDepth;
    for (auto& entry : pixels_.palette)
        entry = {0, 0, 0, 255};
    haveHeader_ = true;
    return PngError::None;
}

PngError cPNGParser::ParsePalette(std::span<const std::uint8_t> data) {
    if (!haveHeader_) return PngError::MissingHeader;
    if (havePalette_ || data.size() % 3 != 0 || data.size() > 3 * 256) return PngError::BadPalette;
    // Grey images have no palette; in RGB images it is only a suggestion. Either way the
    // pixels do not use it.
    if (header_.colorType != png::kPalette) return PngError::None;
    // A palette image's tRNS must follow its PLTE.
    if (haveTransparency_) return PngError::BadPalette;
    paletteCount_ = static_cast<int>(data.size() / 3);
    for (int i = 0; i < paletteCount_; ++i) {
        const std::uint8_t* rgb = data.data() + 3 * i;
        pixels_.palette[static_cast<std::size_t>(i)] = {rgb[2], rgb[1], rgb[0], 255};
    }
    havePalette_ = true;
    return PngError::None;
}

PngError cPNGParser::ParseTransparency(std::span<const std::uint8_t> data) {
    if (!haveHeader_) return PngError::MissingHeader;
    if (haveTransparency_) return PngError::BadTransparency;
    switch (header_.colorType) {
        case png::kPalette:
            // One alpha per palette entry, at most as many as the palette has.
            if (!havePalette_ || data.size() > static_cast<std::size_t>(paletteCount_)) {
                return PngError::BadTransparency;
            }
            for (std::size_t i = 0; i < data.size(); ++i)
                pixels_.palette[i][3] = data[i];
            break;
        case png::kGrey:
            if (data.size() != 2) return PngError::BadTransparency;
            pixels_.transparent = std::array<std::uint16_t, 3>{LoadBE16(data.data()), 0, 0};
            break;
        case png::kRgb:
            if (data.size() != 6) return PngError::BadTransparency;
            pixels_.transparent = std::array<std::uint16_t, 3>{
                LoadBE16(data.data()), LoadBE16(data.data() + 2), LoadBE16(data.data() + 4)};
            break;
        default:
            // Types with an alpha channel have no use for tRNS; it is ignored.
            return PngError::None;
    }
    haveTransparency_ = true;
    return PngError::None;
}

PngError cPNGParser::AppendImageData(std::span<const std::uint8_t> typeAndData,
                                     std::uint32_t storedCrc, std::uint64_t inputSize) {
    if (!haveHeader_) return PngError::MissingHeader;
    // The CRC is checked on IDAT only, and only with zlib loaded: without the library the
    // reader checks no CRC at all.
    if (zlibLoaded_ && storedCrc != 0 && Crc32(0, typeAndData) != storedCrc) {
        return PngError::BadCrc;
    }
    const auto data = typeAndData.subspan(4);
    // A zlib stream is never much larger than what it holds (stored blocks add 5 bytes in
    // 65535); more compressed data than this is not an image of this size.
    const auto layout = png::LayoutOf(header_);
    const std::uint64_t cap = std::uint64_t{layout->rawSize} * 2 + 65536;
    const std::uint64_t needed = std::uint64_t{compressed_.size()} + data.size();
    if (needed > cap) return PngError::TooLarge;
    if (compressed_.capacity() == 0) {
        compressed_.reserve(static_cast<std::size_t>(std::min(inputSize / 2, cap)));
    }
    if (needed > compressed_.capacity()) {
        // Grown in large steps so that many small IDATs do not reallocate each time.
        compressed_.reserve(static_cast<std::size_t>(std::min(needed + inputSize / 4, cap)));
    }
    compressed_.insert(compressed_.end(), data.begin(), data.end());
    return PngError::None;
}

PngError cPNGParser::Decode(png::RowSink& sink) {
    const auto layout = png::LayoutOf(header_);
    if (!layout) return PngError::TooLarge;
    // Every byte is written by the inflate before it is read, so the buffer starts
    // uninitialised. The image's filtered size is the most the stream may hold: a bomb
    // stops here.
    const auto raw = std::make_unique_for_overwrite<std::uint8_t[]>(layout->rawSize);
    if (ZlibDecompressInto(compressed_, {raw.get(), layout->rawSize}) != InflateStatus::Ok) {
        return PngError::DecompressionFailed;
    }
    compressed_ = {};
    // The filter types are all checked first, so that nothing reaches the sink from an
    // image that turns out to be corrupt.
    for (int p = 0; p < layout->passCount; ++p) {
        const png::PassLayout& pass = layout->passes[static_cast<std::size_t>(p)];
        for (std::uint32_t r = 0; r < pass.rows; ++r) {
            if (raw[pass.offset + r * (pass.rowBytes + 1)] > png::kFilterPaeth) {
                return PngError::BadFilter;
            }
        }
    }
    const std::size_t stride = png::FilterStride(header_.colorType, header_.bitDepth);
    const std::uint32_t width = header_.width;
    const std::uint32_t height = header_.height;
    if (layout->passCount > 1) {
        // Interlaced: each pass is unfiltered as an image of its own, with a zero row above
        // its first, and the passes are gathered in a whole image before the rows go out.
        for (int p = 0; p < layout->passCount; ++p) {
            const png::PassLayout& pass = layout->passes[static_cast<std::size_t>(p)];
            png::UnfilterRows(raw.get() + pass.offset, pass.rows, pass.rowBytes, stride);
        }
        const std::size_t pitch = std::size_t{width} * 4;
        std::vector<std::uint8_t> image(pitch * height);
        for (int p = 0; p < layout->passCount; ++p) {
            const png::PassLayout& pass = layout->passes[static_cast<std::size_t>(p)];
            png::PlacePass(pass, raw.get() + pass.offset, pixels_, image.data(),
                           static_cast<std::ptrdiff_t>(pitch));
        }
        if (!sink.Begin(width, height)) return PngError::OutOfMemory;
        for (std::uint32_t y = 0; y < height; ++y) {
            std::memcpy(sink.Row(y), image.data() + y * pitch, pitch);
            sink.RowDone(y);
        }
        return PngError::None;
    }
    if (!sink.Begin(width, height)) return PngError::OutOfMemory;
    const png::PassLayout& pass = layout->passes[0];
    const std::size_t line = pass.rowBytes + 1;
    if (header_.colorType == png::kRgba && header_.bitDepth == 8) {
        // Eight-bit RGBA is unfiltered where it ends up: the row above is read back from the
        // sink's previous row.
        const std::uint8_t* above = nullptr;
        for (std::uint32_t y = 0; y < height; ++y) {
            const std::uint8_t* filtered = raw.get() + y * line;
            std::uint8_t* out = sink.Row(y);
            SwapRedBlue(filtered + 1, out, width);
            png::UnfilterRow(filtered[0], out, above, pass.rowBytes, stride);
            sink.RowDone(y);
            above = out;
        }
        return PngError::None;
    }
    const std::uint8_t* above = nullptr;
    for (std::uint32_t y = 0; y < height; ++y) {
        std::uint8_t* filtered = raw.get() + y * line;
        png::UnfilterRow(filtered[0], filtered + 1, above, pass.rowBytes, stride);
        png::ConvertRow(filtered + 1, width, pixels_, sink.Row(y), 4);
        sink.RowDone(y);
        above = filtered + 1;
    }
    return PngError::None;
}

}  // namespace iw
