// The animated cursor reader on arbitrary bytes: the frames the salvage reader finds, then
// the RIFF chunks (name, artist, rates, sequence, hotspot).

#include <cstddef>
#include <cstdint>
#include <span>

#include "document/io/IconFileReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    iw::IconSet set;
    iw::NullProgress progress;
    iw::ReadIconData(std::span(data, size), "f.ani", set, progress);
    return 0;
}
