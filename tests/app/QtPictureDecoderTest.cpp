// The decoders lent by Qt: BMP and JPEG written here by Qt itself, a GIF built by hand, the
// limits checked before decoding, and broken data.

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

#include <vector>

#include "app/shared/QtPictureDecoder.h"
#include "document/io/PictureDecoder.h"

namespace iw {
namespace {

std::vector<std::uint8_t> Encode(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(QImageWriter(&buffer, format).write(image)) << format;
    return {bytes.begin(), bytes.end()};
}

QImage TestImage(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 20, y * 40, 200));
    }
    return image;
}

// A 2 x 1 GIF: a red and a transparent pixel (colour table red, black; index 1 transparent).
const std::vector<std::uint8_t> kTinyGif = {
    'G',  'I',  'F',  '8',  '9', 'a', 2, 0, 1, 0, 0x80, 0, 0,  // screen, 2-entry colour table
    255,  0,    0,    0,    0,   0,                            // red, black
    0x21, 0xF9, 4,    1,    0,   0,   1, 0,                    // transparent index 1
    0x2C, 0,    0,    0,    0,   2,   0, 1, 0, 0,              // image 2 x 1
    2,    2,    0x44, 0x01, 0,                                 // LZW: clear, 0, 1, end
    0x3B};

TEST(QtPictureDecoder, ReadsBmpJpegAndGif) {
    app::QtPictureDecoder decoder;
    for (PictureFormat format : {PictureFormat::Bmp, PictureFormat::Jpeg, PictureFormat::Gif})
        EXPECT_TRUE(decoder.Reads(format));
    EXPECT_FALSE(decoder.Reads(PictureFormat::Png));  // the core's own

    RgbaBuffer picture;
    const auto bmp = Encode(TestImage(7, 5), "bmp");
    ASSERT_EQ(DetectPictureFormat(bmp), PictureFormat::Bmp);
    ASSERT_EQ(decoder.Decode(bmp, PictureFormat::Bmp, PictureLimits(), picture),
              PictureDecodeStatus::Ok);
    ASSERT_EQ(picture.Width(), 7);
    EXPECT_EQ(picture.At(6, 4), (Rgba{120, 160, 200, 255}));

    const auto jpeg = Encode(TestImage(16, 8), "jpeg");
    ASSERT_EQ(decoder.Decode(jpeg, PictureFormat::Jpeg, PictureLimits(), picture),
              PictureDecodeStatus::Ok);
    EXPECT_EQ(picture.Height(), 8);
    EXPECT_NEAR(picture.At(8, 4).b, 200, 12);

    ASSERT_EQ(decoder.Decode(kTinyGif, PictureFormat::Gif, PictureLimits(), picture),
              PictureDecodeStatus::Ok);
    ASSERT_EQ(picture.Width(), 2);
    EXPECT_EQ(picture.At(0, 0), (Rgba{255, 0, 0, 255}));
    EXPECT_EQ(picture.At(1, 0).a, 0);
}

TEST(QtPictureDecoder, RefusesBeyondTheLimitsAndBrokenData) {
    app::QtPictureDecoder decoder;
    RgbaBuffer picture;
    const auto bmp = Encode(TestImage(40, 30), "bmp");
    EXPECT_EQ(decoder.Decode(bmp, PictureFormat::Bmp, {39, 100, 10000}, picture),
              PictureDecodeStatus::TooLarge);
    EXPECT_EQ(decoder.Decode(bmp, PictureFormat::Bmp, {100, 100, 1199}, picture),
              PictureDecodeStatus::TooLarge);
    // A header that claims 30000 x 30000 over a few bytes is refused (by Qt's own header
    // check, or by the limits) and nothing is decoded.
    auto huge = bmp;
    huge[18] = 0x30, huge[19] = 0x75, huge[22] = 0x30, huge[23] = 0x75;
    EXPECT_NE(decoder.Decode(huge, PictureFormat::Bmp, PictureLimits(), picture),
              PictureDecodeStatus::Ok);
    EXPECT_TRUE(picture.Empty());

    auto jpeg = Encode(TestImage(16, 8), "jpeg");
    jpeg.resize(20);
    EXPECT_EQ(decoder.Decode(jpeg, PictureFormat::Jpeg, PictureLimits(), picture),
              PictureDecodeStatus::Corrupt);
    // Bytes of another format are not guessed at: a BMP handed over as a JPEG fails.
    EXPECT_EQ(decoder.Decode(bmp, PictureFormat::Jpeg, PictureLimits(), picture),
              PictureDecodeStatus::Corrupt);
    EXPECT_EQ(decoder.Decode(bmp, PictureFormat::Png, PictureLimits(), picture),
              PictureDecodeStatus::Unsupported);
}

}  // namespace
}  // namespace iw
