#pragma once
// The icon set the folder icon wizard makes: the composed folder at 16, 32 and 48 pixels,
// each in 16 colours, 256 colours and 32 bits with alpha.

#include <array>

#include "document/model/IconSet.h"
#include "imaging/FolderPicture.h"
#include "imaging/RgbaBuffer.h"

namespace iw {

inline constexpr std::array<int, 3> kFolderIconSides = {16, 32, 48};
inline constexpr std::array<int, 3> kFolderIconDepths = {4, 8, 32};

// Empties `set` and fills it, depth by depth, each depth from the smallest side up.
void BuildFolderIconSet(const RgbaBuffer& picture, const FolderOverlay& overlay, IconSet& set);

}  // namespace iw
