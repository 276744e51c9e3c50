// Deterministic mutation: every byte of a few small valid files flipped, and every file cut
// at every length, with the loaded zlib and with the own inflate; and the fuzz findings.
// Each load must end cleanly: an image of the header's size, or a failure with the target
// destroyed.

#include <gtest/gtest.h>

#include <optional>

#include "PngTestHelpers.h"
#include "codec/png/cPNGParser.h"
#include "codec/zlib/Compression.h"
#include "support/TestSupport.h"

namespace iw::test {
namespace {

// Loads with the icon-entry limits and checks that the outcome is consistent.
bool LoadsCleanly(const std::vector<std::uint8_t>& bytes) {
    c32bppDIB image;
    image.InitializeDIB(2, 2);
    cPNGParser parser;
    std::int32_t width = 0, height = 0;
    const bool ok =
        parser.LoadStream(bytes, 0, bytes.size(), image, width, height, IconEntryLimits());
    if (!ok) return image.Empty() && parser.LastError() != PngError::None;
    return width == image.Width() && height == image.Height() && width > 0 && width <= 256 &&
           height > 0 && height <= 256 && image.ImageType() == ImageFormat::Png;
}

class PngMutation : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        if (GetParam()) ownInflate_.emplace();
    }
    std::optional<ScopedZlibDisabled> ownInflate_;
};

TEST_P(PngMutation, EveryFlippedByteAndEveryCutEndsCleanly) {
    int loads = 0;
    for (const char* name : {"basn0g01.png", "basi0g04.png", "basi3p02.png", "tbbn3p08.png",
                             "basn4a16.png", "s03i3p01.png", "f04n2c08.png"}) {
        const auto file = TestDataPath(std::string("pngsuite/png/") + name);
        const auto original = ReadFileBytes(file);
        for (std::size_t i = 0; i < original.size(); ++i) {
            for (std::uint8_t flip : {0x01, 0x80, 0xFF}) {
                auto mutated = original;
                mutated[i] ^= flip;
                ASSERT_TRUE(LoadsCleanly(mutated)) << name << " byte " << i << " ^ " << int{flip};
                ++loads;
            }
        }
        for (std::size_t length = 0; length < original.size(); ++length) {
            const std::vector<std::uint8_t> cut(
                original.begin(), original.begin() + static_cast<std::ptrdiff_t>(length));
            ASSERT_TRUE(LoadsCleanly(cut)) << name << " cut at " << length;
            ++loads;
        }
    }
    EXPECT_GT(loads, 5000);
}

// Every input a fuzzer found to break a decoder once, whichever decoder it was.
TEST_P(PngMutation, FuzzFindingsLoadCleanly) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TestDataPath("crashers"))) {
        EXPECT_TRUE(LoadsCleanly(ReadFileBytes(entry.path()))) << entry.path().filename();
        ++files;
    }
    EXPECT_GE(files, 1);
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutZlib, PngMutation, testing::Bool(),
                         [](const auto& param) { return param.param ? "OwnInflate" : "Zlib"; });

}  // namespace
}  // namespace iw::test
