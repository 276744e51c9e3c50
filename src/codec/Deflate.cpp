#include "codec/Deflate.h"

#include "codec/Compression.h"

namespace iw {

// Placeholder until the own compressor lands: stored blocks.
std::vector<std::uint8_t> DeflateZlib(std::span<const std::uint8_t> in) {
    std::vector<std::uint8_t> out{0x78, 0x01};
    std::size_t pos = 0;
    do {
        const std::size_t n = in.size() - pos < 65535 ? in.size() - pos : 65535;
        out.push_back(pos + n == in.size() ? 1 : 0);
        out.push_back(static_cast<std::uint8_t>(n));
        out.push_back(static_cast<std::uint8_t>(n >> 8));
        out.push_back(static_cast<std::uint8_t>(~n));
        out.push_back(static_cast<std::uint8_t>(~n >> 8));
        out.insert(out.end(), in.begin() + static_cast<std::ptrdiff_t>(pos),
                   in.begin() + static_cast<std::ptrdiff_t>(pos + n));
        pos += n;
    } while (pos < in.size());
    const std::uint32_t a = Adler32(1, in);
    for (int s = 24; s >= 0; s -= 8)
        out.push_back(static_cast<std::uint8_t>(a >> s));
    return out;
}

}  // namespace iw
