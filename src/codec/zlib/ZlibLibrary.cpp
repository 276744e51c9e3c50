#include "codec/zlib/ZlibLibrary.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "codec/zlib/Compression.h"
#include "platform/DynamicLibrary.h"

namespace iw {

namespace {

std::atomic<int> gDisabledScopes{0};

template <typename Fn>
Fn AddressAs(const cCDECL& dll, const char* name) {
    return reinterpret_cast<Fn>(dll.FunctionAddress(name));
}

// zlib's lengths are `unsigned long`, 32 bits on 64-bit Windows.
bool FitsULong(std::size_t n) {
    return n <= std::numeric_limits<unsigned long>::max();
}

}  // namespace

std::vector<std::string> ZlibLibrary::DefaultNames() {
    return platform::SystemZlibNames();
}

void ZlibLibrary::Forget() {
    name_.clear();
    versionMark_ = 0;
    compress2_ = nullptr;
    compress_ = nullptr;
    uncompress_ = nullptr;
    crc32_ = nullptr;
    deflateInit2_ = nullptr;
    deflate_ = nullptr;
    deflateEnd_ = nullptr;
    zlibVersion_ = nullptr;
}

void ZlibLibrary::Unload() {
    Forget();
    dll_.DllUnload();
}

bool ZlibLibrary::Load(std::span<const std::string> names) {
    Unload();
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!dll_.DllLoad(names[i])) continue;
        compress2_ = AddressAs<Compress2Fn>(dll_, "compress2");
        crc32_ = AddressAs<Crc32Fn>(dll_, "crc32");
        if (!crc32_) {
            // Not a zlib this program can use; compress2 counts as absent with it.
            Unload();
            continue;
        }
        compress_ = AddressAs<CompressFn>(dll_, "compress");
        uncompress_ = AddressAs<CompressFn>(dll_, "uncompress");
        // Optional: without all four the filtered strategy falls back to compress2.
        deflateInit2_ = AddressAs<DeflateInit2Fn>(dll_, "deflateInit2_");
        deflate_ = AddressAs<DeflateFn>(dll_, "deflate");
        deflateEnd_ = AddressAs<DeflateEndFn>(dll_, "deflateEnd");
        zlibVersion_ = AddressAs<VersionFn>(dll_, "zlibVersion");
        if (!zlibVersion_) deflateInit2_ = nullptr;
        name_ = names[i];
        versionMark_ = static_cast<int>(names.size() - i);
        return true;
    }
    return false;
}

int ZlibLibrary::Compress(std::uint8_t* dest, std::size_t& destLen, const std::uint8_t* source,
                          std::size_t sourceLen) const {
    if (!FitsULong(destLen) || !FitsULong(sourceLen)) return kBufError;
    unsigned long len = static_cast<unsigned long>(destLen);
    int result;
    if (compress2_) {
        result = compress2_(dest, &len, source, static_cast<unsigned long>(sourceLen), 9);
    } else if (compress_) {
        result = compress_(dest, &len, source, static_cast<unsigned long>(sourceLen));
    } else {
        return kMemError;
    }
    destLen = len;
    return result;
}

int ZlibLibrary::CompressFiltered(std::uint8_t* dest, std::size_t& destLen,
                                  const std::uint8_t* source, std::size_t sourceLen) const {
    if (!HasDeflateStrategies()) return Compress(dest, destLen, source, sourceLen);
    // One call with all the input and all the room: the lengths must fit zlib's 32 bits.
    if (destLen > std::numeric_limits<unsigned int>::max() ||
        sourceLen > std::numeric_limits<unsigned int>::max()) {
        return kBufError;
    }
    constexpr int kDeflated = 8, kWindowBits = 15, kMemLevel = 8, kFiltered = 1;
    constexpr int kFinish = 4, kStreamEnd = 1;
    Stream stream{};
    int result = deflateInit2_(&stream, 9, kDeflated, kWindowBits, kMemLevel, kFiltered,
                               zlibVersion_(), static_cast<int>(sizeof(Stream)));
    if (result != kOk) return result;
    stream.nextIn = source;
    stream.availIn = static_cast<unsigned int>(sourceLen);
    stream.nextOut = dest;
    stream.availOut = static_cast<unsigned int>(destLen);
    result = deflate_(&stream, kFinish);
    const std::size_t produced = static_cast<std::size_t>(stream.nextOut - dest);
    deflateEnd_(&stream);
    if (result != kStreamEnd) return result == kOk ? kBufError : result;
    destLen = produced;
    return kOk;
}

int ZlibLibrary::Uncompress(std::uint8_t* dest, std::size_t& destLen, const std::uint8_t* source,
                            std::size_t sourceLen) const {
    if (!uncompress_) return kMemError;
    if (!FitsULong(destLen) || !FitsULong(sourceLen)) return kBufError;
    unsigned long len = static_cast<unsigned long>(destLen);
    const int result = uncompress_(dest, &len, source, static_cast<unsigned long>(sourceLen));
    destLen = len;
    return result;
}

std::uint32_t ZlibLibrary::Crc32(std::uint32_t crc, std::span<const std::uint8_t> data) const {
    unsigned long value = crc;
    const std::uint8_t* p = data.data();
    std::size_t left = data.size();
    constexpr std::size_t kChunk = 1u << 30;  // crc32 takes an unsigned int length
    while (left > 0) {
        const std::size_t n = left < kChunk ? left : kChunk;
        value = crc32_(value, p, static_cast<unsigned int>(n));
        p += n;
        left -= n;
    }
    return static_cast<std::uint32_t>(value);
}

bool ZlibDisabledByEnvironment() {
    const char* value = std::getenv("ICONWRIGHT_NO_ZLIB");
    return value && std::strcmp(value, "1") == 0;
}

const ZlibLibrary* ProgramZlib() {
    if (gDisabledScopes.load(std::memory_order_relaxed) > 0 || ZlibDisabledByEnvironment()) {
        return nullptr;
    }
    static const ZlibLibrary* const library = [] {
        static ZlibLibrary instance;
        const std::vector<std::string> names = ZlibLibrary::DefaultNames();
        instance.Load(names);
        return &instance;
    }();
    return library->IsLoaded() ? library : nullptr;
}

ScopedZlibDisabled::ScopedZlibDisabled() {
    gDisabledScopes.fetch_add(1);
}
ScopedZlibDisabled::~ScopedZlibDisabled() {
    gDisabledScopes.fetch_sub(1);
}

}  // namespace iw
