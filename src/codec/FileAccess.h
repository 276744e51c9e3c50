#pragma once
// Positioned reads on a C file, with 64-bit offsets on every platform.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

namespace iw {

// The file's size in bytes; nullopt when it cannot be found (not seekable).
std::optional<std::uint64_t> FileSize(std::FILE* file);
// Reads exactly `count` bytes at `position`; false on a seek error or a short read.
bool ReadAt(std::FILE* file, std::uint64_t position, void* buffer, std::size_t count);

// The whole file into `bytes`; false when it cannot be read, is larger than `maxBytes`
// or does not fit in memory.
bool ReadWholeFile(std::FILE* file, std::uint64_t maxBytes, std::vector<std::uint8_t>& bytes);

}  // namespace iw
