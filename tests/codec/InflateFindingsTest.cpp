// Inputs the inflate fuzz target found to break the own inflate once. Each file is a fuzz
// input: the first byte chooses the output limit ((byte << 10) + 1), the rest is the
// stream. The own inflate must stay within the limit and agree with zlib.

#include <gtest/gtest.h>
#include <zlib.h>

#include <filesystem>

#include "codec/Inflate.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

TEST(InflateFindings, FuzzFindingsAgreeWithZlib) {
    const auto folder = test::TestDataPath("crashers");
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().filename().string().rfind("inflate-", 0) != 0) continue;
        const auto bytes = test::ReadFileBytes(entry.path());
        ASSERT_FALSE(bytes.empty());
        const std::size_t limit = (std::size_t{bytes[0]} << 10) + 1;
        const auto stream = std::span(bytes).subspan(1);
        std::vector<std::uint8_t> own, ref(limit);
        const InflateStatus status = InflateZlib(stream, limit, own);
        EXPECT_LE(own.size(), limit);
        uLongf refSize = ref.size();
        const bool zlibOk = uncompress(ref.data(), &refSize, stream.data(), stream.size()) == Z_OK;
        EXPECT_EQ(status == InflateStatus::Ok, zlibOk)
            << entry.path().filename() << ": " << InflateStatusText(status);
        ++files;
    }
    EXPECT_GE(files, 1);
}

}  // namespace
}  // namespace iw
