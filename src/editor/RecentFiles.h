#pragma once
// The recent-files list: exactly four paths in the settings store, "Settings\RecentFile1"
// (newest) to "Settings\RecentFile4". An unused entry holds "NA" (or is empty).

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "services/core/XmlStore.h"

namespace iw {

inline constexpr int kRecentFileCount = 4;
inline constexpr std::string_view kNoRecentFile = "NA";

// Entry 1..4 ("NA" when unset).
std::string RecentFile(const XmlStore& store, int number);
std::array<std::string, kRecentFileCount> RecentFiles(const XmlStore& store);

// Adds a path to the top: equal to entry 1, nothing moves; equal to entry 2, entries 1 and 2
// swap; equal to entry 3, it moves to the top and 1 and 2 move down one; otherwise every
// entry moves down one (entry 4 is dropped) and the path becomes entry 1.
void AddRecentFile(XmlStore& store, const std::string& path);
// The recent-file menu items 2 to 4 first move their entry to the top (as AddRecentFile
// does with it) and then open entry 1. Returns the path to open ("NA" for an unset entry).
std::string MoveRecentFileToTop(XmlStore& store, int number);

// The menu's items: the set entries in order, with their numbers.
struct RecentMenuItem {
    int number;
    std::string path;
};
std::vector<RecentMenuItem> LoadRecentList(const XmlStore& store);

}  // namespace iw
