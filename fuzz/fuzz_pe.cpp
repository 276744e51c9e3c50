// The reader of programs' icon and cursor groups on arbitrary bytes: the PE headers, the
// section table and the resource tree, or the NE resource table, and the groups. The last input byte picks the group
// (0 the first icon group, else that group's index less one). Whatever reads is written
// again as an icon, a cursor and an animated cursor, in memory, and must read back.

#include <cstddef>
#include <cstdint>
#include <span>

#include "document/io/IconFileReader.h"
#include "support/WriteReadBack.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const iw::GroupChoice choice{static_cast<int>(data[size - 1] % 8) - 1, {}};
    iw::IconSet set;
    iw::NullProgress progress;
    if (!iw::ReadIconData(std::span(data, size - 1), "f.dll", set, progress, choice).Ok()) return 0;
    iw::test::AbortUnlessItWritesBack(set);
    return 0;
}
