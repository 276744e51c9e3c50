#pragma once
// Formats of the images of a set (size and colour depth): the standard order, duplicates,
// and when an image counts as blank.

#include <vector>

#include "document/model/IconSet.h"
#include "services/desktop/Template.h"

namespace iw {

struct IconFormat {
    int width = 0;
    int height = 0;
    int bits = 0;
    friend bool operator==(const IconFormat&, const IconFormat&) = default;
};

IconFormat FormatOf(const IconInfo& info);
IconFormat FormatOf(const TemplateEntry& entry);

// The standard order of a set: by size, largest first (by area, then width), then by depth,
// highest first. Largest-first is how Windows' own icons are laid out, so a reader that
// takes the first entry it can use gets the best image, and images of one size stay
// together.
bool ComesBefore(const IconFormat& a, const IconFormat& b);
bool InStandardOrder(const IconSet& set);
// The index at which an image of `format` keeps a sorted set sorted (after its equals).
int StandardPosition(const IconSet& set, const IconFormat& format);
// The set's images sorted into the standard order (stable: duplicates keep their order).
// Returns where each image went: result[old index] = new index.
std::vector<int> SortIntoStandardOrder(IconSet& set);

// A pixel is blank when it is transparent: the transparent marker, or in a 32-bit image an
// alpha of 0 (plane 1 means nothing at other depths). An image is blank when all its pixels
// are.
bool IsBlank(const IconImage& image);

// A new image of `format` (its sides, depth and compressed flag) with every pixel transparent.
IconImage BlankImage(const TemplateEntry& format);

// Groups of two or more images that share a format, each group in index order.
std::vector<std::vector<int>> FindDuplicates(const IconSet& set);

// The template's formats that no image of the set has.
std::vector<TemplateEntry> MissingFormats(const IconSet& set,
                                          const std::vector<TemplateEntry>& required);
// The images whose format the template does not list.
std::vector<int> UnneededImages(const IconSet& set, const std::vector<TemplateEntry>& required);

}  // namespace iw
