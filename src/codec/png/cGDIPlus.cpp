#include "codec/png/cGDIPlus.h"

namespace iw {

// This build has no GDI+: the program's own codecs do all the work.
bool cGDIPlus::isGDIplusOk() {
    return false;
}

bool cGDIPlus::LoadPictureFile(std::FILE*, c32bppDIB&, const DecodeLimits&) {
    return false;
}

bool cGDIPlus::LoadPictureStream(std::span<const std::uint8_t>, c32bppDIB&, const DecodeLimits&) {
    return false;
}

bool cGDIPlus::SaveToPNG(const c32bppDIB&, std::vector<std::uint8_t>&) {
    return false;
}

bool cGDIPlus::SaveToJPEG(const c32bppDIB&, int, std::vector<std::uint8_t>&) {
    return false;
}

}  // namespace iw
