#include "document/model/IconImage.h"

#include <cstring>

#include "platform/PageMemory.h"

namespace iw {

std::int16_t& IconInfo::Field(int index) {
    switch (index) {
        case 0:
            return widthMinus1;
        case 1:
            return heightMinus1;
        case 2:
            return bitCount;
        case 3:
            return rate;
        default:
            return png;
    }
}

std::int16_t IconInfo::Field(int index) const {
    return const_cast<IconInfo*>(this)->Field(index);
}

namespace {

constexpr std::size_t kCellBytes = 2 * IconImage::kPlaneCells * sizeof(std::int32_t);

std::int32_t* AllocateZeroedCells() {
    return static_cast<std::int32_t*>(platform::AllocateZeroedPages(kCellBytes));
}

void ReleaseCells(std::int32_t* p) {
    platform::ReleaseZeroedPages(p, kCellBytes);
}

}  // namespace

void IconImage::FreeCells::operator()(std::int32_t* p) const {
    ReleaseCells(p);
}

IconImage::IconImage() : cells_(AllocateZeroedCells()) {}

IconImage IconImage::Clone() const {
    IconImage copy;
    copy.info = info;
    copy.originalPng = originalPng;
    std::memcpy(copy.cells_.get(), cells_.get(), kCellBytes);
    return copy;
}

void IconImage::ClearPlanes() {
    std::memset(cells_.get(), 0, kCellBytes);
}

}  // namespace iw
