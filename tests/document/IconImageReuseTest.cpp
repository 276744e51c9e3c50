// Image storage is reused after an image is freed: a new image still reads zero in every
// cell, whatever the one before it held.

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "document/model/IconImage.h"

namespace iw {
namespace {

bool AllZero(const IconImage& image) {
    for (int plane : {IconImage::ColorPlane, IconImage::AlphaPlane}) {
        for (std::int32_t cell : image.PlaneCells(plane)) {
            if (cell != 0) return false;
        }
    }
    return true;
}

TEST(IconImageReuse, ANewImageReadsZeroAfterFreedImagesWereDrawnInto) {
    for (int round = 0; round < 3; ++round) {
        std::vector<IconImage> images;
        for (int i = 0; i < 40; ++i) {
            images.emplace_back();
            images.back().At(0, 0, IconImage::ColorPlane) = 0;  // takes its block
            EXPECT_TRUE(AllZero(images.back())) << "round " << round << " image " << i;
        }
        for (std::size_t i = 0; i < images.size(); ++i) {
            IconImage& image = images[i];
            const int side = 1 + static_cast<int>(i * 37 % 200);
            for (int y = 0; y < side; ++y) {
                for (int x = 0; x < side; ++x) {
                    image.Color(x, y) = x * 3 + y + 1;
                    image.Alpha(x, y) = 255;
                }
            }
            // A lone cell far from the drawn corner, and one only read.
            image.At(255, 255, IconImage::AlphaPlane) = -1;
            EXPECT_EQ(image.At(200, 3, IconImage::ColorPlane), 0);
        }
    }
    // A whole image and its copy freed: the next image made reads zero.
    IconImage full;
    for (int plane : {IconImage::ColorPlane, IconImage::AlphaPlane})
        std::ranges::fill(full.PlaneCells(plane), 7);
    IconImage clone = full.Clone();
    full = IconImage();
    clone = IconImage();
    IconImage fresh;
    fresh.Alpha(0, 0) = 0;
    EXPECT_TRUE(AllZero(fresh));
}

}  // namespace
}  // namespace iw
