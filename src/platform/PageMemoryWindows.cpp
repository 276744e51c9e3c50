#include <windows.h>

#include <new>

#include "platform/PageMemory.h"

namespace iw::platform {

void* AllocateZeroedPages(std::size_t bytes) {
    void* p = VirtualAlloc(nullptr, bytes, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (!p) throw std::bad_alloc();
    return p;
}

void ReleaseZeroedPages(void* block, std::size_t) {
    VirtualFree(block, 0, MEM_RELEASE);
}

}  // namespace iw::platform
