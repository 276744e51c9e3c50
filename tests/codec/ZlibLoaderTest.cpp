// The zlib loader's rules, proven with stand-in libraries built beside the tests, and the
// switches that make the program run without zlib.

#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdlib>
#include <string>

#include "codec/CDECL.h"
#include "codec/Compression.h"
#include "codec/Inflate.h"
#include "codec/ZlibLibrary.h"

namespace iw {
namespace {

std::string StandIn(const std::string& variant) {
    return std::string(IW_ZLIB_STANDIN_DIR) + "/zlib_standin_" + variant + IW_ZLIB_STANDIN_SUFFIX;
}

// Reads one of a stand-in's counters through a second handle on the same library.
int StandInCounter(const std::string& variant, const std::string& counter) {
    cCDECL dll;
    EXPECT_TRUE(dll.DllLoad(StandIn(variant)));
    return static_cast<int>(dll.CallFunc(counter, {}));
}

std::vector<std::uint8_t> Sample() {
    std::vector<std::uint8_t> data(70000);
    for (std::size_t i = 0; i < data.size(); ++i)
        data[i] = static_cast<std::uint8_t>((i * 31) ^ (i >> 7));
    return data;
}

TEST(ZlibLoader, TakesTheFirstNameThatLoadsAndMarksHowEarlyItStood) {
    ZlibLibrary lib;
    const std::vector<std::string> names = {"/nonexistent/libz-none.so", StandIn("full"),
                                            StandIn("nocompress2")};
    ASSERT_TRUE(lib.Load(names));
    EXPECT_EQ(lib.Name(), StandIn("full"));
    EXPECT_EQ(lib.VersionMark(), 2);
    EXPECT_TRUE(lib.HasCompress2());

    const std::vector<std::string> swapped = {StandIn("nocompress2"), StandIn("full")};
    ASSERT_TRUE(lib.Load(swapped));
    EXPECT_EQ(lib.Name(), StandIn("nocompress2"));
    EXPECT_EQ(lib.VersionMark(), 2);
    EXPECT_FALSE(lib.HasCompress2());

    const std::vector<std::string> second = {"/nonexistent/a.so", StandIn("full")};
    ASSERT_TRUE(lib.Load(second));
    EXPECT_EQ(lib.VersionMark(), 1);
}

TEST(ZlibLoader, LibraryWithoutCrc32IsNotUsed) {
    ZlibLibrary lib;
    const std::vector<std::string> names = {StandIn("nocrc"), StandIn("nocompress2")};
    ASSERT_TRUE(lib.Load(names));
    EXPECT_EQ(lib.Name(), StandIn("nocompress2"));
    EXPECT_EQ(lib.VersionMark(), 1);
    // compress2 of the refused library is not remembered.
    EXPECT_FALSE(lib.HasCompress2());

    const std::vector<std::string> only = {StandIn("nocrc")};
    EXPECT_FALSE(lib.Load(only));
    EXPECT_FALSE(lib.IsLoaded());
    EXPECT_EQ(lib.VersionMark(), 0);
    EXPECT_TRUE(lib.Name().empty());
    EXPECT_FALSE(lib.HasCompress2());
}

TEST(ZlibLoader, WithoutCompress2CompressMakesAStreamAnyReaderTakes) {
    ZlibLibrary lib;
    const std::vector<std::string> names = {StandIn("nocompress2")};
    ASSERT_TRUE(lib.Load(names));
    const int before = StandInCounter("nocompress2", "iw_standin_compress_calls");
    const auto data = Sample();
    std::vector<std::uint8_t> stream(data.size() + 1000);
    std::size_t size = stream.size();
    ASSERT_EQ(lib.Compress(stream.data(), size, data.data(), data.size()), ZlibLibrary::kOk);
    stream.resize(size);
    EXPECT_EQ(StandInCounter("nocompress2", "iw_standin_compress_calls"), before + 1);

    std::vector<std::uint8_t> own;
    EXPECT_EQ(InflateZlib(stream, data.size(), own), InflateStatus::Ok);
    EXPECT_EQ(own, data);
    std::vector<std::uint8_t> ref(data.size());
    uLongf refSize = ref.size();
    EXPECT_EQ(uncompress(ref.data(), &refSize, stream.data(), stream.size()), Z_OK);
    EXPECT_EQ(ref, data);
}

TEST(ZlibLoader, Compress2IsCalledAtLevelNine) {
    ZlibLibrary lib;
    const std::vector<std::string> names = {StandIn("full")};
    ASSERT_TRUE(lib.Load(names));
    const std::vector<std::uint8_t> data(100, 7);
    std::vector<std::uint8_t> stream(1000);
    std::size_t size = stream.size();
    ASSERT_EQ(lib.Compress(stream.data(), size, data.data(), data.size()), ZlibLibrary::kOk);
    EXPECT_EQ(StandInCounter("full", "iw_standin_last_level"), 9);
    EXPECT_EQ(StandInCounter("full", "iw_standin_compress_calls"), 0);
    // A buffer too small is the library's failure, reported as its code.
    std::size_t tiny = 4;
    EXPECT_NE(lib.Compress(stream.data(), tiny, data.data(), data.size()), ZlibLibrary::kOk);
}

TEST(ZlibLoader, LibraryCrc32AgreesWithTheOwn) {
    ZlibLibrary lib;
    const std::vector<std::string> names = {StandIn("full")};
    ASSERT_TRUE(lib.Load(names));
    const auto data = Sample();
    EXPECT_EQ(lib.Crc32(0, data), Crc32(0, data));
    EXPECT_EQ(lib.Crc32(0x12345678, std::span(data).first(10)),
              Crc32(0x12345678, std::span(data).first(10)));
}

TEST(ZlibLoader, DefaultNamesFindTheSystemZlibUnderTheVersionedName) {
    const auto names = ZlibLibrary::DefaultNames();
    ASSERT_EQ(names.size(), 2u);
#if defined(_WIN32)
    EXPECT_EQ(names[0], "zlib1.dll");
    EXPECT_EQ(names[1], "zlib.dll");
#elif !defined(__APPLE__)
    EXPECT_EQ(names[0], "libz.so.1");
    EXPECT_EQ(names[1], "libz.so");
#endif
    ZlibLibrary lib;
    ASSERT_TRUE(lib.Load(names));
    EXPECT_EQ(lib.Name(), names[0]);
    EXPECT_EQ(lib.VersionMark(), 2);
    EXPECT_TRUE(lib.HasCompress2());
}

class EnvironmentGuard {
  public:
    explicit EnvironmentGuard(const char* value) { setenv("ICONWRIGHT_NO_ZLIB", value, 1); }
    ~EnvironmentGuard() { unsetenv("ICONWRIGHT_NO_ZLIB"); }
};

TEST(ProgramZlib, EnvironmentVariableOneMeansNoLibrary) {
    ASSERT_TRUE(IsZlibLoaded()) << "the test machine has zlib";
    {
        EnvironmentGuard env("1");
        EXPECT_TRUE(ZlibDisabledByEnvironment());
        EXPECT_FALSE(IsZlibLoaded());
        EXPECT_EQ(ProgramZlib(), nullptr);
        // The own deflate writes the stream: zlib at level 9 would be byte-different.
        const auto data = Sample();
        const auto stream = ZlibCompress(data);
        std::vector<std::uint8_t> zlibStream(compressBound(data.size()));
        uLongf zlibSize = zlibStream.size();
        ASSERT_EQ(compress2(zlibStream.data(), &zlibSize, data.data(), data.size(), 9), Z_OK);
        zlibStream.resize(zlibSize);
        EXPECT_NE(stream, zlibStream);
        std::vector<std::uint8_t> back;
        EXPECT_EQ(ZlibDecompress(stream, data.size(), back), InflateStatus::Ok);
        EXPECT_EQ(back, data);
    }
    {
        EnvironmentGuard env("0");
        EXPECT_TRUE(IsZlibLoaded());
    }
    EXPECT_TRUE(IsZlibLoaded());
}

TEST(ProgramZlib, ScopedOverridesNest) {
    ASSERT_TRUE(IsZlibLoaded());
    {
        ScopedZlibDisabled outer;
        EXPECT_FALSE(IsZlibLoaded());
        {
            ScopedZlibDisabled inner;
            EXPECT_FALSE(IsZlibLoaded());
        }
        EXPECT_FALSE(IsZlibLoaded());
    }
    EXPECT_TRUE(IsZlibLoaded());
}

// The entry points give the same statuses whichever side does the work.
class ZlibEntryPoints : public ::testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        if (!GetParam()) disabled_ = std::make_unique<ScopedZlibDisabled>();
        ASSERT_EQ(IsZlibLoaded(), GetParam());
    }
    std::unique_ptr<ScopedZlibDisabled> disabled_;
};

