#pragma once
// Where the running program lies.

#include <filesystem>

namespace iw::platform {

// The folder of the running executable; empty when it cannot be found.
std::filesystem::path ExecutableFolder();

}  // namespace iw::platform
