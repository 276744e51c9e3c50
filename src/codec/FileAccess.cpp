#include "codec/FileAccess.h"

#include <limits>
#include <new>

namespace iw {
namespace {

bool SeekTo(std::FILE* file, std::uint64_t position) {
    if (position > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
        return false;
#ifdef _WIN32
    return _fseeki64(file, static_cast<__int64>(position), SEEK_SET) == 0;
#else
    return fseeko(file, static_cast<off_t>(position), SEEK_SET) == 0;
#endif
}

}  // namespace

std::optional<std::uint64_t> FileSize(std::FILE* file) {
#ifdef _WIN32
    if (_fseeki64(file, 0, SEEK_END) != 0) return std::nullopt;
    const __int64 end = _ftelli64(file);
#else
    if (fseeko(file, 0, SEEK_END) != 0) return std::nullopt;
    const off_t end = ftello(file);
#endif
    if (end < 0) return std::nullopt;
    return static_cast<std::uint64_t>(end);
}

bool ReadAt(std::FILE* file, std::uint64_t position, void* buffer, std::size_t count) {
    if (!SeekTo(file, position)) return false;
    return std::fread(buffer, 1, count, file) == count;
}

bool ReadWholeFile(std::FILE* file, std::uint64_t maxBytes, std::vector<std::uint8_t>& bytes) {
    bytes.clear();
    const auto size = FileSize(file);
    if (!size || *size > maxBytes || *size > std::numeric_limits<std::size_t>::max()) return false;
    try {
        bytes.resize(static_cast<std::size_t>(*size));
    } catch (const std::bad_alloc&) {
        bytes = {};
        return false;
    }
    if (!ReadAt(file, 0, bytes.data(), bytes.size())) {
        bytes = {};
        return false;
    }
    return true;
}

}  // namespace iw
