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

    // Where the pixels of an image that was not decoded yet come from. The image asks it
    // once, the first time any of its pixels is read or written, and then lets it go.
    class PendingPixels {
      public:
        virtual ~PendingPixels() = default;
        // Fills both planes, which are all zero when called (kSide cells a row, row 0 the
        // top row). False when the data turns out to be unusable: the image stays blank.
        virtual bool Decode(std::span<std::int32_t> colors,
                            std::span<std::int32_t> alphas) const = 0;
    };
    // Bytes shared by an image and its clones without being copied.
    using SharedBytes = std::shared_ptr<const std::vector<std::uint8_t>>;

    // Both planes read zero. Nothing is allocated until a pixel is written.
    IconImage();
    IconImage(IconImage&& other) noexcept;
    IconImage& operator=(IconImage&& other) noexcept;
    IconImage(const IconImage&) = delete;
    IconImage& operator=(const IconImage&) = delete;
    ~IconImage();
    // A deep copy. An image still waiting for its decode stays waiting (the copy shares the
    // source), and an image never written to stays unallocated.
    IconImage Clone() const;

    IconInfo info;

    // Row 0 is the image's top row. x runs along a row.
    //
    // Reading (the const forms) decodes a pending image first and sees zeros where nothing
    // was ever written. Every non-const form is taken as a change to the pixels: it decodes,
    // allocates the planes and drops the PNG stream kept for saving, whether or not the
    // caller then writes. Read through a const reference to keep the stream.
    std::int32_t& At(int x, int y, int plane) { return Writable()[Index(x, y, plane)]; }
    std::int32_t At(int x, int y, int plane) const { return Readable()[Index(x, y, plane)]; }
    PackedColor& Color(int x, int y) { return At(x, y, ColorPlane); }
    PackedColor Color(int x, int y) const { return At(x, y, ColorPlane); }
    std::int32_t& Alpha(int x, int y) { return At(x, y, AlphaPlane); }
    std::int32_t Alpha(int x, int y) const { return At(x, y, AlphaPlane); }

    // One row of one plane, all 256 cells.
    std::span<std::int32_t> Row(int y, int plane) {
        return {Writable() + Index(0, y, plane), static_cast<std::size_t>(kSide)};
    }
    std::span<const std::int32_t> Row(int y, int plane) const {
        return {Readable() + Index(0, y, plane), static_cast<std::size_t>(kSide)};
    }
    // A whole plane, row after row.
    std::span<std::int32_t> PlaneCells(int plane) {
        return {Writable() + static_cast<std::size_t>(plane) * kPlaneCells, kPlaneCells};
    }
    std::span<const std::int32_t> PlaneCells(int plane) const {
        return {Readable() + static_cast<std::size_t>(plane) * kPlaneCells, kPlaneCells};
    }

    // Both planes back to zero; a pending decode and a kept PNG stream are dropped.
    void ClearPlanes();

    // Lets `source` fill the planes on first use instead of now. The planes are released
    // until then; a kept PNG stream is left as it is.
    void SetPendingPixels(std::shared_ptr<const PendingPixels> source);
    bool PixelsPending() const { return source_ != nullptr; }
    bool PlanesAllocated() const { return cells_ != nullptr; }

    // The PNG stream the image was read from, kept while nobody has taken mutable access to
    // the pixels, so that a save can write it again instead of encoding anew. Empty when
    // there is none.
    const std::vector<std::uint8_t>& OriginalPng() const {
        return originalPng_ ? *originalPng_ : kNoBytes;
    }
    // Keeps `bytes` as the stream of the pixels as they are now; the caller vouches that
    // they match (the reader, or an undo that put the very pixels back).
    void KeepOriginalPng(SharedBytes bytes);
    void KeepOriginalPng(std::vector<std::uint8_t> bytes);
    void DropOriginalPng();

  private:
    static const std::vector<std::uint8_t> kNoBytes;
    static std::size_t Index(int x, int y, int plane) {
        return static_cast<std::size_t>(plane) * kPlaneCells + static_cast<std::size_t>(y) * kSide +
               static_cast<std::size_t>(x);
    }
    const std::int32_t* Readable() const { return read_ ? read_ : Resolve(); }
    std::int32_t* Writable() { return write_ ? write_ : MakeWritable(); }
    // Runs the pending decode; the cells to read from.
    const std::int32_t* Resolve() const;
    // Decodes, allocates and drops the kept stream; the cells to write to.
    std::int32_t* MakeWritable();
    // Sets the two shortcuts from the state.
    void Refresh() const;

    struct FreeCells {
        void operator()(std::int32_t* p) const;
    };
    // Both planes in one block of fresh zero pages straight from the system, taken at the
    // first write (or decode): an image costs memory (and time) only where it is drawn
    // into, which matters for sets of many small images and for the undo levels.
    mutable std::unique_ptr<std::int32_t, FreeCells> cells_;
    mutable std::shared_ptr<const PendingPixels> source_;
    SharedBytes originalPng_;
    // Where reads go: the cells, or a shared block of zeros while there are none; null only
    // while a decode is pending.
    mutable const std::int32_t* read_ = nullptr;
    // Where writes go: set only once the cells exist, nothing is pending and no stream is
    // kept, so that the checks above run once, not for every pixel.
    mutable std::int32_t* write_ = nullptr;
};

}  // namespace iw
