// cCDECL: calling a loaded library's functions by name, and its three numbered errors.

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "codec/CDECL.h"
#include "codec/Compression.h"
#include "codec/ZlibLibrary.h"

namespace iw {
namespace {

std::string StandIn(const std::string& variant) {
    return std::string(IW_ZLIB_STANDIN_DIR) + "/zlib_standin_" + variant + IW_ZLIB_STANDIN_SUFFIX;
}

template <typename Call>
ObjectError Raised(Call&& call) {
    try {
        call();
    } catch (const ObjectError& e) {
        return e;
    }
    ADD_FAILURE() << "no error raised";
    return ObjectError(0, "", "");
}

TEST(cCDECL, CallsExportedFunctionsWithPointerArguments) {
    cCDECL dll;
    ASSERT_TRUE(dll.DllLoad(ZlibLibrary::DefaultNames()[0]));
    const char text[] = "123456789";
    const auto crc = static_cast<std::uint32_t>(
        dll.CallFunc("crc32", {0, reinterpret_cast<std::uintptr_t>(text), 9}));
    EXPECT_EQ(crc, 0xCBF43926u);
    const auto version = reinterpret_cast<const char*>(dll.CallFunc("zlibVersion", {}));
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version[0], '1');
    EXPECT_EQ(dll.LastError(), 0u);
}

TEST(cCDECL, WithoutALibraryRaisesDllNotLoaded) {
    cCDECL dll;
    const ObjectError e = Raised([&] { dll.CallFunc("crc32", {}); });
    EXPECT_EQ(e.Number(), 0x80040000u);
    EXPECT_EQ(e.Description(), "DLL not loaded");
    EXPECT_EQ(e.Source(), "cCDECL");
    EXPECT_EQ(dll.LastError(), 0x80040000u);

    EXPECT_FALSE(dll.DllLoad("/nonexistent/library.so"));
    EXPECT_FALSE(dll.IsLoaded());
    ASSERT_TRUE(dll.DllLoad(StandIn("full")));
    dll.DllUnload();
    EXPECT_EQ(Raised([&] { dll.CallFunc("crc32", {}); }).Number(), cCDECL::kErrDllNotLoaded);
}

TEST(cCDECL, UnknownNameRaisesFailedToLocateFunction) {
    cCDECL dll;
    ASSERT_TRUE(dll.DllLoad(StandIn("nocrc")));
    const ObjectError e = Raised([&] { dll.CallFunc("crc32", {}); });
    EXPECT_EQ(e.Number(), 0x80040001u);
    EXPECT_EQ(e.Description(), "Failed to locate function: crc32");
    EXPECT_EQ(e.Source(), "cCDECL");
    EXPECT_EQ(dll.LastError(), 0x80040001u);
    EXPECT_EQ(dll.FunctionAddress("crc32"), nullptr);
    EXPECT_NE(dll.FunctionAddress("compress"), nullptr);
}

TEST(cCDECL, SixArgumentsRaiseTooManyParametersWithoutCalling) {
    cCDECL dll;
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
    const ObjectError e = Raised([&] { dll.CallFunc("compress2", args); });
    EXPECT_EQ(e.Number(), 0x80040002u);
    EXPECT_EQ(e.Description(), "Too many parameters");
    EXPECT_EQ(e.Source(), "cCDECL");
    EXPECT_EQ(static_cast<int>(dll.CallFunc("iw_standin_compress2_calls", {})), 0);

    // Five arguments are fine and reach the function.
    EXPECT_EQ(static_cast<int>(dll.CallFunc("compress2", std::span(args).first(5))), 0);
    EXPECT_EQ(static_cast<int>(dll.CallFunc("iw_standin_compress2_calls", {})), 1);
    EXPECT_EQ(dll.LastError(), 0u);
}

}  // namespace
}  // namespace iw
