#pragma once
// One image of an icon set: its IconInfo fields and its two 256 x 256 planes.

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "document/model/Colors.h"

namespace iw {

// The five IconInfo fields of an image. The two sides are kept exactly as the readers
// store them: field 0 is the planes' x extent (the bitmap header's width; the directory's
// height byte), field 1 the y extent. The writers write field 1 as the file's width and
// field 0 as its height, so a non-square bitmap comes back with its sides crossed.
struct IconInfo {
    std::int16_t widthMinus1 = 0;   // field 0
    std::int16_t heightMinus1 = 0;  // field 1
    std::int16_t bitCount = 32;     // field 2: 1, 4, 8, 24 or 32
    std::int16_t rate = 0;          // field 3: display rate as an animation frame, in jiffies
    std::int16_t png = 0;           // field 4: 0 bitmap, 1 PNG-compressed

    int Width() const { return widthMinus1 + 1; }
    int Height() const { return heightMinus1 + 1; }
    // Field access by number, for code that follows the file layouts field by field.
    std::int16_t& Field(int index);
    std::int16_t Field(int index) const;
};

class IconImage {
  public:
    static constexpr int kSide = 256;
    static constexpr int kPlaneCells = kSide * kSide;
    enum Plane : int { ColorPlane = 0, AlphaPlane = 1 };

    IconImage();  // both planes zero
    IconImage(IconImage&&) noexcept = default;
    IconImage& operator=(IconImage&&) noexcept = default;
    IconImage(const IconImage&) = delete;
    IconImage& operator=(const IconImage&) = delete;
    IconImage Clone() const;

    IconInfo info;

    // Row 0 is the image's top row. x runs along a row.
    std::int32_t& At(int x, int y, int plane) { return cells_.get()[Index(x, y, plane)]; }
    std::int32_t At(int x, int y, int plane) const { return cells_.get()[Index(x, y, plane)]; }
    PackedColor& Color(int x, int y) { return At(x, y, ColorPlane); }
    PackedColor Color(int x, int y) const { return At(x, y, ColorPlane); }
    std::int32_t& Alpha(int x, int y) { return At(x, y, AlphaPlane); }
    std::int32_t Alpha(int x, int y) const { return At(x, y, AlphaPlane); }

    // One row of one plane, all 256 cells.
    std::span<std::int32_t> Row(int y, int plane) {
        return {cells_.get() + Index(0, y, plane), static_cast<std::size_t>(kSide)};
    }
    std::span<const std::int32_t> Row(int y, int plane) const {
        return {cells_.get() + Index(0, y, plane), static_cast<std::size_t>(kSide)};
    }
    // A whole plane, row after row.
    std::span<std::int32_t> PlaneCells(int plane) {
        return {cells_.get() + static_cast<std::size_t>(plane) * kPlaneCells, kPlaneCells};
    }
    std::span<const std::int32_t> PlaneCells(int plane) const {
        return {cells_.get() + static_cast<std::size_t>(plane) * kPlaneCells, kPlaneCells};
    }

    void ClearPlanes();

    // The PNG stream the image was read from, kept while its pixels are unchanged so a save
    // can write it again instead of encoding anew. Any change to the pixels must drop it.
    std::vector<std::uint8_t> originalPng;

  private:
    static std::size_t Index(int x, int y, int plane) {
        return static_cast<std::size_t>(plane) * kPlaneCells + static_cast<std::size_t>(y) * kSide +
               static_cast<std::size_t>(x);
    }
    struct FreeCells {
        void operator()(std::int32_t* p) const;
    };
    // Both planes in one block of fresh zero pages straight from the system: an image costs
    // memory (and time) only where it is drawn into, which matters for sets of many small
    // images.
    std::unique_ptr<std::int32_t, FreeCells> cells_;
};

}  // namespace iw
