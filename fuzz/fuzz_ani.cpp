// The animated cursor reader on arbitrary bytes: the frames the salvage reader finds, then
// the RIFF chunks (name, artist, rates, sequence, hotspot). Whatever reads is written again
// as an icon, a cursor and an animated cursor, in memory, and must read back.

#include <cstddef>
#include <cstdint>
#include <span>

#include "document/io/IconFileReader.h"
#include "support/WriteReadBack.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    iw::IconSet set;
    iw::NullProgress progress;
    if (!iw::ReadIconData(std::span(data, size), "f.ani", set, progress).Ok()) return 0;
    iw::test::AbortUnlessItWritesBack(set);
    return 0;
}
