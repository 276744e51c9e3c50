#include "services/core/AtomicFile.h"

#include <atomic>
#include <chrono>

#include "platform/FileReplacement.h"

namespace iw {
namespace {

std::filesystem::path TempNameBeside(const std::filesystem::path& target, int attempt) {
    static std::atomic<unsigned> counter{0};
    auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
    std::string name = "." + target.filename().string() + ".iw" +
                       std::to_string((static_cast<unsigned long long>(stamp) ^
                                       (counter.fetch_add(1) * 2654435761u)) %
                                      1000000007ull) +
                       "-" + std::to_string(attempt) + ".tmp";
    return target.parent_path() / name;
}

// A link is kept: the file it leads to is the one replaced, beside itself.
std::filesystem::path FileBehindLinks(const std::filesystem::path& target) {
    std::error_code ec;
    if (!std::filesystem::is_symlink(target, ec)) return target;
    std::filesystem::path real = std::filesystem::weakly_canonical(target, ec);
    return ec ? target : real;
}

}  // namespace

AtomicFile::~AtomicFile() {
    Discard();
}

bool AtomicFile::Open(const std::filesystem::path& requested) {
    Discard();
    const std::filesystem::path target = FileBehindLinks(requested);
    target_ = target;
    failed_ = false;
    for (int attempt = 0; attempt < 16; ++attempt) {
        std::filesystem::path candidate = TempNameBeside(target, attempt);
        bool nameTaken = false;
        file_ = platform::CreateNewFile(candidate, nameTaken);
        if (file_) {
            temp_ = candidate;
            return true;
        }
        if (!nameTaken) break;
    }
    failed_ = true;
    return false;
}

bool AtomicFile::Write(const void* data, std::size_t size) {
    if (failed_ || !file_) {
        failed_ = true;
        return false;
    }
    if (size == 0) return true;
    if (std::fwrite(data, 1, size, file_) != size) {
        failed_ = true;
        return false;
    }
    return true;
}

bool AtomicFile::Write(std::span<const std::byte> bytes) {
    return Write(bytes.data(), bytes.size());
}

bool AtomicFile::Commit() {
    if (failed_ || !file_) {
        Discard();
        return false;
    }
    bool ok = platform::FlushToDisk(file_);
    ok = (std::fclose(file_) == 0) && ok;
    file_ = nullptr;
    if (!ok) {
        failed_ = true;
        Discard();
        return false;
    }
    std::error_code ec;
    auto status = std::filesystem::status(target_, ec);
    if (!ec && std::filesystem::exists(status)) {
        std::filesystem::permissions(temp_, status.permissions(),
                                     std::filesystem::perm_options::replace, ec);
    }
    std::filesystem::rename(temp_, target_, ec);
    if (ec) {
        failed_ = true;
        Discard();
        return false;
    }
    temp_.clear();
    return true;
}

void AtomicFile::Discard() {
    if (file_) {
        std::fclose(file_);
        file_ = nullptr;
    }
    if (!temp_.empty()) {
        std::error_code ec;
        std::filesystem::remove(temp_, ec);
        temp_.clear();
    }
}

bool WriteFileAtomically(const std::filesystem::path& target, std::span<const std::byte> bytes) {
    AtomicFile file;
    if (!file.Open(target)) return false;
    file.Write(bytes);
    return file.Commit();
}

}  // namespace iw
