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

// Reads of an image with no cells of its own land here. It is never written, so its pages
// all map the system's one zero page.
const std::int32_t* ZeroCells() {
    alignas(64) static std::int32_t zeros[2 * IconImage::kPlaneCells];
    return zeros;
}

}  // namespace

const std::vector<std::uint8_t> IconImage::kNoBytes;

void IconImage::FreeCells::operator()(std::int32_t* p) const {
    ReleaseCells(p);
}

IconImage::IconImage() {
    Refresh();
}

IconImage::~IconImage() = default;

IconImage::IconImage(IconImage&& other) noexcept
    : info(other.info),
      cells_(std::move(other.cells_)),
      source_(std::move(other.source_)),
      originalPng_(std::move(other.originalPng_)) {
    Refresh();
    other.Refresh();
}

IconImage& IconImage::operator=(IconImage&& other) noexcept {
    if (this != &other) {
        info = other.info;
        cells_ = std::move(other.cells_);
        source_ = std::move(other.source_);
        originalPng_ = std::move(other.originalPng_);
        Refresh();
        other.Refresh();
    }
    return *this;
}

void IconImage::Refresh() const {
    if (source_) {
        read_ = nullptr;
    } else {
        read_ = cells_ ? cells_.get() : ZeroCells();
    }
    write_ = !source_ && cells_ && !originalPng_ ? cells_.get() : nullptr;
}

const std::int32_t* IconImage::Resolve() const {
    // Single-threaded by design: the one user-interface thread owns the set.
    if (std::shared_ptr<const PendingPixels> source = std::move(source_)) {
        cells_.reset(AllocateZeroedCells());
        std::span<std::int32_t> all(cells_.get(), 2 * static_cast<std::size_t>(kPlaneCells));
        if (!source->Decode(all.first(kPlaneCells), all.last(kPlaneCells))) {
            cells_.reset();  // whatever the decode left behind goes; the image stays blank
        }
    }
    Refresh();
    return read_;
}

std::int32_t* IconImage::MakeWritable() {
    if (source_) Resolve();
    if (!cells_) cells_.reset(AllocateZeroedCells());
    originalPng_.reset();
    Refresh();
    return write_;
}

IconImage IconImage::Clone() const {
    IconImage copy;
    copy.info = info;
    copy.source_ = source_;
    copy.originalPng_ = originalPng_;
    if (cells_) {
        copy.cells_.reset(AllocateZeroedCells());
        std::memcpy(copy.cells_.get(), cells_.get(), kCellBytes);
    }
    copy.Refresh();
    return copy;
}

void IconImage::ClearPlanes() {
    cells_.reset();
    source_.reset();
    originalPng_.reset();
    Refresh();
}

void IconImage::SetPendingPixels(std::shared_ptr<const PendingPixels> source) {
    cells_.reset();
    source_ = std::move(source);
    Refresh();
}

void IconImage::KeepOriginalPng(SharedBytes bytes) {
    originalPng_ = bytes && !bytes->empty() ? std::move(bytes) : nullptr;
    Refresh();
}

void IconImage::KeepOriginalPng(std::vector<std::uint8_t> bytes) {
    KeepOriginalPng(std::make_shared<const std::vector<std::uint8_t>>(std::move(bytes)));
}

void IconImage::DropOriginalPng() {
    originalPng_.reset();
    Refresh();
}

}  // namespace iw
