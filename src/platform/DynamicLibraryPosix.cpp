#include <dlfcn.h>

#include "platform/DynamicLibrary.h"

namespace iw::platform {

LibraryHandle OpenLibrary(const std::string& name) {
    return dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
}

void CloseLibrary(LibraryHandle library) {
    if (library) dlclose(library);
}

void* FindSymbol(LibraryHandle library, const std::string& name) {
    return library ? dlsym(library, name.c_str()) : nullptr;
}

std::vector<std::string> SystemZlibNames() {
#if defined(__APPLE__)
    return {"libz.1.dylib", "libz.dylib"};
#else
    return {"libz.so.1", "libz.so"};
#endif
}

}  // namespace iw::platform
