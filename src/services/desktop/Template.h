#pragma once
// A template: a named list of icon formats from which a new icon set is made in one step.

#include <cstdint>
#include <string>
#include <vector>

namespace iw {

// One format of a template, kept as the icon set keeps its sides: less one.
struct TemplateEntry {
    std::int16_t widthMinus1 = 31;
    std::int16_t heightMinus1 = 31;
    std::int16_t bits = 32;       // 1, 4, 8, 24 or 32
    std::int16_t compressed = 0;  // 1: stored PNG-compressed
    int Width() const { return widthMinus1 + 1; }
    int Height() const { return heightMinus1 + 1; }
    friend bool operator==(const TemplateEntry&, const TemplateEntry&) = default;
};

inline constexpr std::string_view kLockedMark = "LOCKED";

struct IconTemplate {
    static constexpr int kMaxEntries = 65;

    std::string name;  // the file name less its last four characters
    std::string path;  // full path of the file
    std::string lock;  // "LOCKED" for the program's own templates, else empty
    std::vector<TemplateEntry> entries;

    bool Locked() const { return lock == kLockedMark; }
    std::string EntryCountText() const { return std::to_string(entries.size()); }
};

}  // namespace iw
