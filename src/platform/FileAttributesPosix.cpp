#include "platform/FileAttributes.h"

namespace iw::platform {

bool ChangeFileAttributes(const std::filesystem::path&, unsigned, unsigned) {
    return true;
}

}  // namespace iw::platform
