// An image takes memory at its first write and decodes a pending source at its first
// access; changing pixels always drops the PNG stream kept for saving.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "document/model/IconImage.h"

namespace iw {
namespace {

// Writes a recognisable pattern, or fails after scribbling, and counts its calls.
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

TEST(IconImageStorage, PlanesAreTakenAtTheFirstWriteOnly) {
    std::vector<IconImage> levels(40);  // as many as the undo history keeps
    for (const IconImage& level : levels) {
        EXPECT_EQ(level.At(255, 255, IconImage::AlphaPlane), 0);
        EXPECT_EQ(level.Row(7, IconImage::ColorPlane)[200], 0);
        EXPECT_FALSE(level.PlanesAllocated());
    }
    IconImage& image = levels[3];
    EXPECT_FALSE(image.Clone().PlanesAllocated());
    image.Color(4, 5) = 77;
    EXPECT_TRUE(image.PlanesAllocated());
    EXPECT_EQ(image.Clone().Color(4, 5), 77);
    IconImage moved = std::move(image);
    EXPECT_EQ(std::as_const(moved).Color(4, 5), 77);
    EXPECT_EQ(std::as_const(image).Color(4, 5), 0);  // NOLINT: a moved-from image reads blank
    moved.ClearPlanes();
    EXPECT_FALSE(moved.PlanesAllocated());
    EXPECT_EQ(std::as_const(moved).Color(4, 5), 0);
}

TEST(IconImageStorage, APendingDecodeRunsOnceAtTheFirstReadAndKeepsTheStream) {
    auto source = std::make_shared<FakeSource>(true);
    IconImage image = Pending(source);
    const IconImage copy = image.Clone();
    EXPECT_EQ(source->calls, 0);
    EXPECT_TRUE(copy.PixelsPending());

    const IconImage& view = image;
    EXPECT_EQ(view.Color(2, 3), 0x123456);
    EXPECT_EQ(view.Alpha(2, 3), 200);
    EXPECT_EQ(view.PlaneCells(IconImage::ColorPlane)[0], 0);
    EXPECT_EQ(source->calls, 1);
    EXPECT_EQ(image.OriginalPng(), (std::vector<std::uint8_t>{1, 2, 3}));
    EXPECT_EQ(copy.Alpha(2, 3), 200);  // the clone decodes on its own
    EXPECT_EQ(source->calls, 2);

    auto failing = std::make_shared<FakeSource>(false);
    const IconImage broken = Pending(failing);
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
    for (std::size_t n = 0; n < accesses.size(); ++n) {
        SCOPED_TRACE(n);
        auto source = std::make_shared<FakeSource>(true);
        IconImage image = Pending(source);
        accesses[n](image);
        EXPECT_TRUE(image.OriginalPng().empty());
        EXPECT_EQ(std::as_const(image).Color(2, 3), 0x123456);
        EXPECT_EQ(source->calls, 1);
        // Kept again (an undo that put the very pixels back), and dropped by the next change.
        image.KeepOriginalPng({4});
        image.Alpha(0, 0) = 1;
        EXPECT_TRUE(image.OriginalPng().empty());
    }
}

}  // namespace
}  // namespace iw
