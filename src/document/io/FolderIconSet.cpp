#include "document/io/FolderIconSet.h"

#include "document/io/PictureImport.h"

namespace iw {

void BuildFolderIconSet(const RgbaBuffer& picture, const FolderOverlay& overlay, IconSet& set) {
    StartPictureSet(set);
    std::array<RgbaBuffer, kFolderIconSides.size()> composed;
    for (std::size_t i = 0; i < kFolderIconSides.size(); ++i)
        composed[i] = ComposeFolderIcon(picture, overlay, kFolderIconSides[i]);
    for (const int depth : kFolderIconDepths) {
        for (const RgbaBuffer& pixels : composed)
            AddRgbaImage(set, pixels, depth, false);
    }
}

}  // namespace iw
