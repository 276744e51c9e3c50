#pragma once
// A small straight-alpha RGBA picture, what the image operations, the resampler and the
// picture decoders work on: r, g, b, a bytes a pixel, row 0 at the top, x along a row.
//
// Icons below 32 bits also have screen-inverting pixels, which are no colour at all. The
// buffer keeps them as a flag beside the pixels: geometric operations move the flag with
// its pixel, colour operations and filters leave flagged pixels as they are.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace iw {

struct Rgba {
    std::uint8_t r = 0, g = 0, b = 0, a = 0;
    friend bool operator==(const Rgba&, const Rgba&) = default;
};
static_assert(sizeof(Rgba) == 4, "Rgba is four bytes, so a buffer's pixels are its bytes");

// A rectangle of pixels; x and y are its top left corner.
struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool Empty() const { return width <= 0 || height <= 0; }
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

class RgbaBuffer {
  public:
    RgbaBuffer() = default;
    // width x height pixels of (0, 0, 0, 0). Negative sides count as 0; callers check
    // their limits before they ask for a large buffer.
    RgbaBuffer(int width, int height);

    int Width() const { return width_; }
    int Height() const { return height_; }
    bool Empty() const { return pixels_.empty(); }

    Rgba& At(int x, int y) { return pixels_[Index(x, y)]; }
    const Rgba& At(int x, int y) const { return pixels_[Index(x, y)]; }
    std::span<Rgba> Pixels() { return pixels_; }
    std::span<const Rgba> Pixels() const { return pixels_; }
    // r, g, b, a, row after row: the layout of straight RGBA pictures.
    std::span<const std::uint8_t> Bytes() const {
        return {reinterpret_cast<const std::uint8_t*>(pixels_.data()), pixels_.size() * 4};
    }

    bool IsInverse(int x, int y) const { return !inverse_.empty() && inverse_[Index(x, y)] != 0; }
    void SetInverse(int x, int y, bool inverse);
    bool HasInverse() const { return !inverse_.empty(); }

    friend bool operator==(const RgbaBuffer&, const RgbaBuffer&) = default;

  private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<Rgba> pixels_;
    std::vector<std::uint8_t> inverse_;  // empty, or one flag a pixel
};

// `rect` clipped to the buffer's sides.
PixelRect ClipRect(PixelRect rect, int width, int height);

// The pixels of `source` inside `rect` (clipped), with their flags.
RgbaBuffer Crop(const RgbaBuffer& source, PixelRect rect);

// Copies `source` into `target` with its top left at (x, y); what falls outside is dropped.
void Paste(RgbaBuffer& target, const RgbaBuffer& source, int x, int y);

}  // namespace iw
