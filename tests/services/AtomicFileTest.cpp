#include <gtest/gtest.h>

#include "services/core/AtomicFile.h"
#include "support/FileSizeLimit.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

std::span<const std::byte> AsBytes(const std::string& s) {
    return std::as_bytes(std::span(s.data(), s.size()));
}

std::size_t FilesIn(const std::filesystem::path& dir) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(dir),
                                                  std::filesystem::directory_iterator()));
}

TEST(AtomicFile, ReplacesTheWholeFileAndKeepsItsPermissions) {
    test::TempDir dir;
    auto target = dir / "a.ico";
    test::WriteFileBytes(target, std::vector<std::uint8_t>(1000, 7));
    std::filesystem::permissions(target, std::filesystem::perms::owner_read |
                                             std::filesystem::perms::owner_write |
                                             std::filesystem::perms::group_read);
    ASSERT_TRUE(WriteFileAtomically(target, AsBytes("short")));
    auto bytes = test::ReadFileBytes(target);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), "short");  // no trailing bytes
    EXPECT_EQ(std::filesystem::status(target).permissions() & std::filesystem::perms::all,
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write |
                  std::filesystem::perms::group_read);
    EXPECT_EQ(FilesIn(dir.Path()), 1u);
}

TEST(AtomicFile, DiscardedOrFailedWritesLeaveTheOldFile) {
    test::TempDir dir;
    auto target = dir / "keep.ico";
    test::WriteFileBytes(target, {1, 2, 3});
    {
        AtomicFile file;
        ASSERT_TRUE(file.Open(target));
        file.Write(AsBytes("new content"));
        // Not committed: dropped when it goes out of scope.
    }
    EXPECT_FALSE(WriteFileAtomically(dir / "no" / "such.ico", AsBytes("x")));
    EXPECT_EQ(test::ReadFileBytes(target), (std::vector<std::uint8_t>{1, 2, 3}));
    EXPECT_EQ(FilesIn(dir.Path()), 1u);
}

TEST(AtomicFile, FileSizeLimitPartWayFailsAndLeavesTheOldFile) {
    test::TempDir dir;
    auto target = dir / "big.ico";
    test::WriteFileBytes(target, std::vector<std::uint8_t>(100, 9));
    const std::string big(1 << 20, 'z');
    EXPECT_FALSE(test::UnderFileSizeLimit(
        64 * 1024, [&] { return WriteFileAtomically(target, AsBytes(big)); }));
    EXPECT_EQ(test::ReadFileBytes(target), std::vector<std::uint8_t>(100, 9));
    EXPECT_EQ(FilesIn(dir.Path()), 1u);
}

TEST(AtomicFile, WritingThroughALinkReplacesTheFileBehindItAndKeepsTheLink) {
    test::TempDir dir;
    const auto real = dir / "real.txt";
    const auto link = dir / "link.txt";
    test::WriteFileBytes(real, {1, 2, 3});
    std::filesystem::create_symlink(real, link);
    ASSERT_TRUE(WriteFileAtomically(link, AsBytes("new")));
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(test::ReadFileBytes(real), (std::vector<std::uint8_t>{'n', 'e', 'w'}));
}

}  // namespace
}  // namespace iw
