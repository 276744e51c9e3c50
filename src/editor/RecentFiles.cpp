#include "editor/RecentFiles.h"

namespace iw {
namespace {

std::string Key(int number) {
    return "Settings\\RecentFile" + std::to_string(number);
}

bool Unset(const std::string& path) {
    return path.empty() || path == kNoRecentFile;
}

}  // namespace

std::string RecentFile(const XmlStore& store, int number) {
    if (number < 1 || number > kRecentFileCount) return std::string(kNoRecentFile);
    return store.GetValue(Key(number), kNoRecentFile);
}

std::array<std::string, kRecentFileCount> RecentFiles(const XmlStore& store) {
    std::array<std::string, kRecentFileCount> files;
    for (int i = 0; i < kRecentFileCount; ++i)
        files[static_cast<std::size_t>(i)] = RecentFile(store, i + 1);
    return files;
}

void AddRecentFile(XmlStore& store, const std::string& path) {
    if (Unset(path)) return;
    auto files = RecentFiles(store);
    std::array<std::string, kRecentFileCount> next;
    if (path == files[0]) {
        return;
    } else if (path == files[1]) {
        next = {files[1], files[0], files[2], files[3]};
    } else if (path == files[2]) {
        next = {files[2], files[0], files[1], files[3]};
    } else {
        next = {path, files[0], files[1], files[2]};
    }
    for (int i = 0; i < kRecentFileCount; ++i)
        store.SetValue(Key(i + 1), next[static_cast<std::size_t>(i)]);
}

std::string MoveRecentFileToTop(XmlStore& store, int number) {
    const std::string path = RecentFile(store, number);
    if (Unset(path)) return std::string(kNoRecentFile);
    AddRecentFile(store, path);
    return RecentFile(store, 1);
}

std::vector<RecentMenuItem> LoadRecentList(const XmlStore& store) {
    std::vector<RecentMenuItem> items;
    for (int i = 1; i <= kRecentFileCount; ++i) {
        std::string path = RecentFile(store, i);
        if (!Unset(path)) items.push_back({i, std::move(path)});
    }
    return items;
}

}  // namespace iw
