#pragma once
// Saving never destroys data: the new content goes to a temporary file in the target's
// folder and is renamed over the target only when all of it was written and flushed.
// A failure at any point leaves the old file as it was and removes the temporary file.

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>

namespace iw {

class AtomicFile {
  public:
    AtomicFile() = default;
    ~AtomicFile();  // an uncommitted file is discarded
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    // Creates the temporary file beside `target`.
    bool Open(const std::filesystem::path& target);
    // Appends bytes; after the first failure every later call fails too.
    bool Write(std::span<const std::byte> bytes);
    bool Write(const void* data, std::size_t size);
    // Flushes to disk, gives the temporary file the target's permissions (when the target
    // exists) and renames it over the target.
    bool Commit();
    // Drops what was written; the target is untouched.
    void Discard();

    bool Failed() const { return failed_; }

  private:
    std::FILE* file_ = nullptr;
    std::filesystem::path target_;
    std::filesystem::path temp_;
    bool failed_ = false;
};

// Writes `bytes` as the whole new content of `target`, as above.
bool WriteFileAtomically(const std::filesystem::path& target, std::span<const std::byte> bytes);

}  // namespace iw
