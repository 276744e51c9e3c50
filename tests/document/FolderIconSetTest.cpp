// The folder icon wizard's set: every side at every depth, from the composed pictures.
#include <gtest/gtest.h>

#include "document/io/FolderIconSet.h"
#include "imaging/ImageRgbaPixels.h"

namespace iw {
namespace {

TEST(FolderIconSet, HoldsEachSideAtEachDepthFromTheComposedPicture) {
    RgbaBuffer picture(8, 8);
    for (Rgba& p : picture.Pixels())
        p = {0, 160, 0, 255};
    FolderOverlay overlay;
    overlay.angle = 30;
    IconSet set;
    set.AddIcon(99, 99, 24);  // what was there goes
    BuildFolderIconSet(picture, overlay, set);
    ASSERT_EQ(set.Count(), 9);
    for (int i = 0; i < set.Count(); ++i) {
        const int side = kFolderIconSides[static_cast<std::size_t>(i % 3)];
        EXPECT_EQ(set.Info(i).widthMinus1 + 1, side) << i;
        EXPECT_EQ(set.Info(i).heightMinus1 + 1, side) << i;
        EXPECT_EQ(set.Info(i).bitCount, kFolderIconDepths[static_cast<std::size_t>(i / 3)]) << i;
    }
    EXPECT_EQ(ReadImageRgba(set.Image(8)), ComposeFolderIcon(picture, overlay, 48));
}

}  // namespace
}  // namespace iw
