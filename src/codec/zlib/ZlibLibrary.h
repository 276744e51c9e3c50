#pragma once
// Finding zlib at run time. The names are tried in order; the first library that exports
// "crc32" is kept ("compress2" is optional, "compress" is used without it). A library
// without "crc32" is freed and the next name is tried.
//
// The program keeps one instance (ProgramZlib), loaded on first use with DefaultNames().
// Tests and tools may build their own instance over other names.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "codec/zlib/CDECL.h"

namespace iw {

class ZlibLibrary {
  public:
    // zlib's return codes that the callers look at.
    static constexpr int kOk = 0;
    static constexpr int kBufError = -5;
    static constexpr int kMemError = -4;

    ZlibLibrary() = default;
    ZlibLibrary(const ZlibLibrary&) = delete;
    ZlibLibrary& operator=(const ZlibLibrary&) = delete;

    // "zlib1.dll", "zlib.dll" on Windows; "libz.so.1", "libz.so" elsewhere
    // ("libz.1.dylib", "libz.dylib" on macOS).
    static std::vector<std::string> DefaultNames();

    // Tries `names` in order, keeping the first library that exports "crc32". Frees any
    // library loaded before. True when one was kept.
    bool Load(std::span<const std::string> names);
    void Unload();

    bool IsLoaded() const { return crc32_ != nullptr; }
    // The name (as given) of the library kept, empty when none.
    const std::string& Name() const { return name_; }
    // How early in the list the kept name stood: the list's length for the first name
    // down to 1 for the last (2 for "zlib1.dll", 1 for "zlib.dll"); 0 when none was kept.
    int VersionMark() const { return versionMark_; }
    bool HasCompress2() const { return compress2_ != nullptr; }

    // compress2 at level 9 when the library has it, else compress at its default level.
    // `destLen` is the room in `dest` on entry and the bytes written on return. Returns
    // zlib's code (kOk on success).
    int Compress(std::uint8_t* dest, std::size_t& destLen, const std::uint8_t* source,
                 std::size_t sourceLen) const;
    // True when the library has deflateInit2_, deflate and deflateEnd, so that a stream can
    // be made with a strategy other than the default.
    bool HasDeflateStrategies() const { return deflateInit2_ && deflate_ && deflateEnd_; }
    // Level 9 with zlib's "filtered" strategy, which passes over matches of 5 bytes or less
    // in favour of literals: often smaller for rows of small filtered differences, as
    // photographs give. Without HasDeflateStrategies it is Compress. Same arguments and
    // result as Compress.
    int CompressFiltered(std::uint8_t* dest, std::size_t& destLen, const std::uint8_t* source,
                         std::size_t sourceLen) const;
    // uncompress: `destLen` as above.
    int Uncompress(std::uint8_t* dest, std::size_t& destLen, const std::uint8_t* source,
                   std::size_t sourceLen) const;
    std::uint32_t Crc32(std::uint32_t crc, std::span<const std::uint8_t> data) const;

  private:
    using CompressFn = int (*)(unsigned char*, unsigned long*, const unsigned char*, unsigned long);
    using Compress2Fn = int (*)(unsigned char*, unsigned long*, const unsigned char*, unsigned long,
                                int);
    using Crc32Fn = unsigned long (*)(unsigned long, const unsigned char*, unsigned int);

    // zlib's stream state as its header lays it out (a stable part of its interface).
    struct Stream {
        const unsigned char* nextIn;
        unsigned int availIn;
        unsigned long totalIn;
        unsigned char* nextOut;
        unsigned int availOut;
        unsigned long totalOut;
        const char* msg;
        void* state;
        void* zalloc;
        void* zfree;
        void* opaque;
        int dataType;
        unsigned long adler;
        unsigned long reserved;
    };
    using DeflateInit2Fn = int (*)(Stream*, int, int, int, int, int, const char*, int);
    using DeflateFn = int (*)(Stream*, int);
    using DeflateEndFn = int (*)(Stream*);
    using VersionFn = const char* (*)();

    void Forget();

    cCDECL dll_;
    std::string name_;
    int versionMark_ = 0;
    Compress2Fn compress2_ = nullptr;
    CompressFn compress_ = nullptr;
    CompressFn uncompress_ = nullptr;
    Crc32Fn crc32_ = nullptr;
    DeflateInit2Fn deflateInit2_ = nullptr;
    DeflateFn deflate_ = nullptr;
    DeflateEndFn deflateEnd_ = nullptr;
    VersionFn zlibVersion_ = nullptr;
};

// The program's library, loaded on first use with DefaultNames(); nullptr when no usable
// library was found, when ICONWRIGHT_NO_ZLIB=1 is set, or while a ScopedZlibDisabled lives.
const ZlibLibrary* ProgramZlib();

// True when the environment variable ICONWRIGHT_NO_ZLIB is "1".
bool ZlibDisabledByEnvironment();

}  // namespace iw
