#include "codec/png/c32bppDIB.h"

#include <cstring>
#include <limits>
#include <new>

#include "codec/png/FileAccess.h"
#include "codec/png/cGDIPlus.h"
#include "codec/png/cPNGParser.h"
#include "codec/png/cPNGWriter.h"
#include "codec/zlib/Compression.h"
#include "platform/FileStreams.h"

namespace iw {

bool c32bppDIB::InitializeDIB(std::int32_t width, std::int32_t height) {
    DestroyDIB();
    if (width < 0 || height == 0 || height == std::numeric_limits<std::int32_t>::min())
        return false;
    if (height < 0) height = -height;
    // The header's image size is a 32-bit field; a larger product cannot be described.
    const std::uint64_t imageSize =
        std::uint64_t{static_cast<std::uint32_t>(width)} * static_cast<std::uint32_t>(height) * 4;
    if (imageSize > static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max()))
        return false;
    // A section of no pixels cannot be created.
    if (imageSize == 0) return false;
    try {
        bits_.assign(static_cast<std::size_t>(imageSize), 0);
    } catch (const std::bad_alloc&) {
        bits_ = {};
        return false;
    }
    header_ = {};
    header_.width = width;
    header_.height = height;
    header_.sizeImage = static_cast<std::uint32_t>(imageSize);
    alphaBlendFriendly_ = true;
    imageType_ = ImageFormat::None;
    return true;
}

void c32bppDIB::DestroyDIB() {
    bits_ = {};
    original_ = {};
    header_ = {};
    alpha_ = false;
    imageType_ = ImageFormat::None;
}

void c32bppDIB::EraseDIB() {
    std::fill(bits_.begin(), bits_.end(), std::uint8_t{0});
}

bool c32bppDIB::CopyImageTo(c32bppDIB& target) const {
    if (&target == this) return !Empty();
    if (Empty() || !target.InitializeDIB(Width(), Height())) {
        target.DestroyDIB();
        return false;
    }
    std::memcpy(target.bits_.data(), bits_.data(), bits_.size());
    target.alpha_ = alpha_;
    target.imageType_ = imageType_;
    target.alphaBlendFriendly_ = alphaBlendFriendly_;
    target.highQuality_ = highQuality_;
    target.properties_ = properties_;
    return true;
}

void c32bppDIB::isGDIplusEnabled(bool value) {
    gdiPlusEnabled_ = value && cGDIPlus::isGDIplusOk();
}

bool c32bppDIB::isZlibEnabled() const {
    return IsZlibLoaded();
}

std::uint8_t* c32bppDIB::TopDownRow(std::int32_t y) {
    return bits_.data() +
           static_cast<std::size_t>(Height() - 1 - y) * static_cast<std::size_t>(scanWidth());
}

const std::uint8_t* c32bppDIB::TopDownRow(std::int32_t y) const {
    return bits_.data() +
           static_cast<std::size_t>(Height() - 1 - y) * static_cast<std::size_t>(scanWidth());
}

bool c32bppDIB::GetPixel(std::int32_t x, std::int32_t y, BgraPixel& pixel) const {
    if (Empty() || x < 0 || y < 0 || x >= Width() || y >= Height()) return false;
    const std::uint8_t* p = TopDownRow(y) + 4 * static_cast<std::size_t>(x);
    pixel = {p[0], p[1], p[2], p[3]};
    return true;
}

bool c32bppDIB::SetPixel(std::int32_t x, std::int32_t y, BgraPixel pixel) {
    if (Empty() || x < 0 || y < 0 || x >= Width() || y >= Height()) return false;
    std::uint8_t* p = TopDownRow(y) + 4 * static_cast<std::size_t>(x);
    p[0] = pixel.b;
    p[1] = pixel.g;
    p[2] = pixel.r;
    p[3] = pixel.a;
    return true;
}

bool c32bppDIB::SetDIBbits(std::span<const std::uint8_t> bits) {
    if (Empty() || bits.size() != bits_.size()) return false;
    std::memcpy(bits_.data(), bits.data(), bits.size());
    return true;
}

bool c32bppDIB::LoadPicture_Stream(std::span<const std::uint8_t> bytes, bool keepOriginal,
                                   const DecodeLimits& limits) {
    cPNGParser parser;
    std::int32_t width = 0;
    std::int32_t height = 0;
    if (!parser.LoadStream(bytes, 0, bytes.size(), *this, width, height, limits)) {
        DestroyDIB();
        return false;
    }
    if (keepOriginal) {
        try {
            original_.assign(bytes.begin(), bytes.end());
        } catch (const std::bad_alloc&) {
            DestroyDIB();
            return false;
        }
    }
    return true;
}

bool c32bppDIB::LoadPicture_File(const std::filesystem::path& file, bool keepOriginal,
                                 const DecodeLimits& limits) {
    DestroyDIB();
    std::FILE* handle = platform::OpenForReading(file);
    if (!handle) return false;
    bool loaded = false;
    if (keepOriginal) {
        // The whole file is needed anyway, so it is read once and decoded from memory. No
        // picture within the limits needs a larger file than this (16 bytes a pixel covers
        // 16-bit RGBA with interlacing and stored deflate blocks).
        const std::uint64_t maxFile = limits.maxPixels * 16 + (std::uint64_t{1} << 20);
        std::vector<std::uint8_t> bytes;
        if (ReadWholeFile(handle, maxFile, bytes) && bytes.size() > cPNGParser::kMinimumFileSize) {
            loaded = LoadPicture_Stream(bytes, false, limits);
            if (loaded) original_ = std::move(bytes);
        }
    } else {
        cPNGParser parser;
        std::int32_t width = 0;
        std::int32_t height = 0;
        loaded = parser.LoadFile(handle, *this, width, height, limits);
    }
    std::fclose(handle);
    if (!loaded) DestroyDIB();
    return loaded;
}

bool c32bppDIB::SaveToFile_PNG(const std::filesystem::path& file, bool replaceExisting) {
    cPNGWriter writer;
    return writer.SaveToFile(*this, file, replaceExisting, properties_);
}

bool c32bppDIB::SaveToStream_PNG(std::vector<std::uint8_t>& stream) const {
    cPNGWriter writer;
    return writer.SaveToStream(*this, stream, properties_);
}

}  // namespace iw
