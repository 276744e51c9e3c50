#include <windows.h>

#include "platform/DynamicLibrary.h"

namespace iw::platform {

LibraryHandle OpenLibrary(const std::string& name) {
    return reinterpret_cast<LibraryHandle>(LoadLibraryA(name.c_str()));
}

void CloseLibrary(LibraryHandle library) {
    if (library) FreeLibrary(reinterpret_cast<HMODULE>(library));
}

void* FindSymbol(LibraryHandle library, const std::string& name) {
    if (!library) return nullptr;
    return reinterpret_cast<void*>(
        GetProcAddress(reinterpret_cast<HMODULE>(library), name.c_str()));
}

std::vector<std::string> SystemZlibNames() {
    return {"zlib1.dll", "zlib.dll"};
}

}  // namespace iw::platform
