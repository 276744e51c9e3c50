#pragma once
// The file attributes of Windows file systems (Hidden, System). Other systems have none:
// there every call does nothing and succeeds.

#include <filesystem>

namespace iw::platform {

inline constexpr unsigned kAttributeHidden = 2;
inline constexpr unsigned kAttributeSystem = 4;
inline constexpr unsigned kAllAttributes = ~0u;

// Clears the attributes in `clear`, then sets those in `set`: (old & ~clear) | set.
// ChangeFileAttributes(file, 0, kAllAttributes) leaves the file with none.
bool ChangeFileAttributes(const std::filesystem::path& file, unsigned set, unsigned clear);

}  // namespace iw::platform
