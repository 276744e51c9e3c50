#include "support/TestSupport.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace iw::test {
std::filesystem::path TestDataPath(const std::string& relative) {
    const std::filesystem::path path = std::filesystem::path(IW_TEST_DATA_DIR) / relative;
    std::error_code ec;
    if (!std::filesystem::exists(path, ec))
        throw std::runtime_error("test data missing from the checkout: " + path.string());
    return path;
}

std::vector<std::uint8_t> ReadFileBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void WriteFileBytes(const std::filesystem::path& file, const std::vector<std::uint8_t>& bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
    if (!out) throw std::runtime_error("cannot write " + file.string());
}

TempDir::TempDir() {
    std::random_device rd;
    auto base = std::filesystem::temp_directory_path();
    for (int attempt = 0; attempt < 100; ++attempt) {
        auto candidate = base / ("iwtest-" + std::to_string(rd()));
        std::error_code ec;
        if (std::filesystem::create_directory(candidate, ec)) {
            path_ = candidate;
            return;
        }
    }
    throw std::runtime_error("cannot make a temporary folder");
}

TempDir::~TempDir() {
    std::error_code ec;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ec);
    std::filesystem::remove_all(path_, ec);
}

}  // namespace iw::test
