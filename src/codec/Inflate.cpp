#include "codec/Inflate.h"

namespace iw {

// Placeholder until the own decoder lands: refuses every stream.
InflateStatus InflateZlib(std::span<const std::uint8_t>, std::size_t,
                          std::vector<std::uint8_t>& out) {
    out.clear();
    return InflateStatus::BadHeader;
}

}  // namespace iw
