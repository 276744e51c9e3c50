#include <limits>

#include "platform/FileStreams.h"

namespace iw::platform {

std::FILE* OpenForReading(const std::filesystem::path& file) {
    return std::fopen(file.c_str(), "rb");
}

bool SeekTo(std::FILE* file, std::uint64_t position) {
    if (position > static_cast<std::uint64_t>(std::numeric_limits<off_t>::max())) return false;
    return fseeko(file, static_cast<off_t>(position), SEEK_SET) == 0;
}

std::optional<std::uint64_t> LengthOf(std::FILE* file) {
    if (fseeko(file, 0, SEEK_END) != 0) return std::nullopt;
    const off_t end = ftello(file);
    if (end < 0) return std::nullopt;
    return static_cast<std::uint64_t>(end);
}

}  // namespace iw::platform
