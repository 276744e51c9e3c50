#include "codec/png/FileAccess.h"

#include <limits>
#include <new>

#include "platform/FileStreams.h"

namespace iw {

bool ReadAt(std::FILE* file, std::uint64_t position, void* buffer, std::size_t count) {
    if (!platform::SeekTo(file, position)) return false;
    return std::fread(buffer, 1, count, file) == count;
}

bool ReadWholeFile(std::FILE* file, std::uint64_t maxBytes, std::vector<std::uint8_t>& bytes) {
    bytes.clear();
    const auto size = platform::LengthOf(file);
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
