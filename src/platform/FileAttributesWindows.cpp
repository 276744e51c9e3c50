#include <windows.h>

#include "platform/FileAttributes.h"

namespace iw::platform {

bool ChangeFileAttributes(const std::filesystem::path& file, unsigned set, unsigned clear) {
    const DWORD old = GetFileAttributesW(file.c_str());
    if (old == INVALID_FILE_ATTRIBUTES) return false;
    // The attributes SetFileAttributesW can change; the directory bit and the like are kept
    // out of the value it is given.
    constexpr DWORD kChangeable = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN |
                                  FILE_ATTRIBUTE_NOT_CONTENT_INDEXED | FILE_ATTRIBUTE_OFFLINE |
                                  FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_SYSTEM |
                                  FILE_ATTRIBUTE_TEMPORARY;
    DWORD value = (old & kChangeable & ~static_cast<DWORD>(clear)) | (set & kChangeable);
    if (value == 0) value = FILE_ATTRIBUTE_NORMAL;
    return SetFileAttributesW(file.c_str(), value) != 0;
}

}  // namespace iw::platform
