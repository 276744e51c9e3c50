// The icon readers on arbitrary bytes. The last input byte chooses the file name's
// extension, and with it the directory reader or the salvage reader. Whatever reads is
// written again as an icon, a cursor and an animated cursor, in memory, and must read back.

#include <cstddef>
#include <cstdint>
#include <span>

#include "document/io/IconFileReader.h"
#include "support/WriteReadBack.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    static const char* const kNames[] = {"f.ico", "f.cur", "f.ani", "f.exe"};
    const char* name = kNames[data[size - 1] % 4];
    iw::IconSet set;
    iw::NullProgress progress;
    if (!iw::ReadIconData(std::span(data, size - 1), name, set, progress).Ok()) return 0;
    iw::test::AbortUnlessItWritesBack(set);
    return 0;
}
