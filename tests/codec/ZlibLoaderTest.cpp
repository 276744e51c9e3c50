// The zlib loader's rules, proven with stand-in libraries built beside the tests, the
// switches that make the program run without zlib, and cCDECL calling a loaded library's
// functions by name with its three numbered errors.

#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdlib>
#include <string>

#include "CompressionSamples.h"
#include "codec/zlib/CDECL.h"
#include "codec/zlib/Checksums.h"
#include "codec/zlib/Compression.h"
#include "codec/zlib/Inflate.h"
#include "codec/zlib/ZlibLibrary.h"

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

// Calls `name` and checks the error raised and recorded.
void ExpectRaises(cCDECL& dll, const char* name, std::span<const std::uintptr_t> args,
                  std::uint32_t number, const std::string& description) {
    try {
        dll.CallFunc(name, args);
        ADD_FAILURE() << "no error raised for " << name;
    } catch (const ObjectError& e) {
        EXPECT_EQ(e.Number(), number);
        EXPECT_EQ(e.Description(), description);
        EXPECT_EQ(e.Source(), "cCDECL");
    }
    EXPECT_EQ(dll.LastError(), number);
}

TEST(cCDECL, RaisesItsThreeErrors) {
    cCDECL dll;
    ExpectRaises(dll, "crc32", {}, 0x80040000u, "DLL not loaded");
    EXPECT_FALSE(dll.DllLoad("/nonexistent/library.so"));
    EXPECT_FALSE(dll.IsLoaded());
    ASSERT_TRUE(dll.DllLoad(StandIn("nocrc")));
    ExpectRaises(dll, "crc32", {}, 0x80040001u, "Failed to locate function: crc32");
    EXPECT_EQ(dll.FunctionAddress("crc32"), nullptr);
    EXPECT_NE(dll.FunctionAddress("compress"), nullptr);
    dll.DllUnload();
    ExpectRaises(dll, "compress", {}, 0x80040000u, "DLL not loaded");

    ASSERT_TRUE(dll.DllLoad(StandIn("full")));
    std::uint8_t dest[64];
    unsigned long destLen = sizeof dest;
    const std::uint8_t src[4] = {1, 2, 3, 4};
    const std::uintptr_t args[6] = {reinterpret_cast<std::uintptr_t>(dest),
                                    reinterpret_cast<std::uintptr_t>(&destLen),
                                    reinterpret_cast<std::uintptr_t>(src),
                                    4,
                                    9,
                                    0};
    ExpectRaises(dll, "compress2", args, 0x80040002u, "Too many parameters");
    // Nothing was called; five (pointer) arguments reach the function; pointers come back.
    EXPECT_EQ(static_cast<int>(dll.CallFunc("iw_standin_compress2_calls", {})), 0);
    EXPECT_EQ(static_cast<int>(dll.CallFunc("compress2", std::span(args).first(5))), 0);
    EXPECT_EQ(static_cast<int>(dll.CallFunc("iw_standin_compress2_calls", {})), 1);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(dll.CallFunc("iw_standin_name", {}))),
              "full");
    EXPECT_EQ(dll.LastError(), 0u);
}

// The first name that loads and exports crc32 is taken; without crc32 a library is not
// used, nor is its compress2 remembered.
TEST(ZlibLoader, TakesTheFirstUsableName) {
    const std::string none = "/nonexistent/libz-none.so", full = StandIn("full"),
                      no2 = StandIn("nocompress2"), nocrc = StandIn("nocrc");
    const std::tuple<std::vector<std::string>, std::string, bool> cases[] = {
        {{none, full, no2}, full, true},
        {{no2, full}, no2, false},
        {{nocrc, no2}, no2, false},
        {{nocrc}, "", false},
        {ZlibLibrary::DefaultNames(), ZlibLibrary::DefaultNames()[0], true},
    };
    ZlibLibrary lib;
    for (const auto& [names, taken, compress2] : cases) {
        EXPECT_EQ(lib.Load(names), !taken.empty()) << names[0];
        EXPECT_EQ(std::tuple(lib.IsLoaded(), lib.Name(), lib.HasCompress2()),
                  std::tuple(!taken.empty(), taken, compress2))
            << names[0];
    }
}

