#pragma once
// A write run under a file size limit, to prove that a write failing part way loses nothing.

#include <cstdint>
#include <functional>

namespace iw::test {

// Runs `write` with files limited to `limit` bytes (the write past it fails instead of
// raising SIGXFSZ) and returns what it returned.
bool UnderFileSizeLimit(std::uint64_t limit, const std::function<bool()>& write);

}  // namespace iw::test
