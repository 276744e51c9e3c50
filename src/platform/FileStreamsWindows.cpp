#include <limits>

#include "platform/FileStreams.h"

namespace iw::platform {

std::FILE* OpenForReading(const std::filesystem::path& file) {
    return _wfopen(file.c_str(), L"rb");
}

bool SeekTo(std::FILE* file, std::uint64_t position) {
    if (position > static_cast<std::uint64_t>(std::numeric_limits<__int64>::max())) return false;
    return _fseeki64(file, static_cast<__int64>(position), SEEK_SET) == 0;
}

std::optional<std::uint64_t> LengthOf(std::FILE* file) {
    if (_fseeki64(file, 0, SEEK_END) != 0) return std::nullopt;
    const __int64 end = _ftelli64(file);
    if (end < 0) return std::nullopt;
    return static_cast<std::uint64_t>(end);
}

}  // namespace iw::platform
