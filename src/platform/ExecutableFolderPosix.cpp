#include "platform/ExecutableFolder.h"

namespace iw::platform {

std::filesystem::path ExecutableFolder() {
    std::error_code ec;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec) return {};
    return self.parent_path();
}

}  // namespace iw::platform
