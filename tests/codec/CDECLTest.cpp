// cCDECL: calling a loaded library's functions by name, and its three numbered errors.

#include <gtest/gtest.h>

#include <string>

#include "codec/zlib/CDECL.h"

namespace iw {
namespace {

std::string StandIn(const std::string& variant) {
    return std::string(IW_ZLIB_STANDIN_DIR) + "/zlib_standin_" + variant + IW_ZLIB_STANDIN_SUFFIX;
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

}  // namespace
}  // namespace iw
