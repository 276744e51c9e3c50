#include <io.h>

#include <cerrno>

#include "platform/FileReplacement.h"

namespace iw::platform {

std::FILE* CreateNewFile(const std::filesystem::path& file, bool& nameTaken) {
    std::FILE* stream = _wfopen(file.c_str(), L"wbx");
    nameTaken = !stream && errno == EEXIST;
    return stream;
}

bool FlushToDisk(std::FILE* file) {
    if (std::fflush(file) != 0) return false;
    return _commit(_fileno(file)) == 0;
}

}  // namespace iw::platform
