#include "document/model/IconImage.h"

#include <cstring>
#include <new>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>

#include <mutex>
#include <vector>
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

#ifdef _WIN32

// Zero-filled pages from the system. (A heap allocator would hand back reused memory that
// it must clear by hand, touching every page of every image.)
std::int32_t* AllocateZeroedCells() {
    void* p = VirtualAlloc(nullptr, kCellBytes, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (!p) throw std::bad_alloc();
    return static_cast<std::int32_t*>(p);
}

void ReleaseCells(std::int32_t* p) {
    VirtualFree(p, 0, MEM_RELEASE);
}

#else

// Fresh pages cost a fault each on their first write, and unmapping a block costs as much
// again; for a set of small images that is most of the time a read takes. So a few freed
// blocks are kept for reuse. A block is only kept once every page of it reads zero again:
// pages in memory that are not zero are cleared (those are the ones an image was drawn
// into, so the clearing costs about what writing them did), and pages not in memory are
// handed back to the system, which makes them zero-fill again even if they had been
// swapped out.
class CellPool {
  public:
    std::int32_t* Take() {
        std::lock_guard<std::mutex> lock(mutex_);
        if (free_.empty()) return nullptr;
        Kept kept = free_.back();
        free_.pop_back();
        keptBytes_ -= kept.residentBytes;
        return kept.cells;
    }

    // True when the pool took the block; otherwise the caller unmaps it.
    bool Give(std::int32_t* cells) {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            if (free_.size() >= kMaxBlocks) return false;
        }
        std::size_t resident = 0;
        if (!ClearToZero(reinterpret_cast<std::uint8_t*>(cells), resident)) return false;
        std::lock_guard<std::mutex> lock(mutex_);
        if (free_.size() >= kMaxBlocks || keptBytes_ + resident > kMaxResidentBytes) return false;
        free_.push_back({cells, resident});
        keptBytes_ += resident;
        return true;
    }

  private:
    struct Kept {
        std::int32_t* cells;
        std::size_t residentBytes;
    };
    static constexpr std::size_t kMaxBlocks = 32;
    static constexpr std::size_t kMaxResidentBytes = std::size_t{8} << 20;

    // Stops at the first block with a set bit: a page that was drawn into usually shows
    // it early.
    static bool IsZero(const std::uint8_t* page, std::size_t bytes) {
        constexpr std::size_t kBlock = 256;
        for (std::size_t at = 0; at < bytes; at += kBlock) {
            std::uint64_t any = 0;
            for (std::size_t i = 0; i < kBlock; i += 8) {
                std::uint64_t word;
                std::memcpy(&word, page + at + i, 8);
                any |= word;
            }
            if (any != 0) return false;
        }
        return true;
    }

    static bool ClearToZero(std::uint8_t* block, std::size_t& resident) {
        static const std::size_t pageBytes = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        if (pageBytes == 0 || kCellBytes % pageBytes != 0) return false;
        const std::size_t pages = kCellBytes / pageBytes;
#ifdef __APPLE__
        std::vector<char> inCore(pages);
#else
        std::vector<unsigned char> inCore(pages);
#endif
        if (mincore(block, kCellBytes, inCore.data()) != 0) return false;
        std::size_t gapStart = pages;  // first page of the current run of pages not in memory
        for (std::size_t i = 0; i <= pages; ++i) {
            const bool present = i < pages && (inCore[i] & 1) != 0;
            if (!present && i < pages) {
                if (gapStart == pages) gapStart = i;
                continue;
            }
            if (gapStart != pages) {
                if (madvise(block + gapStart * pageBytes, (i - gapStart) * pageBytes,
                            MADV_DONTNEED) != 0) {
                    return false;
                }
                gapStart = pages;
            }
            if (i == pages) break;
            std::uint8_t* page = block + i * pageBytes;
            // A page only read maps the shared zero page; writing it would fault in a page
            // of its own, so pages already zero are left alone.
            if (!IsZero(page, pageBytes)) std::memset(page, 0, pageBytes);
            resident += pageBytes;
        }
        return true;
    }

    std::mutex mutex_;
    std::vector<Kept> free_;
    std::size_t keptBytes_ = 0;
};

CellPool& Pool() {
    // Never destroyed: images in static storage may be freed after it would be.
    static CellPool* const pool = new CellPool;
    return *pool;
}

std::int32_t* AllocateZeroedCells() {
    if (std::int32_t* kept = Pool().Take()) return kept;
    void* p = mmap(nullptr, kCellBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p == MAP_FAILED) throw std::bad_alloc();
    return static_cast<std::int32_t*>(p);
}

void ReleaseCells(std::int32_t* p) {
    if (!Pool().Give(p)) munmap(p, kCellBytes);
}

#endif

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
