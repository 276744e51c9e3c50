// Every input a fuzzer ever broke something with is kept under tests/data/crashers/ and is
// fed here to every decoder that takes untrusted bytes, whatever decoder it was found in.

#include <gtest/gtest.h>

#include "codec/png/c32bppDIB.h"
#include "codec/zlib/Compression.h"
#include "document/io/IconFileReader.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

TEST(CrasherReplay, EveryFindingGoesCleanlyThroughEveryDecoder) {
    const auto folder = test::TestDataPath("crashers");
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        SCOPED_TRACE(entry.path().filename().string());
        const std::vector<std::uint8_t> bytes = test::ReadFileBytes(entry.path());
        ++files;
        for (const char* name : {"f.ico", "f.cur", "f.ani", "f.bin"}) {
            IconSet set;
            NullProgress progress;
            IconReadResult result = ReadIconData(bytes, name, set, progress);
            EXPECT_EQ(result.Ok(), !set.Empty());
        }
        c32bppDIB picture;
        if (picture.LoadPicture_Stream(bytes, false, IconEntryLimits())) {
            EXPECT_LE(picture.Width(), 256);
        }
        std::vector<std::uint8_t> out;
        for (bool own : {false, true}) {
            std::optional<ScopedZlibDisabled> disabled;
            if (own) disabled.emplace();
            if (ZlibDecompress(bytes, 1 << 20, out) == InflateStatus::Ok) {
                EXPECT_LE(out.size(), 1u << 20);
            }
        }
    }
    EXPECT_GE(files, 1);
}

}  // namespace
}  // namespace iw
