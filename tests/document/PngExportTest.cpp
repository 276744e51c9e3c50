// Export: every image as a PNG file as it shows, and no silent replacing.

#include <gtest/gtest.h>

#include "PictureTestHelpers.h"
#include "document/io/PngExport.h"
#include "imaging/ImageRgbaPixels.h"

namespace iw {
namespace {

using test::ReadPng;
using Fixture = test::CoreFixture;

TEST(PngExport, EveryImageAsItShowsAndNoSilentReplacing) {
    Fixture f;
    IconSet set;
    set.AddIcon(15, 15, 4);
    set.AddIcon(31, 7, 32);
    set.Image(0).Color(3, 3) = InverseColor;
    set.Image(1).Color(30, 6) = PackColor(1, 2, 3);
    set.Image(1).Alpha(30, 6) = 99;
    const ExportResult result = ExportImagesPng(set, f.dir.Path(), "icon-");
    ASSERT_TRUE(result.Ok());
    EXPECT_EQ(result.written, 2);
    for (int i = 0; i < 2; ++i) {
        const RgbaBuffer written = ReadPng(f.dir / ("icon-" + std::to_string(i) + ".png"));
        EXPECT_TRUE(std::ranges::equal(written.Bytes(), ReadImageRgba(set.Image(i)).Bytes())) << i;
    }
    const auto before = test::ReadFileBytes(f.dir / "icon-0.png");
    EXPECT_FALSE(ExportImagePng(set.Image(1), f.dir / "icon-0.png", false));
    EXPECT_EQ(test::ReadFileBytes(f.dir / "icon-0.png"), before);
    EXPECT_TRUE(ExportImagePng(set.Image(1), f.dir / "icon-0.png", true));
    EXPECT_FALSE(ExportImagesPng(set, f.dir / "missing" / "folder").Ok());
}

}  // namespace
}  // namespace iw
