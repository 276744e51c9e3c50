#pragma once
// Helpers for the tests of the conversion, the PNG export and the favicon.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "codec/png/PngCodec.h"
#include "document/model/IconImage.h"
#include "imaging/RgbaBuffer.h"
#include "support/TestSupport.h"

namespace iw::test {

inline RgbaBuffer Flat(int width, int height, Rgba color) {
    RgbaBuffer buffer(width, height);
    for (Rgba& p : buffer.Pixels())
        p = color;
    return buffer;
}

inline IconInfo Format(int side, int bits, bool png = false) {
    IconInfo info;
    info.widthMinus1 = info.heightMinus1 = static_cast<std::int16_t>(side - 1);
    info.bitCount = static_cast<std::int16_t>(bits);
    info.png = png ? 1 : 0;
    return info;
}

inline RgbaBuffer ReadPng(const std::filesystem::path& file) {
    RgbaImage image;
    EXPECT_TRUE(DecodePngStream(test::ReadFileBytes(file), image, PictureLimits())) << file;
    RgbaBuffer buffer(image.width, image.height);
    std::copy(image.rgba.begin(), image.rgba.end(),
              reinterpret_cast<std::uint8_t*>(buffer.Pixels().data()));
    return buffer;
}

}  // namespace iw::test
