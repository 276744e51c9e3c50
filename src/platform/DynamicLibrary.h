#pragma once
// Libraries loaded at run time: LoadLibraryA, GetProcAddress and FreeLibrary on Windows,
// dlopen, dlsym and dlclose elsewhere.

#include <string>
#include <vector>

namespace iw::platform {

// An opaque handle of a loaded library; nullptr stands for none.
using LibraryHandle = void*;

// Loads the library `name` (a file name searched the platform's way, or a path), its
// symbols resolved at once and kept out of the global namespace; nullptr on failure.
LibraryHandle OpenLibrary(const std::string& name);
// Frees a library from OpenLibrary; nullptr is ignored.
void CloseLibrary(LibraryHandle library);
// The address of the exported symbol `name`, or nullptr.
void* FindSymbol(LibraryHandle library, const std::string& name);

// The file names under which the system's zlib is found, the preferred first: "zlib1.dll",
// "zlib.dll" on Windows; "libz.so.1", "libz.so" elsewhere ("libz.1.dylib", "libz.dylib" on
// macOS).
std::vector<std::string> SystemZlibNames();

}  // namespace iw::platform
