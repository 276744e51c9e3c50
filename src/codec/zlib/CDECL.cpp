#include "codec/zlib/CDECL.h"

#include "platform/DynamicLibrary.h"

namespace iw {

namespace {

using Arg = std::uintptr_t;
using Fn0 = Arg (*)();
using Fn1 = Arg (*)(Arg);
using Fn2 = Arg (*)(Arg, Arg);
using Fn3 = Arg (*)(Arg, Arg, Arg);
using Fn4 = Arg (*)(Arg, Arg, Arg, Arg);
using Fn5 = Arg (*)(Arg, Arg, Arg, Arg, Arg);

}  // namespace

cCDECL::~cCDECL() {
    DllUnload();
}

bool cCDECL::DllLoad(const std::string& name) {
    DllUnload();
    handle_ = platform::OpenLibrary(name);
    lastError_ = handle_ ? 0 : kErrDllNotLoaded;
    return handle_ != nullptr;
}

void cCDECL::DllUnload() {
    platform::CloseLibrary(handle_);
    handle_ = nullptr;
}

void* cCDECL::FunctionAddress(const std::string& name) const {
    return platform::FindSymbol(handle_, name);
}

void cCDECL::Raise(std::uint32_t number, std::string description) {
    lastError_ = number;
    throw ObjectError(number, std::move(description), "cCDECL");
}

std::uintptr_t cCDECL::CallFunc(const std::string& name, std::span<const std::uintptr_t> args) {
    if (!handle_) Raise(kErrDllNotLoaded, "DLL not loaded");
    if (args.size() > kMaxParameters) Raise(kErrTooManyParameters, "Too many parameters");
    void* address = platform::FindSymbol(handle_, name);
    if (!address) Raise(kErrFunctionNotFound, "Failed to locate function: " + name);
    lastError_ = 0;
    const Arg* a = args.data();
    switch (args.size()) {
        case 0:
            return reinterpret_cast<Fn0>(address)();
        case 1:
            return reinterpret_cast<Fn1>(address)(a[0]);
        case 2:
            return reinterpret_cast<Fn2>(address)(a[0], a[1]);
        case 3:
            return reinterpret_cast<Fn3>(address)(a[0], a[1], a[2]);
        case 4:
            return reinterpret_cast<Fn4>(address)(a[0], a[1], a[2], a[3]);
        default:
            return reinterpret_cast<Fn5>(address)(a[0], a[1], a[2], a[3], a[4]);
    }
}

}  // namespace iw