TEST_P(ZlibEntryPoints, RoundTripAndFaultStatuses) {
    const auto data = Sample();
    const auto stream = ZlibCompress(data);
    ASSERT_FALSE(stream.empty());
    std::vector<std::uint8_t> out;
    ASSERT_EQ(ZlibDecompress(stream, data.size(), out), InflateStatus::Ok);
    EXPECT_EQ(out, data);
    EXPECT_EQ(ZlibDecompress(stream, data.size() - 1, out), InflateStatus::OutputLimit);
    EXPECT_LE(out.size(), data.size() - 1);
    EXPECT_EQ(ZlibDecompress(std::span(stream).first(stream.size() - 3), data.size(), out),
              InflateStatus::TruncatedInput);
    auto wrongSum = stream;
    wrongSum.back() ^= 1;
    EXPECT_EQ(ZlibDecompress(wrongSum, data.size(), out), InflateStatus::BadChecksum);
    auto wrongHeader = stream;
    wrongHeader[1] ^= 1;
    EXPECT_EQ(ZlibDecompress(wrongHeader, data.size(), out), InflateStatus::BadHeader);

    const std::vector<std::uint8_t> one = {9};
    EXPECT_EQ(ZlibDecompress(ZlibCompress(one), 0, out), InflateStatus::OutputLimit);
    EXPECT_TRUE(out.empty());

    const std::vector<std::uint8_t> empty;
    const auto emptyStream = ZlibCompress(empty);
    EXPECT_EQ(ZlibDecompress(emptyStream, 0, out), InflateStatus::Ok);
    EXPECT_TRUE(out.empty());
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutZlib, ZlibEntryPoints, ::testing::Bool(),
                         [](const auto& param) { return param.param ? "Zlib" : "Own"; });

}  // namespace
}  // namespace iw
