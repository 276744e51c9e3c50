#include "document/model/IconImage.h"

#include <cstring>
#include <new>

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

IconImage::IconImage()
    : cells_(static_cast<std::int32_t*>(std::calloc(2 * kPlaneCells, sizeof(std::int32_t)))) {
    if (!cells_) throw std::bad_alloc();
}

IconImage IconImage::Clone() const {
    IconImage copy;
    copy.info = info;
    copy.originalPng = originalPng;
    std::memcpy(copy.cells_.get(), cells_.get(), 2 * kPlaneCells * sizeof(std::int32_t));
    return copy;
}

void IconImage::ClearPlanes() {
    std::memset(cells_.get(), 0, 2 * kPlaneCells * sizeof(std::int32_t));
}

}  // namespace iw
