#pragma once
// C files opened by path and positioned with 64-bit offsets on every platform.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>

namespace iw::platform {

// Opens `file` for binary reading; nullptr on failure.
std::FILE* OpenForReading(const std::filesystem::path& file);
// Moves to `position` bytes from the start; false past what the platform can seek.
bool SeekTo(std::FILE* file, std::uint64_t position);
// The file's length (it is left positioned at its end); nullopt when it is not seekable.
std::optional<std::uint64_t> LengthOf(std::FILE* file);

}  // namespace iw::platform
