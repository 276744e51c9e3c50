#pragma once
// cCDECL: loads a library at run time and calls its C-convention functions by name.
//
// On the platforms this program is built for (64-bit Windows, Linux, macOS) there is one
// calling convention, so a call is a plain call through a function pointer with 0 to 5
// pointer-sized arguments. Errors are raised as ObjectError with the source "cCDECL".

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "codec/zlib/ObjectError.h"

namespace iw {

class cCDECL {
  public:
    static constexpr std::uint32_t kErrDllNotLoaded = kObjectErrorBase + 0;
    static constexpr std::uint32_t kErrFunctionNotFound = kObjectErrorBase + 1;
    static constexpr std::uint32_t kErrTooManyParameters = kObjectErrorBase + 2;
    static constexpr std::size_t kMaxParameters = 5;

    cCDECL() = default;
    ~cCDECL();
    cCDECL(const cCDECL&) = delete;
    cCDECL& operator=(const cCDECL&) = delete;

    // Loads the library `name` (a file name searched the platform's way, or a path), freeing
    // any library loaded before. True on success.
    bool DllLoad(const std::string& name);
    // Frees the loaded library; harmless when none is loaded.
    void DllUnload();
    bool IsLoaded() const { return handle_ != nullptr; }

    // The address of the exported function `name`, or nullptr when it is not exported or no
    // library is loaded. Never raises.
    void* FunctionAddress(const std::string& name) const;

    // Looks `name` up and calls it with `args` (at most five), returning its pointer-sized
    // result. A function whose C return type is narrower (int) leaves the upper bits
    // undefined: cast the result down to that type. Raises "DLL not loaded", "Failed to
    // locate function: <name>" or "Too many parameters"; in the last case nothing is called.
    std::uintptr_t CallFunc(const std::string& name, std::span<const std::uintptr_t> args);
    std::uintptr_t CallFunc(const std::string& name, std::initializer_list<std::uintptr_t> args) {
        return CallFunc(name, std::span<const std::uintptr_t>(args.begin(), args.size()));
    }

    // The number of the last error this object raised (base included), 0 after a
    // successful operation. A failed DllLoad records "DLL not loaded".
    std::uint32_t LastError() const { return lastError_; }

    // A C-convention entry that forwards to `routine`, for a C library to call back into
    // the program. Where the caller and the library share one calling convention, as on
    // every target this program is built for (x86-64 has one per system: the System V
    // convention on Linux and macOS, the Microsoft x64 one on Windows; AArch64 likewise),
    // a routine of the program already is such an entry, so it comes back unchanged and
    // nothing is generated or kept alive. Only 32-bit x86 Windows, with its C and
    // standard-call conventions side by side, would need a forwarding stub.
    template <typename R, typename... Args>
    static auto WrapCallback(R (*routine)(Args...)) -> R (*)(Args...) {
        static_assert(sizeof(void*) == 8, "callbacks need a forwarding stub on 32-bit x86");
        return routine;
    }

  private:
    [[noreturn]] void Raise(std::uint32_t number, std::string description);

    void* handle_ = nullptr;
    std::uint32_t lastError_ = 0;
};

}  // namespace iw
