#include "editor/IconFormats.h"

#include <algorithm>
#include <numeric>

#include "editor/PixelPlot.h"

namespace iw {

IconFormat FormatOf(const IconInfo& info) {
    return {info.Width(), info.Height(), info.bitCount};
}

IconFormat FormatOf(const TemplateEntry& entry) {
    return {entry.Width(), entry.Height(), entry.bits};
}

IconImage BlankImage(const TemplateEntry& format) {
    IconImage image;
    image.info.widthMinus1 = format.widthMinus1;
    image.info.heightMinus1 = format.heightMinus1;
    image.info.bitCount = format.bits;
    image.info.png = format.compressed;
    // A fresh 32-bit image is fully transparent by its zero alpha; lower depths mark
    // transparency in plane 0, so every depth gets the marker.
    for (int x = 0; x < format.Width(); ++x) {
        for (int y = 0; y < format.Height(); ++y)
            image.Color(x, y) = TransparentColor;
    }
    return image;
}

bool ComesBefore(const IconFormat& a, const IconFormat& b) {
    const int areaA = a.width * a.height;
    const int areaB = b.width * b.height;
    if (areaA != areaB) return areaA > areaB;
    if (a.width != b.width) return a.width > b.width;
    return a.bits > b.bits;
}

bool InStandardOrder(const IconSet& set) {
    for (int i = 1; i < set.Count(); ++i) {
        if (ComesBefore(FormatOf(set.Info(i)), FormatOf(set.Info(i - 1)))) return false;
    }
    return true;
}

int StandardPosition(const IconSet& set, const IconFormat& format) {
    int index = 0;
    while (index < set.Count() && !ComesBefore(format, FormatOf(set.Info(index))))
        ++index;
    return index;
}

std::vector<int> SortIntoStandardOrder(IconSet& set) {
    std::vector<int> order(static_cast<std::size_t>(set.Count()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return ComesBefore(FormatOf(set.Info(a)), FormatOf(set.Info(b)));
    });
    std::vector<IconImage> images;
    for (int index : order)
        images.push_back(std::move(set.Image(index)));
    set.Clear();
    for (auto& image : images)
        set.InsertIcon(set.Count(), std::move(image));
    std::vector<int> newIndex(order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        newIndex[static_cast<std::size_t>(order[i])] = static_cast<int>(i);
    return newIndex;
}

bool IsBlank(const IconImage& image) {
    const bool alpha = image.info.bitCount == 32;
    for (int x = 0; x < ImageWidth(image); ++x) {
        for (int y = 0; y < ImageHeight(image); ++y) {
            if (image.Color(x, y) == TransparentColor) continue;
            if (alpha && image.Alpha(x, y) == 0) continue;
            return false;
        }
    }
    return true;
}

std::vector<std::vector<int>> FindDuplicates(const IconSet& set) {
    std::vector<std::vector<int>> groups;
    std::vector<bool> grouped(static_cast<std::size_t>(set.Count()), false);
    for (int i = 0; i < set.Count(); ++i) {
        if (grouped[static_cast<std::size_t>(i)]) continue;
        std::vector<int> group{i};
        for (int j = i + 1; j < set.Count(); ++j) {
            if (FormatOf(set.Info(j)) == FormatOf(set.Info(i))) {
                group.push_back(j);
                grouped[static_cast<std::size_t>(j)] = true;
            }
        }
        if (group.size() > 1) groups.push_back(std::move(group));
    }
    return groups;
}

std::vector<TemplateEntry> MissingFormats(const IconSet& set,
                                          const std::vector<TemplateEntry>& required) {
    std::vector<TemplateEntry> missing;
    for (const TemplateEntry& entry : required) {
        bool found = false;
        for (int i = 0; i < set.Count() && !found; ++i)
            found = FormatOf(set.Info(i)) == FormatOf(entry);
        const bool listed = std::any_of(missing.begin(), missing.end(), [&](const auto& m) {
            return FormatOf(m) == FormatOf(entry);
        });
        if (!found && !listed) missing.push_back(entry);
    }
    return missing;
}

std::vector<int> UnneededImages(const IconSet& set, const std::vector<TemplateEntry>& required) {
    std::vector<int> unneeded;
    for (int i = 0; i < set.Count(); ++i) {
        const bool listed = std::any_of(required.begin(), required.end(), [&](const auto& entry) {
            return FormatOf(entry) == FormatOf(set.Info(i));
        });
        if (!listed) unneeded.push_back(i);
    }
    return unneeded;
}

}  // namespace iw
