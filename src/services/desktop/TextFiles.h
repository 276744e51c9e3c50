#pragma once
// The small text files the desktop services edit (mimeapps.list, desktop entries,
// "desktop.ini", ".directory"): read whole with a bound, and written safely only when
// their text changes.

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace iw {

// Files of this kind are a few kilobytes; one larger than this is not edited.
inline constexpr std::size_t kMaxEditedTextBytes = 1 << 20;

struct TextFileRead {
    enum class Status { Read, Missing, Failed } status = Status::Missing;
    std::string text;  // empty unless Read
};

// Reads `file` whole. Missing when there is no such file; Failed when it cannot be read,
// is not a regular file or is larger than `maxBytes`.
TextFileRead ReadTextFile(const std::filesystem::path& file,
                          std::size_t maxBytes = kMaxEditedTextBytes);

// Writes `text` as the whole of `file` through a temporary file renamed over it. A file that
// holds `text` already is left alone (its time stamp too). A symbolic link is followed, so
// that the file it names is replaced and the link stays. True when the file holds `text`.
bool WriteTextFileIfChanged(const std::filesystem::path& file, std::string_view text);

}  // namespace iw
