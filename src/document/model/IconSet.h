#pragma once
// The open icon file in memory: an ordered list of images, the file mode and the set's
// properties. One object per main window, passed by reference to every reader, writer and
// tool; readers fill it, writers take it as their source, the editor draws into it.

#include <cstdint>
#include <string>
#include <vector>

#include "document/model/IconImage.h"

namespace iw {

enum class FileMode { ICO, CUR, ANI };

// The mode a reader selects from a file name: the upper-cased last three characters
// "ICO", "CUR" or "ANI". Any other name gives ICO.
FileMode FileModeFromPath(const std::string& path);
// The upper-cased last three characters of a path ("" when shorter).
std::string UpperExtension3(const std::string& path);

// The set's properties, kept together in this order.
struct IconSetProperties {
    std::string name;           // animated cursors: INAM
    std::string artist;         // animated cursors: IART
    std::int16_t hotspotX = 0;  // one hotspot for the whole set (cursors and every ANI frame)
    std::int16_t hotspotY = 0;
    std::string sequence;  // frame indices, each followed by ","
};

// Animation data beside the per-image rates.
struct AnimationData {
    std::string ratesText;  // the rates as read, joined by "|"
    bool sequenceInUse = false;
};

class IconSet {
  public:
    static constexpr int kMaxImages = 175;
    static constexpr int kMaxSide = 256;

    // Index of the last image; -1 when the set is empty.
    int LastIcon() const { return static_cast<int>(images_.size()) - 1; }
    int Count() const { return static_cast<int>(images_.size()); }
    bool Empty() const { return images_.empty(); }
    bool Full() const { return Count() >= kMaxImages; }

    // Adds an image with cleared planes and the given fields (sides minus 1, bit count).
    // Returns its index, or -1 when the set already holds the most images it can.
    int AddIcon(int widthMinus1, int heightMinus1, int bitCount);
    // Inserts an already-made image at `index` (0..Count()); -1 when full.
    int InsertIcon(int index, IconImage image);
    void RemoveIcon(int index);

    // Erases every image. The properties, mode and file name stay as they are: the
    // document lifecycle decides what a fresh set looks like.
    void Clear();

    IconImage& Image(int index) { return images_.at(static_cast<std::size_t>(index)); }
    const IconImage& Image(int index) const { return images_.at(static_cast<std::size_t>(index)); }
    IconInfo& Info(int index) { return Image(index).info; }
    const IconInfo& Info(int index) const { return Image(index).info; }
    // IconPixels(x, y, plane, image).
    std::int32_t& Pixel(int x, int y, int plane, int index) { return Image(index).At(x, y, plane); }
    std::int32_t Pixel(int x, int y, int plane, int index) const {
        return Image(index).At(x, y, plane);
    }

    FileMode mode = FileMode::ICO;
    IconSetProperties properties;
    AnimationData animation;

  private:
    std::vector<IconImage> images_;
};

}  // namespace iw
