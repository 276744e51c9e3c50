// The entry points of Compression.h: the loaded zlib when there is one, else the own
// inflate and deflate.

#include "codec/zlib/Compression.h"

#include <cstring>

#include "codec/zlib/Deflate.h"
#include "codec/zlib/Inflate.h"
#include "codec/zlib/ZlibLibrary.h"

namespace iw {

namespace {

// Deflate cannot expand more than 1032:1 (a 258-byte match in two bits).
std::size_t MostInflatedSize(std::size_t inputSize, std::size_t maxOutput) {
    constexpr std::size_t kRatio = 1032;
    if (inputSize > (maxOutput - 64) / kRatio) return maxOutput;  // maxOutput is the bound
    const std::size_t bound = inputSize * kRatio + 64;
    return bound < maxOutput ? bound : maxOutput;
}

}  // namespace

const char* InflateStatusText(InflateStatus status) {
    switch (status) {
        case InflateStatus::Ok:
            return "ok";
        case InflateStatus::TruncatedInput:
            return "the compressed data ends early";
        case InflateStatus::BadHeader:
            return "bad zlib header";
        case InflateStatus::BadBlockType:
            return "invalid block type";
        case InflateStatus::BadStoredLength:
            return "stored block length check failed";
        case InflateStatus::BadCodeLengths:
            return "invalid code lengths";
        case InflateStatus::BadSymbol:
            return "invalid literal/length or distance code";
        case InflateStatus::DistanceTooFar:
            return "distance too far back";
        case InflateStatus::OutputLimit:
            return "decompressed data larger than allowed";
        case InflateStatus::BadChecksum:
            return "Adler-32 check failed";
        case InflateStatus::LibraryError:
            return "the compression library failed";
    }
    return "unknown inflate status";
}

bool IsZlibLoaded() {
    return ProgramZlib() != nullptr;
}

InflateStatus ZlibDecompress(std::span<const std::uint8_t> in, std::size_t maxOutput,
                             std::vector<std::uint8_t>& out) {
    const ZlibLibrary* zlib = ProgramZlib();
    // uncompress cannot be given an empty buffer (it then inflates into one byte of its
    // own and may report success for a non-empty result).
    if (!zlib || maxOutput == 0) return InflateZlib(in, maxOutput, out);

    const std::size_t room = maxOutput < 64 ? maxOutput : MostInflatedSize(in.size(), maxOutput);
    out.resize(room);
    std::size_t produced = room;
    const int result = zlib->Uncompress(out.data(), produced, in.data(), in.size());
    if (result == ZlibLibrary::kOk) {
        out.resize(produced);
        return InflateStatus::Ok;
    }
    // zlib's codes are coarse; the own decoder names the fault precisely.
    out.clear();
    std::vector<std::uint8_t> partial;
    const InflateStatus own = InflateZlib(in, maxOutput, partial);
    if (own != InflateStatus::Ok) {
        out = std::move(partial);
        return own;
    }
    return InflateStatus::LibraryError;
}

InflateStatus ZlibDecompressInto(std::span<const std::uint8_t> in, std::span<std::uint8_t> out) {
    const ZlibLibrary* zlib = out.empty() ? nullptr : ProgramZlib();
    if (zlib) {
        std::size_t produced = out.size();
        const int result = zlib->Uncompress(out.data(), produced, in.data(), in.size());
        if (result == ZlibLibrary::kOk && produced == out.size()) return InflateStatus::Ok;
        // A stream that holds more than fits, or fewer: the own decoder names the fault.
    }
    std::vector<std::uint8_t> whole;
    const InflateStatus status = InflateZlib(in, out.size(), whole);
    if (status != InflateStatus::Ok) return status;
    if (whole.size() != out.size()) return InflateStatus::TruncatedInput;
    if (zlib) return InflateStatus::LibraryError;  // the library refused what the own read
    std::memcpy(out.data(), whole.data(), whole.size());
    return InflateStatus::Ok;
}

std::vector<std::uint8_t> ZlibCompress(std::span<const std::uint8_t> in) {
    const ZlibLibrary* zlib = ProgramZlib();
    if (!zlib) return DeflateZlib(in);

    std::vector<std::uint8_t> out(in.size() + in.size() / 8 + 64);
    std::size_t produced = out.size();
    if (zlib->Compress(out.data(), produced, in.data(), in.size()) != ZlibLibrary::kOk) return {};
    out.resize(produced);
    return out;
}

}  // namespace iw

namespace iw {

bool CanCompressFiltered() {
    const ZlibLibrary* zlib = ProgramZlib();
    return zlib && zlib->HasDeflateStrategies();
}

std::vector<std::uint8_t> ZlibCompressFiltered(std::span<const std::uint8_t> in) {
    const ZlibLibrary* zlib = ProgramZlib();
    if (!zlib || !zlib->HasDeflateStrategies()) return ZlibCompress(in);
    std::vector<std::uint8_t> out(in.size() + in.size() / 8 + 64);
    std::size_t produced = out.size();
    if (zlib->CompressFiltered(out.data(), produced, in.data(), in.size()) != ZlibLibrary::kOk) {
        return {};
    }
    out.resize(produced);
    return out;
}

}  // namespace iw
