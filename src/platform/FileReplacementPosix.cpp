#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "platform/FileReplacement.h"

namespace iw::platform {

std::FILE* CreateNewFile(const std::filesystem::path& file, bool& nameTaken) {
    const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    nameTaken = fd < 0 && errno == EEXIST;
    if (fd < 0) return nullptr;
    std::FILE* stream = ::fdopen(fd, "wb");
    if (!stream) ::close(fd);
    return stream;
}

bool FlushToDisk(std::FILE* file) {
    if (std::fflush(file) != 0) return false;
    return fsync(fileno(file)) == 0;
}

}  // namespace iw::platform
