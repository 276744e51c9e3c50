#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <mutex>
#include <new>
#include <vector>

#include "platform/PageMemory.h"

namespace iw::platform {
namespace {

// Fresh pages cost a fault each on their first write, and unmapping a block costs as much
// again; for a set of small images that is most of the time a read takes. So a few freed
// blocks are kept for reuse. A block is only kept once every page of it reads zero again:
// pages in memory that are not zero are cleared (those are the ones an image was drawn
// into, so the clearing costs about what writing them did), and pages not in memory are
// handed back to the system, which makes them zero-fill again even if they had been
// swapped out.
class BlockPool {
  public:
    void* Take(std::size_t bytes) {
        std::lock_guard<std::mutex> lock(mutex_);
        for (std::size_t i = free_.size(); i-- > 0;) {
            if (free_[i].bytes != bytes) continue;
            const Kept kept = free_[i];
            free_.erase(free_.begin() + static_cast<std::ptrdiff_t>(i));
            keptBytes_ -= kept.residentBytes;
            return kept.block;
        }
        return nullptr;
    }

    // True when the pool took the block; otherwise the caller unmaps it.
    bool Give(void* block, std::size_t bytes) {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            if (free_.size() >= kMaxBlocks) return false;
        }
        std::size_t resident = 0;
        if (!ClearToZero(static_cast<std::uint8_t*>(block), bytes, resident)) return false;
        std::lock_guard<std::mutex> lock(mutex_);
        if (free_.size() >= kMaxBlocks || keptBytes_ + resident > kMaxResidentBytes) return false;
        free_.push_back({block, bytes, resident});
        keptBytes_ += resident;
        return true;
    }

  private:
    struct Kept {
        void* block;
        std::size_t bytes;
        std::size_t residentBytes;
    };
    static constexpr std::size_t kMaxBlocks = 32;
    static constexpr std::size_t kMaxResidentBytes = std::size_t{8} << 20;

    // Stops at the first run of 256 bytes with a set bit: a page that was drawn into
    // usually shows it early.
    static bool IsZero(const std::uint8_t* page, std::size_t bytes) {
        constexpr std::size_t kRun = 256;
        for (std::size_t at = 0; at < bytes; at += kRun) {
            std::uint64_t any = 0;
            for (std::size_t i = 0; i < kRun; i += 8) {
                std::uint64_t word;
                std::memcpy(&word, page + at + i, 8);
                any |= word;
            }
            if (any != 0) return false;
        }
        return true;
    }

    static bool ClearToZero(std::uint8_t* block, std::size_t bytes, std::size_t& resident) {
        static const std::size_t pageBytes = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        if (pageBytes == 0 || bytes % pageBytes != 0) return false;
        const std::size_t pages = bytes / pageBytes;
#ifdef __APPLE__
        std::vector<char> inCore(pages);
#else
        std::vector<unsigned char> inCore(pages);
#endif
        if (mincore(block, bytes, inCore.data()) != 0) return false;
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

BlockPool& Pool() {
    // Never destroyed: blocks in static storage may be released after it would be.
    static BlockPool* const pool = new BlockPool;
    return *pool;
}

}  // namespace

void* AllocateZeroedPages(std::size_t bytes) {
    if (void* kept = Pool().Take(bytes)) return kept;
    void* p = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p == MAP_FAILED) throw std::bad_alloc();
    return p;
}

void ReleaseZeroedPages(void* block, std::size_t bytes) {
    if (!Pool().Give(block, bytes)) munmap(block, bytes);
}

}  // namespace iw::platform
