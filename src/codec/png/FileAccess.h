#pragma once
// Positioned reads on a C file, with 64-bit offsets on every platform (see
// platform/FileStreams.h for the file's length).

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace iw {

// Reads exactly `count` bytes at `position`; false on a seek error or a short read.
bool ReadAt(std::FILE* file, std::uint64_t position, void* buffer, std::size_t count);

// The whole file into `bytes`; false when it cannot be read, is larger than `maxBytes`
// or does not fit in memory.
bool ReadWholeFile(std::FILE* file, std::uint64_t maxBytes, std::vector<std::uint8_t>& bytes);

}  // namespace iw
