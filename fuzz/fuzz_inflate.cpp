// The own inflate on arbitrary bytes, with an output limit taken from the first byte.
// When zlib also inflates the input, both must give the same bytes.

#include <zlib.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "codec/zlib/Inflate.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return 0;
    const std::size_t limit = (std::size_t{data[0]} << 10) + 1;  // 1 byte .. 255 KiB
    const std::span<const std::uint8_t> stream(data + 1, size - 1);
    std::vector<std::uint8_t> own, ref(limit);
    const iw::InflateStatus status = iw::InflateZlib(stream, limit, own);
    if (own.size() > limit) std::abort();
    uLongf refSize = ref.size();
    const bool zlibOk = uncompress(ref.data(), &refSize, stream.data(), stream.size()) == Z_OK;
    if (zlibOk != (status == iw::InflateStatus::Ok)) std::abort();
    if (zlibOk && (refSize != own.size() || !std::equal(own.begin(), own.end(), ref.begin())))
        std::abort();
    return 0;
}
