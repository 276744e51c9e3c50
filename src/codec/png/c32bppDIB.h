#pragma once
// The program's 32-bit image: 4 bytes a pixel in the order blue, green, red, alpha, rows
// bottom-up (row 0 of the bits is the image's bottom row), scan width 4 x width, so rows
// never need padding.
//
// Alpha is straight, not premultiplied: the colour bytes of a pixel are its colour
// whatever its alpha. The PNG reader stores and the PNG writer expects straight alpha, the
// icon planes keep colour and alpha apart, and the effects work on straight values. Only
// drawing with the platform's alpha blending needs premultiplied colours; the window
// multiplies when it paints and never writes the result back. `isAlphaBlendFriendly`
// is kept as the flag the drawing code consults.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "codec/png/DecodeLimits.h"
#include "codec/png/PngProperties.h"

namespace iw {

// Which format a picture came from (`ImageType`); 0 until something is loaded.
enum class ImageFormat : int {
    None = 0,
    Bitmap = 1,
    Icon = 2,
    Cursor = 3,
    Gif = 4,
    Jpeg = 5,
    Png = 6,
};

struct BgraPixel {
    std::uint8_t b = 0, g = 0, r = 0, a = 0;
    friend bool operator==(const BgraPixel&, const BgraPixel&) = default;
};

// The 40-byte bitmap information header that describes the section.
struct DibInfoHeader {
    std::uint32_t size = 40;
    std::int32_t width = 0;
    std::int32_t height = 0;  // positive: rows bottom-up
    std::uint16_t planes = 1;
    std::uint16_t bitCount = 32;
    std::uint32_t compression = 0;  // RGB
    std::uint32_t sizeImage = 0;    // width x height x 4
    std::int32_t xPelsPerMeter = 0;
    std::int32_t yPelsPerMeter = 0;
    std::uint32_t clrUsed = 0;
    std::uint32_t clrImportant = 0;
};
static_assert(sizeof(DibInfoHeader) == 40, "the bitmap information header is 40 bytes");

class c32bppDIB {
  public:
    c32bppDIB() = default;
    c32bppDIB(const c32bppDIB&) = delete;
    c32bppDIB& operator=(const c32bppDIB&) = delete;
    c32bppDIB(c32bppDIB&&) noexcept = default;
    c32bppDIB& operator=(c32bppDIB&&) noexcept = default;

    // --- Creating and freeing ---------------------------------------------------------
    // Fails when the width is negative or the height is 0; a negative height counts as its
    // absolute value. Fails too when width x height x 4 overflows the header's 32-bit
    // image size or the section cannot be created (a section of no pixels, or no memory);
    // the object is then empty. The new pixels are all zero.
    bool InitializeDIB(std::int32_t width, std::int32_t height);
    void DestroyDIB();
    // Every byte of the bits to zero: black and fully transparent.
    void EraseDIB();
    // `target` becomes a copy of this image: size, bits, Alpha, ImageType and properties.
    bool CopyImageTo(c32bppDIB& target) const;

    // --- Properties ----------------------------------------------------------------------
    std::int32_t Width() const { return header_.width; }
    std::int32_t Height() const { return header_.height; }
    std::int32_t scanWidth() const { return header_.width * 4; }
    bool Empty() const { return bits_.empty(); }
    const DibInfoHeader& InfoHeader() const { return header_; }
    std::uint8_t* BitsPointer() { return bits_.empty() ? nullptr : bits_.data(); }
    const std::uint8_t* BitsPointer() const { return bits_.empty() ? nullptr : bits_.data(); }
    bool Alpha() const { return alpha_; }
    void Alpha(bool value) { alpha_ = value; }
    ImageFormat ImageType() const { return imageType_; }
    void ImageType(ImageFormat value) { imageType_ = value; }
    bool HighQualityInterpolation() const { return highQuality_; }
    void HighQualityInterpolation(bool value) { highQuality_ = value; }
    bool ManageOwnDC() const { return manageOwnDC_; }
    void ManageOwnDC(bool value) { manageOwnDC_ = value; }
    bool isAlphaBlendFriendly() const { return alphaBlendFriendly_; }
    void isAlphaBlendFriendly(bool value) { alphaBlendFriendly_ = value; }
    // GDI+ is used only where the platform has it (never on Linux); asking for it where it
    // is missing leaves the flag False.
    bool isGDIplusEnabled() const { return gdiPlusEnabled_; }
    void isGDIplusEnabled(bool value);
    // True when the compression library is loaded.
    bool isZlibEnabled() const;
    // The source bytes kept by a load that asked for them; empty otherwise.
    std::span<const std::uint8_t> GetOrginalFormat() const { return original_; }

    // --- Pixels --------------------------------------------------------------------------
    // x from the left, y from the top, as on the screen. False outside the image.
    bool GetPixel(std::int32_t x, std::int32_t y, BgraPixel& pixel) const;
    bool SetPixel(std::int32_t x, std::int32_t y, BgraPixel pixel);
    // A copy of the bits in their own layout (bottom-up BGRA).
    std::vector<std::uint8_t> GetDIBbits() const { return bits_; }
    // Replaces the bits; `bits` must hold exactly width x height x 4 bytes.
    bool SetDIBbits(std::span<const std::uint8_t> bits);
    // Row `y` counted from the top, 4 x width bytes.
    std::uint8_t* TopDownRow(std::int32_t y);
    const std::uint8_t* TopDownRow(std::int32_t y) const;

    // --- Loading -------------------------------------------------------------------------
    // Loads a picture. PNG is recognised by its signature and decoded by cPNGParser; other
    // formats are not read by this object yet and return False. With `keepOriginal` the
    // source bytes are kept for GetOrginalFormat. A failure leaves the object destroyed.
    bool LoadPicture_File(const std::filesystem::path& file, bool keepOriginal = false,
                          const DecodeLimits& limits = PictureLimits());
    bool LoadPicture_Stream(std::span<const std::uint8_t> bytes, bool keepOriginal = false,
                            const DecodeLimits& limits = PictureLimits());

    // --- Saving --------------------------------------------------------------------------
    // Writes the image as PNG. An existing file is replaced only when `replaceExisting`
    // says so: the caller asks "Overwrite existing file?" first (ConfirmOverwrite). The new
    // file is written beside the old and renamed over it, so a failed save keeps it.
    bool SaveToFile_PNG(const std::filesystem::path& file, bool replaceExisting);
    bool SaveToStream_PNG(std::vector<std::uint8_t>& stream) const;
    // Text properties written with the PNG, addressed by bit value (see PngProperties.h).
    bool PngPropertySet(int id, std::string_view value) { return properties_.Set(id, value); }
    bool PngPropertySet(int id, const PngTime& time) { return properties_.Set(id, time); }
    std::string PngPropertyGet(int id) const { return properties_.Get(id); }
    const PngProperties& Properties() const { return properties_; }
    PngProperties& Properties() { return properties_; }

  private:
    DibInfoHeader header_;
    std::vector<std::uint8_t> bits_;
    std::vector<std::uint8_t> original_;
    PngProperties properties_;
    ImageFormat imageType_ = ImageFormat::None;
    bool alpha_ = false;
    bool alphaBlendFriendly_ = false;
    bool highQuality_ = false;
    bool manageOwnDC_ = false;
    bool gdiPlusEnabled_ = false;
};

}  // namespace iw