TEST(ZlibLoader, CompressesWithCompress2AtLevelNineElseWithCompress) {
    const auto data = test::RandomBytes(70000, 1);
    for (const char* variant : {"full", "nocompress2"}) {
        SCOPED_TRACE(variant);
        ZlibLibrary lib;
        ASSERT_TRUE(lib.Load(std::vector<std::string>{StandIn(variant)}));
        const int before = StandInCounter(variant, "iw_standin_compress_calls");
        std::vector<std::uint8_t> stream(data.size() + 1000);
        std::size_t size = stream.size();
        ASSERT_EQ(lib.Compress(stream.data(), size, data.data(), data.size()), ZlibLibrary::kOk);
        stream.resize(size);
        const bool full = std::string(variant) == "full";
        EXPECT_EQ(StandInCounter(variant, "iw_standin_compress_calls"), before + (full ? 0 : 1));
        EXPECT_EQ(StandInCounter(variant, "iw_standin_last_level"), full ? 9 : -100);
        // The stream is one any reader takes.
        std::vector<std::uint8_t> ref(data.size());
        uLongf refSize = ref.size();
        EXPECT_EQ(uncompress(ref.data(), &refSize, stream.data(), stream.size()), Z_OK);
        EXPECT_EQ(ref, data);
        // A buffer too small is the library's failure, reported as its code.
        std::size_t tiny = 4;
        EXPECT_NE(lib.Compress(stream.data(), tiny, data.data(), data.size()), ZlibLibrary::kOk);
        EXPECT_EQ(lib.Crc32(0x12345678, data), Crc32(0x12345678, data));
    }
}

TEST(ProgramZlib, EnvironmentVariableOneAndScopedOverridesMeanNoLibrary) {
    ASSERT_TRUE(IsZlibLoaded()) << "the test machine has zlib";
    setenv("ICONWRIGHT_NO_ZLIB", "0", 1);
    EXPECT_TRUE(IsZlibLoaded());
    setenv("ICONWRIGHT_NO_ZLIB", "1", 1);
    EXPECT_TRUE(ZlibDisabledByEnvironment());
    EXPECT_FALSE(IsZlibLoaded());
    EXPECT_EQ(ProgramZlib(), nullptr);
    // The own deflate writes the stream: zlib at level 9 would be byte-different.
    const auto data = test::PngFiltered(test::GradientIcon(64), 64, 64);
    const auto stream = ZlibCompress(data);
    unsetenv("ICONWRIGHT_NO_ZLIB");
    EXPECT_NE(stream, ZlibCompress(data));
    std::vector<std::uint8_t> back;
    EXPECT_EQ(ZlibDecompress(stream, data.size(), back), InflateStatus::Ok);
    EXPECT_EQ(back, data);
    {
        ScopedZlibDisabled outer;
        { ScopedZlibDisabled inner; }
        EXPECT_FALSE(IsZlibLoaded());
    }
    EXPECT_TRUE(IsZlibLoaded());
}

// The entry points give the same statuses whichever side does the work.
class ZlibEntryPoints : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        if (!GetParam()) disabled_.emplace();
        ASSERT_EQ(IsZlibLoaded(), GetParam());
    }
    std::optional<ScopedZlibDisabled> disabled_;
};

TEST_P(ZlibEntryPoints, RoundTripAndFaultStatuses) {
    const auto data = test::PngFiltered(test::GradientIcon(100), 100, 100);
    const auto stream = ZlibCompress(data);
    std::vector<std::uint8_t> out;
    ASSERT_EQ(ZlibDecompress(stream, data.size(), out), InflateStatus::Ok);
    EXPECT_EQ(out, data);
    EXPECT_EQ(ZlibDecompress(stream, data.size() - 1, out), InflateStatus::OutputLimit);
    EXPECT_LE(out.size(), data.size() - 1);
    EXPECT_EQ(ZlibDecompress(std::span(stream).first(stream.size() - 3), data.size(), out),
              InflateStatus::TruncatedInput);
    auto wrongSum = stream, wrongHeader = stream;
    wrongSum.back() ^= 1;
    wrongHeader[1] ^= 1;
    EXPECT_EQ(ZlibDecompress(wrongSum, data.size(), out), InflateStatus::BadChecksum);
    EXPECT_EQ(ZlibDecompress(wrongHeader, data.size(), out), InflateStatus::BadHeader);
    EXPECT_EQ(ZlibDecompress(ZlibCompress(std::vector<std::uint8_t>{9}), 0, out),
              InflateStatus::OutputLimit);
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(ZlibDecompress(ZlibCompress(std::vector<std::uint8_t>{}), 0, out), InflateStatus::Ok);
    EXPECT_TRUE(out.empty());
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutZlib, ZlibEntryPoints, testing::Bool(),
                         [](const auto& param) { return param.param ? "Zlib" : "Own"; });

}  // namespace
}  // namespace iw
