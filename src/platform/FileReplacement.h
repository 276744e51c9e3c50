#pragma once
// The platform's part of replacing a file safely: a new file that may not exist yet, and
// a flush that reaches the disk before the file is renamed over its target.

#include <cstdio>
#include <filesystem>

namespace iw::platform {

// Creates `file` for binary writing; fails when the name exists already. On failure
// `nameTaken` tells whether that was the reason (another name may then be tried).
std::FILE* CreateNewFile(const std::filesystem::path& file, bool& nameTaken);
// Flushes the C library's buffer and the system's cache of `file` to the disk.
bool FlushToDisk(std::FILE* file);

}  // namespace iw::platform
