#include "document/model/IconImage.h"

#include <cstring>
#include <new>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#endif

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

// Zero-filled pages from the system. (A heap allocator would hand back reused memory that
// it must clear by hand, touching every page of every image.)
std::int32_t* AllocateZeroedCells() {
#ifdef _WIN32
    void* p = VirtualAlloc(nullptr, kCellBytes, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
#else
    void* p = mmap(nullptr, kCellBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p == MAP_FAILED) p = nullptr;
#endif
    if (!p) throw std::bad_alloc();
    return static_cast<std::int32_t*>(p);
}

}  // namespace

void IconImage::FreeCells::operator()(std::int32_t* p) const {
#ifdef _WIN32
    VirtualFree(p, 0, MEM_RELEASE);
#else
    munmap(p, kCellBytes);
#endif
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
