#pragma once
// Where the program's own data and the user's templates live.

#include <filesystem>

#include "platform/ExecutableFolder.h"

namespace iw {

// The folder of the running executable; empty when it cannot be found.
using platform::ExecutableFolder;

// The program's read-only templates: "Templates" beside the executable (a build tree), else
// "Templates" in the installed data folder, found from the executable's folder as the
// install laid them out ("../share/iconwright/Templates" from "bin").
// When neither exists, the installed path is returned (and the loader reports it missing).
std::filesystem::path ProgramTemplatesFolder(const std::filesystem::path& executableFolder);

// The user's templates: "Templates" in the per-user data folder (see DataFolder.h).
std::filesystem::path UserTemplatesFolder();
// The same, created with its parents when missing; empty when it cannot be made.
std::filesystem::path EnsureUserTemplatesFolder();

}  // namespace iw
