// An image takes memory at its first write and runs a pending decode at its first access;
// any mutable access to the pixels drops the PNG stream kept for saving.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include "document/model/IconImage.h"

namespace iw {
namespace {

// Writes one recognisable pixel (and fails afterwards when told to), counting its calls.
class FakeSource final : public IconImage::PendingPixels {
  public:
    explicit FakeSource(bool succeed) : succeed_(succeed) {}
    bool Decode(std::span<std::int32_t> colors, std::span<std::int32_t> alphas) const override {
        ++calls;
        colors[3 * IconImage::kSide + 2] = 0x123456;
        alphas[3 * IconImage::kSide + 2] = 200;
        return succeed_;
    }
    mutable int calls = 0;

  private:
    bool succeed_;
};

IconImage Pending(const std::shared_ptr<FakeSource>& source) {
    IconImage image;
    image.SetPendingPixels(source);
    image.KeepOriginalPng({1, 2, 3});
    return image;
}

TEST(IconImageStorage, PlanesAreTakenAtTheFirstWriteAndADecodeAtTheFirstRead) {
    const std::vector<IconImage> levels(40);  // as many as the undo history keeps
    for (const IconImage& level : levels) {
        EXPECT_EQ(level.At(255, 255, IconImage::AlphaPlane) | level.Row(7, 0)[200], 0);
        EXPECT_FALSE(level.PlanesAllocated() || level.Clone().PlanesAllocated());
    }

    auto source = std::make_shared<FakeSource>(true);
    const IconImage image = Pending(source);
    const IconImage copy = image.Clone();  // stays pending, sharing the source
    EXPECT_EQ(source->calls, 0);
    EXPECT_EQ(image.Color(2, 3), 0x123456);
    EXPECT_EQ(image.Alpha(2, 3) + copy.Alpha(2, 3), 400);
    EXPECT_EQ(source->calls, 2);
    EXPECT_EQ(image.OriginalPng().size(), 3u);  // reading keeps the stream

    const IconImage broken = Pending(std::make_shared<FakeSource>(false));
    EXPECT_EQ(broken.Color(2, 3), 0);  // nothing of a failed decode stays
    EXPECT_FALSE(broken.PlanesAllocated());
    EXPECT_EQ(broken.OriginalPng().size(), 3u);
}

TEST(IconImageStorage, EveryMutableAccessDecodesAndDropsTheStream) {
    const std::vector<std::function<void(IconImage&)>> accesses = {
        [](IconImage& i) { i.At(0, 0, IconImage::ColorPlane); },
        [](IconImage& i) { i.Color(9, 9); },
        [](IconImage& i) { i.Alpha(9, 9); },
        [](IconImage& i) { i.Row(0, IconImage::AlphaPlane); },
        [](IconImage& i) { i.PlaneCells(IconImage::ColorPlane); },
    };
    for (const auto& access : accesses) {
        IconImage image = Pending(std::make_shared<FakeSource>(true));
        access(image);
        EXPECT_TRUE(image.OriginalPng().empty());
        EXPECT_EQ(std::as_const(image).Color(2, 3), 0x123456);
        image.KeepOriginalPng({4});  // an undo that put the very pixels back
        image.Alpha(0, 0) = 1;
        EXPECT_TRUE(image.OriginalPng().empty());
    }
}

}  // namespace
}  // namespace iw
