// The Photoshop reader on arbitrary bytes, every colour model accepted, within small
// limits. A file that decodes gives a picture of sides inside the limits; one that does not
// leaves the picture untouched.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "document/io/PsdReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr iw::DecodeLimits kLimits{2048, 2048, 1u << 20};
    iw::RgbaBuffer picture;
    const iw::PsdStatus status = iw::DecodePsd(std::span(data, size), kLimits, true, picture);
    if (status == iw::PsdStatus::Ok) {
        if (picture.Empty() || picture.Width() > 2048 || picture.Height() > 2048) std::abort();
    } else if (!picture.Empty()) {
        std::abort();
    }
    return 0;
}
