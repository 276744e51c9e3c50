#pragma once
// Blocks of zero-filled pages from the system. A heap allocator would hand back reused
// memory that must be cleared by hand, touching every page of every block; fresh pages
// cost nothing until they are written.

#include <cstddef>

namespace iw::platform {

// A block of `bytes` (a whole number of pages) that reads zero everywhere. Throws
// std::bad_alloc when the system has none to give.
void* AllocateZeroedPages(std::size_t bytes);
// Gives back a block from AllocateZeroedPages of the same size. The block may be kept for
// a later allocation of that size, once it reads zero again.
void ReleaseZeroedPages(void* block, std::size_t bytes);

}  // namespace iw::platform
