// Opening pictures for import and conversion: the formats the core reads, the lent decoder,
// the Photoshop questions and messages, and the import into an image.

#include <gtest/gtest.h>

#include "PsdTestFiles.h"
#include "codec/png/PngCodec.h"
#include "document/io/PictureImport.h"
#include "document/io/PictureLoading.h"
#include "support/IcoBuilder.h"
#include "support/TestImages.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

using Keys = std::vector<std::string>;

// Records what it is asked and hands back a fixed picture.
class FakeDecoder final : public IPictureDecoder {
  public:
    bool Reads(PictureFormat format) const override { return format == PictureFormat::Jpeg; }
    PictureDecodeStatus Decode(std::span<const std::uint8_t>, PictureFormat format,
                               const DecodeLimits& limits, RgbaBuffer& picture) override {
        asked = format;
        maxPixels = limits.maxPixels;
        picture = RgbaBuffer(3, 2);
        return PictureDecodeStatus::Ok;
    }
    PictureFormat asked = PictureFormat::Unknown;
    std::uint64_t maxPixels = 0;
};

TEST(PictureLoading, PngComesThroughTheOwnCodecWithinTheLimits) {
    std::vector<std::uint8_t> rgba(5 * 4 * 4);
    for (std::size_t i = 0; i < rgba.size(); ++i)
        rgba[i] = static_cast<std::uint8_t>(i * 7);
    std::vector<std::uint8_t> png;
    ASSERT_TRUE(EncodePngStream(5, 4, rgba, png));
    test::MessageFixture messages;
    RgbaBuffer picture;
    ASSERT_EQ(DecodePicture(png, {}, messages.service, picture), PictureLoadStatus::Ok);
    EXPECT_TRUE(std::ranges::equal(picture.Bytes(), rgba));
    PictureLoadOptions tight;
    tight.limits = {4, 4, 16};
    EXPECT_EQ(DecodePicture(png, tight, messages.service, picture), PictureLoadStatus::Corrupt);
    EXPECT_EQ(picture.Width(), 5);  // left as it was
    EXPECT_TRUE(messages.presenter.shown.empty());
}

TEST(PictureLoading, AnIconGivesItsLargestDeepestImage) {
    auto entry = [](int side, int bits, std::uint8_t red) {
        test::BitmapSpec spec;
        spec.width = spec.height = side;
        spec.bitCount = bits;
        spec.palette.assign(256, test::Rgba{red, 0, 0, 255});
        spec.pixel = [=](int, int) {
            return test::Rgba{bits > 8 ? red : std::uint8_t{0}, 0, 0, 255};
        };
        return test::BitmapEntry(spec);
    };
    const auto file = test::BuildIconFile(
        {entry(16, 32, 1), entry(32, 8, 2), entry(32, 24, 3), entry(24, 32, 4)});
    test::MessageFixture messages;
    RgbaBuffer picture;
    ASSERT_EQ(DecodePicture(file, {}, messages.service, picture), PictureLoadStatus::Ok);
    EXPECT_EQ(picture.Width(), 32);
    EXPECT_EQ(picture.At(5, 5), (Rgba{3, 0, 0, 255}));
}

TEST(PictureLoading, OtherFormatsGoToTheLentDecoder) {
    const std::vector<std::uint8_t> jpeg = {0xFF, 0xD8, 0xFF, 0xE0, 0, 0};
    const std::vector<std::uint8_t> gif = {'G', 'I', 'F', '8', '9', 'a'};
    test::MessageFixture messages;
    RgbaBuffer picture;
    EXPECT_EQ(DecodePicture(jpeg, {}, messages.service, picture), PictureLoadStatus::Unsupported);
    FakeDecoder decoder;
    PictureLoadOptions options;
    options.decoder = &decoder;
    EXPECT_EQ(DecodePicture(gif, options, messages.service, picture),
              PictureLoadStatus::Unsupported);
    ASSERT_EQ(DecodePicture(jpeg, options, messages.service, picture), PictureLoadStatus::Ok);
    EXPECT_EQ(decoder.asked, PictureFormat::Jpeg);
    EXPECT_EQ(decoder.maxPixels, PictureLimits().maxPixels);
    EXPECT_EQ(picture.Width(), 3);
}

TEST(PictureLoading, PhotoshopFilesAskAndTell) {
    test::PsdSpec grey;
    grey.mode = 1;
    grey.channels = 1;
    for (MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
        test::MessageFixture messages;
        messages.presenter.answer = answer;
        RgbaBuffer picture;
        EXPECT_EQ(
            DecodePicture(test::BuildPsd(grey), {}, messages.service, picture),
            answer == MessageAnswer::Yes ? PictureLoadStatus::Ok : PictureLoadStatus::Declined);
        EXPECT_EQ(messages.presenter.Keys(), Keys{"PSDBadColor"});
        EXPECT_EQ(messages.presenter.shown[0].buttons, MessageButtons::YesNo);
    }
    test::CoreFixture f;
    auto broken = test::BuildPsd({});
    broken.pop_back();
    test::WriteFileBytes(f.dir / "broken.psd", broken);
    test::WriteFileBytes(f.dir / "text.png", {'n', 'o', 't', ' ', 'a', ' ', 'p', 'n', 'g'});
    RgbaBuffer picture;
    EXPECT_EQ(LoadPictureFile(f.dir / "broken.psd", {}, f.service, picture),
              PictureLoadStatus::Corrupt);
    EXPECT_EQ(LoadPictureFile(f.dir / "text.png", {}, f.service, picture),
              PictureLoadStatus::Unsupported);
    // The Photoshop message alone, not a second one; then the file's own.
    EXPECT_EQ(f.presenter.Keys(), (Keys{"UnableOpenPSD", "CorruptFile"}));
    EXPECT_TRUE(f.presenter.shown.back().text.ends_with("text.png"));
}

TEST(PictureImport, LargePicturesAskAndAreScaledDownToFit) {
    test::MessageFixture messages;
    messages.presenter.answer = MessageAnswer::No;
    EXPECT_TRUE(ConfirmLargeImport(RgbaBuffer(500, 500), messages.service));
    EXPECT_FALSE(ConfirmLargeImport(RgbaBuffer(501, 20), messages.service));
    EXPECT_EQ(messages.presenter.Keys(), Keys{"ImportPicture"});

    RgbaBuffer wide(64, 32);
    std::ranges::fill(wide.Pixels(), Rgba{10, 20, 30, 255});
    IconImage image = test::MakeImage(16, 16, 8);
    test::RecordingProgress progress;
    ImportPictureInto(image, wide, progress);
    EXPECT_EQ(progress.statuses, (Keys{"Importing Image...", ""}));
    // 16 x 8 centred: rows 4 to 11.
    EXPECT_EQ(
        std::tuple(image.Color(0, 3), image.Color(0, 4), image.Color(15, 11), image.Color(15, 12)),
        std::tuple(TransparentColor, PackColor(10, 20, 30), PackColor(10, 20, 30),
                   TransparentColor));
}

}  // namespace
}  // namespace iw
